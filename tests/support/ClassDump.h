// A class record as text, so that a test can compare whole records and a failure shows what differs; and its
// original texts one by one.
#ifndef GRADIX_TESTS_CLASSDUMP_H
#define GRADIX_TESTS_CLASSDUMP_H

#include <sstream>
#include <string>
#include <utility>

#include "Common/QZData/OriginalTexts.h"
#include "Common/QZData/QZClass.h"
#include "Common/QZData/StudentFields.h"

inline std::string Dump(const qz::ClassRecord& record) {
  std::ostringstream out;
  out.precision(17);
  for (const std::string& label : record.customLabels) out << '[' << label << ']';
  out << '\n';
  for (const qz::StudentRecord& s : record.students) {
    out << "student " << s.id;
    for (const std::string* text : {&s.firstName, &s.lastName, &s.studentID, &s.alias, &s.password, &s.padID,
                                    &s.dateOfBirth, &s.gradeLevel, &s.gender, &s.sociological, &s.race,
                                    &s.other, &s.custom[0], &s.custom[1], &s.custom[2]}) {
      out << '|' << *text;
    }
    out << '\n';
  }
  for (const qz::AssignmentRecord& a : record.assignments) {
    out << "assignment " << a.id << '|' << a.name << '|' << a.assignmentID << '|' << a.category << '|'
        << a.onlineID << '|' << a.date << '|' << a.sortKey << '|' << a.selected << '|' << a.pointsPossible
        << '\n';
    for (const qz::QuestionRecord& q : a.questions) {
      out << " question " << q.type << '|' << q.number << '|' << q.questionID << '|' << q.bankID << '|'
          << q.numChoices << '|' << q.answer << '|' << q.reference << '|' << q.learningObjective << '|'
          << q.stateStandard << '|' << q.pointsPossible << '\n';
    }
    for (const qz::ResultsRecord& r : a.results) {
      out << " results " << r.studentID;
      for (const qz::ResponseRecord& response : r.responses) {
        out << " (" << response.questionID << '|' << response.bankID << '|' << response.text << '|'
            << response.pointsEarned << ')';
      }
      out << '\n';
    }
  }
  return out.str();
}

// Calls `visit` with each text of the record that has an original one, and with that.
template <typename Visit>
void ForEachOriginal(const qz::ClassRecord& record, const qz::OriginalTexts& originals, Visit visit) {
  using Assignment = qz::AssignmentText;
  using Question = qz::QuestionText;
  const auto take = [&visit](const std::string& text, const std::string* original) {
    if (original != nullptr) visit(text, *original);
  };
  for (size_t i = 0; i < record.customLabels.size(); ++i) take(record.customLabels[i], originals.OfLabel(i));
  for (size_t i = 0; i < record.students.size(); ++i) {
    for (const qz::StudentField& field : qz::kStudentFields) {
      take(field.Value(record.students[i]), originals.OfStudent(i, field));
    }
  }
  for (size_t i = 0; i < record.assignments.size(); ++i) {
    const qz::AssignmentRecord& a = record.assignments[i];
    for (const auto& [text, which] : {std::pair(&a.name, Assignment::kName),
                                      {&a.assignmentID, Assignment::kAssignmentID},
                                      {&a.category, Assignment::kCategory},
                                      {&a.onlineID, Assignment::kOnlineID},
                                      {&a.date, Assignment::kDate}}) {
      take(*text, originals.OfAssignment(i, which));
    }
    for (size_t n = 0; n < a.questions.size(); ++n) {
      const qz::QuestionRecord& q = a.questions[n];
      for (const auto& [text, which] : {std::pair(&q.answer, Question::kAnswer),
                                        {&q.reference, Question::kReference},
                                        {&q.learningObjective, Question::kLearningObjective},
                                        {&q.stateStandard, Question::kStateStandard}}) {
        take(*text, originals.OfQuestion(i, n, which));
      }
    }
    for (size_t n = 0; n < a.results.size(); ++n) {
      for (size_t m = 0; m < a.results[n].responses.size(); ++m) {
        take(a.results[n].responses[m].text, originals.OfResponse(i, n, m));
      }
    }
  }
}

#endif  // GRADIX_TESTS_CLASSDUMP_H
