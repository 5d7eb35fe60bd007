#include "Common/QZXMLParse/QZClassParseHandlers.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "Common/QZData/OriginalTexts.h"
#include "Common/QZData/QZClass.h"
#include "Common/QZData/QuestionTypes.h"
#include "Common/QZData/StudentFields.h"
#include "Common/QZXMLParse/QZClassParseContext.h"
#include "Common/QZXMLParse/gxml.h"
#include "Common/number.h"
#include "Common/xmltree.h"
#include "Common/xmlutil.h"

namespace {

constexpr int32_t kMaximumText = 199;   // characters of a field
constexpr int32_t kMaximumLabel = 200;  // characters of a custom label

// Makes control characters spaces and removes trailing spaces; leading ones stay. Returns the length.
size_t _TranslateString(char* text) {
  size_t length = 0;
  for (size_t i = 0; text[i] != '\0'; ++i) {
    if (static_cast<unsigned char>(text[i]) < 0x20) text[i] = ' ';
    if (text[i] != ' ') length = i + 1;
  }
  text[length] = '\0';
  return length;
}

// Text of the ended element's direct child `id` as Mac OS Roman, at most `size` characters, into a buffer of
// size + 1 bytes; empty when there is none. Returns the length. What Roman lacks is added to `*replaced`.
size_t _GetElementText(cXmlParserContext* context, int32_t id, char* buffer, int32_t size,
                       uint64_t* replaced) {
  buffer[0] = '\0';
  const _XmlTreeTag* child = XmlTreeFindNode(context->Node(), id);
  if (child == nullptr) return 0;
  *replaced += XmlTreeJoinText(child, buffer, size);
  return _TranslateString(buffer);
}

// The node's own texts as the file has them.
std::string _JoinTexts(const _XmlTreeTag* node) {
  std::string text;
  for (int32_t i = 0; i < node->itemCount; ++i) {
    if (node->items[i].kind == kXmlTreeText) text += static_cast<const char*>(node->items[i].data);
  }
  return text;
}

// The bytes of the first `size` characters.
size_t _CharacterBytes(const char* text, int32_t size) {
  const char* end = text;
  for (int32_t codePoint = 0; size > 0 && *end != '\0'; --size) {
    end += XmlUtf8Step(end, XmlUtf8DecodeChar(&codePoint, end));
  }
  return static_cast<size_t>(end - text);
}

// Text of the ended element's direct child `id`, treated the same, as the file has it.
std::string _GetOriginalText(cXmlParserContext* context, int32_t id, int32_t size) {
  std::string text = _JoinTexts(XmlTreeFindNode(context->Node(), id));
  text.resize(_CharacterBytes(text.c_str(), size));
  text.resize(_TranslateString(text.data()));
  text.shrink_to_fit();
  return text;
}

// The replaced characters are counted, and `keep` is called with the text that lost them, if it is wanted.
template <typename Keep>
void _TakeReplaced(cXmlParserContext* context, int32_t id, int32_t size, uint64_t replaced, Keep keep) {
  context->Report().replacedCharacters += replaced;
  qz::OriginalTexts* originals = context->Report().originals;
  if (originals != nullptr) keep(originals, _GetOriginalText(context, id, size));
}

using ElementText = std::array<char, kMaximumText + 1>;

template <typename Keep>
std::string _GetElementText(cXmlParserContext* context, int32_t id, Keep keep) {
  ElementText text;
  uint64_t replaced = 0;
  const size_t length = _GetElementText(context, id, text.data(), kMaximumText, &replaced);
  if (replaced > 0) _TakeReplaced(context, id, kMaximumText, replaced, keep);
  return std::string(text.data(), length);
}

std::string _GetStudentText(cXmlParserContext* context, int32_t id, const qz::StudentField& field) {
  return _GetElementText(context, id, [&](qz::OriginalTexts* originals, std::string text) {
    originals->KeepStudent(context->NextStudent(), field, std::move(text));
  });
}

std::string _GetAssignmentText(cXmlParserContext* context, int32_t id, qz::AssignmentText which) {
  return _GetElementText(context, id, [&](qz::OriginalTexts* originals, std::string text) {
    originals->KeepAssignment(context->NextAssignment(), which, std::move(text));
  });
}

std::string _GetQuestionText(cXmlParserContext* context, int32_t id, qz::QuestionText which) {
  return _GetElementText(context, id, [&](qz::OriginalTexts* originals, std::string text) {
    originals->KeepQuestion(context->NextAssignment(), context->Pending().record.questions.size(), which,
                            std::move(text));
  });
}

// Of the last of the pending responses.
std::string _GetResponseText(cXmlParserContext* context) {
  return _GetElementText(context, kElementText, [&](qz::OriginalTexts* originals, std::string text) {
    const PendingAssignment& pending = context->Pending();
    originals->KeepResponse(context->NextAssignment(), pending.record.results.size(),
                            pending.responses.size() - 1, std::move(text));
  });
}

int32_t _GetElementInt(cXmlParserContext* context, int32_t id) {
  ElementText text;
  uint64_t replaced = 0;  // in no text of the records
  _GetElementText(context, id, text.data(), kMaximumText, &replaced);
  return ParseInt32(text.data());
}

double _GetElementDouble(cXmlParserContext* context, int32_t id) {
  ElementText text;
  uint64_t replaced = 0;
  const size_t length = _GetElementText(context, id, text.data(), kMaximumText, &replaced);
  return ParseDouble(text.data(), length);
}

int32_t _GetQuestionType(const char* text) {
  const int32_t type = text == nullptr ? -1 : qz::FindQuestionType(text);
  return type < 0 ? qz::kQuestionOT : type;
}

void _NormalizeGender(std::string* gender) {
  if (*gender == "M") {
    *gender = "Male";
  } else if (*gender == "F") {
    *gender = "Female";
  }
}

// Ends every handler: the record has what the subtree held.
bool _DeleteElement(cXmlParserContext* context) {
  XmlTreeDeleteNode(context->Node());
  return true;
}

}  // namespace

