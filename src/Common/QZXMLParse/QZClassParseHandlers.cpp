#include "Common/QZXMLParse/QZClassParseHandlers.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "Common/QZData/QZClass.h"
#include "Common/QZData/QuestionTypes.h"
#include "Common/QZXMLParse/QZClassParseContext.h"
#include "Common/QZXMLParse/gxml.h"
#include "Common/number.h"
#include "Common/xmltree.h"

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

using ElementText = std::array<char, kMaximumText + 1>;

std::string _GetElementText(cXmlParserContext* context, int32_t id) {
  ElementText text;
  const size_t length =
      _GetElementText(context, id, text.data(), kMaximumText, &context->Report().replacedCharacters);
  return std::string(text.data(), length);
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
  const _XmlTreeTag* node = context->Node();
  for (int32_t i = 0; i < node->itemCount; ++i) {
    if (node->items[i].kind != kXmlTreeText) continue;
    context->Report().className += static_cast<const char*>(node->items[i].data);
  }
  return true;
}

bool _HandlePreferences(cXmlParserContext* context) {
  constexpr std::array<int32_t, 3> kLabels = {kElementLabel1, kElementLabel2, kElementLabel3};
  for (size_t i = 0; i < kLabels.size(); ++i) {
    std::array<char, kMaximumLabel + 1> label;
    _GetElementText(context, kLabels[i], label.data(), kMaximumLabel, &context->Report().replacedCharacters);
    if (label[0] != '\0') context->Class()->customLabels[i] = label.data();
  }
  return _DeleteElement(context);
}

bool _HandleStudent(cXmlParserContext* context) {
  const _XmlTreeTag* node = context->Node();
  qz::StudentRecord student;
  student.firstName = _GetElementText(context, kElementFirstName);
  student.lastName = _GetElementText(context, kElementLastName);
  student.studentID = _GetElementText(context, kElementStudentID);
  student.alias = _GetElementText(context, kElementAlias);
  student.password = _GetElementText(context, kElementPassword);
  student.id = XmlTreeGetAttributeInt(node, "id");
  student.dateOfBirth = _GetElementText(context, kElementDateOfBirth);
  student.padID = _GetElementText(context, kElementPadID);
  student.gradeLevel = _GetElementText(context, kElementGradeLevel);
  student.gender = _GetElementText(context, kElementGender);
  _NormalizeGender(&student.gender);
  student.sociological = _GetElementText(context, kElementSociological);
  student.race = _GetElementText(context, kElementRace);
  student.other = _GetElementText(context, kElementOther);
  student.custom[0] = _GetElementText(context, kElementCustom1);
  student.custom[1] = _GetElementText(context, kElementCustom2);
  student.custom[2] = _GetElementText(context, kElementCustom3);
  context->Class()->students.push_back(std::move(student));
  return _DeleteElement(context);
}

bool _HandleQuestion(cXmlParserContext* context) {
  PendingAssignment& pending = context->Pending();
  if (!pending.questionListEnded) {
    const _XmlTreeTag* node = context->Node();
    qz::QuestionRecord question;
    question.answer = _GetElementText(context, kElementAnswer);
    question.learningObjective = _GetElementText(context, kElementLearningObjective);
    question.number = XmlTreeGetAttributeInt(node, "number");
    question.numChoices = _GetElementInt(context, kElementNumChoices);
    question.pointsPossible = _GetElementDouble(context, kElementQuestionPoints);
    question.reference = _GetElementText(context, kElementReference);
    question.stateStandard = _GetElementText(context, kElementStateStandard);
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
    response.text = _GetElementText(context, kElementText);
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
  assignment.name = _GetElementText(context, kElementAssignmentName);
  assignment.assignmentID = _GetElementText(context, kElementAssignmentID);
  assignment.date = _GetElementText(context, kElementAssignmentDate);
  assignment.category = _GetElementText(context, kElementCategory);
  assignment.onlineID = _GetElementText(context, kElementOnlineID);
  assignment.pointsPossible = _GetElementInt(context, kElementAssignmentPoints);
  assignment.id = XmlTreeGetAttributeInt(node, "id");
  context->Class()->assignments.push_back(std::move(assignment));
  pending = PendingAssignment();
  return _DeleteElement(context);
}
