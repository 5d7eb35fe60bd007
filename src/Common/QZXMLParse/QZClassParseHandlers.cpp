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

// Text of the direct child `id` as Mac OS Roman, at most `size` characters, into a buffer of size + 1 bytes;
// empty when there is none. Returns the length.
size_t _GetElementText(const _XmlTreeTag* node, int32_t id, char* buffer, int32_t size) {
  buffer[0] = '\0';
  const _XmlTreeTag* child = XmlTreeFindNode(node, id);
  if (child == nullptr) return 0;
  XmlTreeGetAllText(child, buffer, size);
  return _TranslateString(buffer);
}

using ElementText = std::array<char, kMaximumText + 1>;

std::string _GetElementText(const _XmlTreeTag* node, int32_t id) {
  ElementText text;
  const size_t length = _GetElementText(node, id, text.data(), kMaximumText);
  return std::string(text.data(), length);
}

int32_t _GetElementInt(const _XmlTreeTag* node, int32_t id) {
  ElementText text;
  _GetElementText(node, id, text.data(), kMaximumText);
  return ParseInt32(text.data());
}

double _GetElementDouble(const _XmlTreeTag* node, int32_t id) {
  ElementText text;
  const size_t length = _GetElementText(node, id, text.data(), kMaximumText);
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

bool _HandlePreferences(cXmlParserContext* context) {
  constexpr std::array<int32_t, 3> kLabels = {kElementLabel1, kElementLabel2, kElementLabel3};
  for (size_t i = 0; i < kLabels.size(); ++i) {
    std::array<char, kMaximumLabel + 1> label;
    _GetElementText(context->Node(), kLabels[i], label.data(), kMaximumLabel);
    if (label[0] != '\0') context->Class()->customLabels[i] = label.data();
  }
  return _DeleteElement(context);
}

bool _HandleStudent(cXmlParserContext* context) {
  const _XmlTreeTag* node = context->Node();
  qz::StudentRecord student;
  student.firstName = _GetElementText(node, kElementFirstName);
  student.lastName = _GetElementText(node, kElementLastName);
  student.studentID = _GetElementText(node, kElementStudentID);
  student.alias = _GetElementText(node, kElementAlias);
  student.password = _GetElementText(node, kElementPassword);
  student.id = XmlTreeGetAttributeInt(node, "id");
  student.dateOfBirth = _GetElementText(node, kElementDateOfBirth);
  student.padID = _GetElementText(node, kElementPadID);
  student.gradeLevel = _GetElementText(node, kElementGradeLevel);
  student.gender = _GetElementText(node, kElementGender);
  _NormalizeGender(&student.gender);
  student.sociological = _GetElementText(node, kElementSociological);
  student.race = _GetElementText(node, kElementRace);
  student.other = _GetElementText(node, kElementOther);
  student.custom[0] = _GetElementText(node, kElementCustom1);
  student.custom[1] = _GetElementText(node, kElementCustom2);
  student.custom[2] = _GetElementText(node, kElementCustom3);
  context->Class()->students.push_back(std::move(student));
  return _DeleteElement(context);
}

bool _HandleQuestion(cXmlParserContext* context) {
  PendingAssignment& pending = context->Pending();
  if (!pending.questionListEnded) {
    const _XmlTreeTag* node = context->Node();
    qz::QuestionRecord question;
    question.answer = _GetElementText(node, kElementAnswer);
    question.learningObjective = _GetElementText(node, kElementLearningObjective);
    question.number = XmlTreeGetAttributeInt(node, "number");
    question.numChoices = _GetElementInt(node, kElementNumChoices);
    question.pointsPossible = _GetElementDouble(node, kElementQuestionPoints);
    question.reference = _GetElementText(node, kElementReference);
    question.stateStandard = _GetElementText(node, kElementStateStandard);
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
  if (!pending.responseListEnded) {
    const _XmlTreeTag* node = context->Node();
    qz::ResponseRecord& response = pending.responses.emplace_back();
    response.questionID = XmlTreeGetAttributeInt(node, "question-id");
    response.bankID = XmlTreeGetAttributeInt(node, "bank-id");
    response.text = _GetElementText(node, kElementText);
    response.pointsEarned = _GetElementDouble(node, kElementPointsEarned);
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
  assignment.name = _GetElementText(node, kElementAssignmentName);
  assignment.assignmentID = _GetElementText(node, kElementAssignmentID);
  assignment.date = _GetElementText(node, kElementAssignmentDate);
  assignment.category = _GetElementText(node, kElementCategory);
  assignment.onlineID = _GetElementText(node, kElementOnlineID);
  assignment.pointsPossible = _GetElementInt(node, kElementAssignmentPoints);
  assignment.id = XmlTreeGetAttributeInt(node, "id");
  context->Class()->assignments.push_back(std::move(assignment));
  pending = PendingAssignment();
  return _DeleteElement(context);
}