bool _HandleClassName(cXmlParserContext* context) {
  context->Report().className += _JoinTexts(context->Node());
  return true;
}

bool _HandlePreferences(cXmlParserContext* context) {
  constexpr std::array<int32_t, 3> kLabels = {kElementLabel1, kElementLabel2, kElementLabel3};
  for (size_t i = 0; i < kLabels.size(); ++i) {
    std::array<char, kMaximumLabel + 1> label;
    uint64_t replaced = 0;
    _GetElementText(context, kLabels[i], label.data(), kMaximumLabel, &replaced);
    if (label[0] == '\0') continue;
    context->Class()->customLabels[i] = label.data();
    qz::OriginalTexts* originals = context->Report().originals;
    if (originals != nullptr) originals->DropLabel(i);  // of preferences before these
    if (replaced == 0) continue;
    _TakeReplaced(context, kLabels[i], kMaximumLabel, replaced,
                  [i](qz::OriginalTexts* kept, std::string text) { kept->KeepLabel(i, std::move(text)); });
  }
  return _DeleteElement(context);
}

bool _HandleStudent(cXmlParserContext* context) {
  // In the order of kStudentFields.
  constexpr std::array<int32_t, std::size(qz::kStudentFields)> kElements = {
      kElementFirstName, kElementLastName, kElementStudentID,   kElementPassword,   kElementAlias,
      kElementPadID,     kElementGender,   kElementDateOfBirth, kElementGradeLevel, kElementSociological,
      kElementRace,      kElementOther,    kElementCustom1,     kElementCustom2,    kElementCustom3};
  qz::StudentRecord student;
  student.id = XmlTreeGetAttributeInt(context->Node(), "id");
  for (size_t i = 0; i < kElements.size(); ++i) {
    const qz::StudentField& field = qz::kStudentFields[i];
    field.Value(student) = _GetStudentText(context, kElements[i], field);
  }
  _NormalizeGender(&student.gender);
  context->Class()->students.push_back(std::move(student));
  return _DeleteElement(context);
}

