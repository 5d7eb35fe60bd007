// A class record as text, so that a test can compare whole records and a failure shows what differs.
#ifndef GRADIX_TESTS_CLASSDUMP_H
#define GRADIX_TESTS_CLASSDUMP_H

#include <sstream>
#include <string>

#include "Common/QZData/QZClass.h"

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

#endif  // GRADIX_TESTS_CLASSDUMP_H
