#include "Common/QZData/ClassTexts.h"

#include "Common/RomanText.h"

namespace qz {

namespace {

std::string _Text(const std::string* original, const std::string& roman) {
  return original != nullptr ? *original : Utf8FromRoman(roman);
}

const std::string& _TextOf(const AssignmentRecord& assignment, AssignmentText text) {
  switch (text) {
    case AssignmentText::kName: break;
    case AssignmentText::kAssignmentID: return assignment.assignmentID;
    case AssignmentText::kCategory: return assignment.category;
    case AssignmentText::kOnlineID: return assignment.onlineID;
    case AssignmentText::kDate: return assignment.date;
  }
  return assignment.name;
}

const std::string& _TextOf(const QuestionRecord& question, QuestionText text) {
  switch (text) {
    case QuestionText::kAnswer: break;
    case QuestionText::kReference: return question.reference;
    case QuestionText::kLearningObjective: return question.learningObjective;
    case QuestionText::kStateStandard: return question.stateStandard;
  }
  return question.answer;
}

}  // namespace

std::string ClassTexts::Student(size_t student, const StudentField& field) const {
  return _Text(m_originals->OfStudent(student, field), field.Value(m_record->students[student]));
}

std::string ClassTexts::StudentName(size_t student) const {
  const std::string first = Student(student, FindStudentField(kUserIDFirstName));
  const std::string last = Student(student, FindStudentField(kUserIDLastName));
  return first.empty() || last.empty() ? first + last : first + " " + last;
}

std::string ClassTexts::AssignmentName(size_t assignment) const {
  return Assignment(assignment, AssignmentText::kName);
}

std::string ClassTexts::Assignment(size_t assignment, AssignmentText text) const {
  return _Text(m_originals->OfAssignment(assignment, text), _TextOf(m_record->assignments[assignment], text));
}

std::string ClassTexts::Question(size_t assignment, size_t question, QuestionText text) const {
  return _Text(m_originals->OfQuestion(assignment, question, text),
               _TextOf(m_record->assignments[assignment].questions[question], text));
}

std::string ClassTexts::Response(size_t assignment, size_t results, size_t response) const {
  return _Text(m_originals->OfResponse(assignment, results, response),
               m_record->assignments[assignment].results[results].responses[response].text);
}

std::string ClassTexts::FieldTitle(const StudentField& field) const {
  if (field.title != nullptr) return field.title;
  return _Text(m_originals->OfLabel(field.custom), field.Title(*m_record));
}

}  // namespace qz