bool _HandleQuestion(cXmlParserContext* context) {
  PendingAssignment& pending = context->Pending();
  if (!pending.questionListEnded) {
    const _XmlTreeTag* node = context->Node();
    qz::QuestionRecord question;
    question.answer = _GetQuestionText(context, kElementAnswer, qz::QuestionText::kAnswer);
    question.learningObjective =
        _GetQuestionText(context, kElementLearningObjective, qz::QuestionText::kLearningObjective);
    question.number = XmlTreeGetAttributeInt(node, "number");
    question.numChoices = _GetElementInt(context, kElementNumChoices);
    question.pointsPossible = _GetElementDouble(context, kElementQuestionPoints);
    question.reference = _GetQuestionText(context, kElementReference, qz::QuestionText::kReference);
    question.stateStandard =
        _GetQuestionText(context, kElementStateStandard, qz::QuestionText::kStateStandard);
    question.type = _GetQuestionType(XmlTreeGetAttribute(node, "type"));
    question.questionID = XmlTreeGetAttributeInt(node, "question-id");
    question.bankID = XmlTreeGetAttributeInt(node, "bank-id");
    pending.record.questions.push_back(std::move(question));
  }
  return _DeleteElement(context);
}

bool _HandleQuestionList(cXmlParserContext* context) {
  context->Pending().questionListEnded = true;
  return _DeleteElement(context);
}

bool _HandleResponse(cXmlParserContext* context) {
  PendingAssignment& pending = context->Pending();
  if (!pending.responseListEnded && !pending.resultsListEnded) {
    const _XmlTreeTag* node = context->Node();
    qz::ResponseRecord& response = pending.responses.emplace_back();
    response.questionID = XmlTreeGetAttributeInt(node, "question-id");
    response.bankID = XmlTreeGetAttributeInt(node, "bank-id");
    response.text = _GetResponseText(context);
    response.pointsEarned = _GetElementDouble(context, kElementPointsEarned);
  }
  return _DeleteElement(context);
}

bool _HandleResponseList(cXmlParserContext* context) {
  context->Pending().responseListEnded = true;
  return _DeleteElement(context);
}

bool _HandleResults(cXmlParserContext* context) {
  PendingAssignment& pending = context->Pending();
  if (!pending.resultsListEnded) {
    qz::ResultsRecord results;
    results.studentID = XmlTreeGetAttributeInt(context->Node(), "id");
    results.responses.assign(std::make_move_iterator(pending.responses.begin()),
                             std::make_move_iterator(pending.responses.end()));
    pending.record.results.push_back(std::move(results));
  }
  pending.responses.clear();
  pending.responseListEnded = false;
  return _DeleteElement(context);
}

bool _HandleResultsList(cXmlParserContext* context) {
  context->Pending().resultsListEnded = true;
  return _DeleteElement(context);
}

bool _HandleAssignment(cXmlParserContext* context) {
  const _XmlTreeTag* node = context->Node();
  PendingAssignment& pending = context->Pending();
  qz::AssignmentRecord& assignment = pending.record;
  assignment.name = _GetAssignmentText(context, kElementAssignmentName, qz::AssignmentText::kName);
  assignment.assignmentID =
      _GetAssignmentText(context, kElementAssignmentID, qz::AssignmentText::kAssignmentID);
  assignment.date = _GetAssignmentText(context, kElementAssignmentDate, qz::AssignmentText::kDate);
  assignment.category = _GetAssignmentText(context, kElementCategory, qz::AssignmentText::kCategory);
  assignment.onlineID = _GetAssignmentText(context, kElementOnlineID, qz::AssignmentText::kOnlineID);
  assignment.pointsPossible = _GetElementInt(context, kElementAssignmentPoints);
  assignment.id = XmlTreeGetAttributeInt(node, "id");
  context->Class()->assignments.push_back(std::move(assignment));
  pending = PendingAssignment();
  return _DeleteElement(context);
}
