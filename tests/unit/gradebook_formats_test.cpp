// The gradebook files, whole, from one small class that holds what the formats treat differently.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/Exported.h"

namespace {

qz::ResultsRecord _Results(int32_t student, std::initializer_list<double> points) {
  qz::ResultsRecord results;
  results.studentID = student;
  for (const double earned : points) results.responses.push_back({1, 1, "", earned});
  return results;
}

// Ann has a result in the first quiz, Bo a zero in the first and an odd one in the second, Cy none at all.
qz::ClassRecord _SmallClass() {
  qz::ClassRecord record;
  record.students = {NewStudent(7, "Ann", "Smith", "1001", "asmith"),
                     NewStudent(8, "Bo \"B\"", "Lee, Jr.", "", "b\"l"),
                     NewStudent(9, "", "\x8Ek", "1003", "")};
  record.assignments.resize(4);
  record.assignments[0].name = "Quiz \"1\"";
  record.assignments[0].pointsPossible = 8;
  record.assignments[0].results = {_Results(8, {0.0}), _Results(7, {3.0, 4.0}), _Results(7, {1.0})};
  record.assignments[1].name = "not exported";
  record.assignments[1].results = {_Results(7, {5.0})};
  record.assignments[2].name = "Quiz 2";
  record.assignments[2].pointsPossible = 3;
  record.assignments[2].results = {_Results(8, {2.0}), _Results(99, {9.0})};
  record.assignments[3].name = "Bonus";
  record.assignments[3].results = {_Results(8, {1234567.0})};
  for (const size_t index : {0U, 2U, 3U}) record.assignments[index].selected = true;
  return record;
}

// Each format's file, and that of a class of one student and no selected assignment.
TEST(GradebookFormats, GoldenFiles) {
  qz::ClassRecord bare = _SmallClass();
  bare.students.resize(1);
  for (qz::AssignmentRecord& assignment : bare.assignments) assignment.selected = false;
  for (const FormatRow& format : FormatTable()) {
    if (format.index == kDetailedResultsFormat) continue;
    for (const bool useQuotes : {true, false}) {
      const bool unquoted = !useQuotes && format.hasUnquotedVariant;
      const std::string name = std::string("small-class.") + format.key + (unquoted ? "-unquoted" : "");
      ExpectGolden(name, Exported(format.key, _SmallClass(), useQuotes));
      ExpectGolden(name + "-bare", Exported(format.key, bare, useQuotes));
    }
  }
}

TEST(GradebookFormats, TakeTheIdentifierFromTheChosenField) {
  qz::ClassRecord record = _SmallClass();
  record.students.resize(1);
  record.students[0].custom = {"c1", "c2", "c3"};
  const char* expected[] = {"asmith", "Ann", "Smith", "1001", "asmith", "c1", "c2", "c3", "asmith"};
  for (int32_t field = 0; field <= 8; ++field) {
    record.userIDField = static_cast<qz::UserIDField>(field);
    const std::string header = "User ID,Quiz '1',Quiz 2,Bonus\n";
    EXPECT_EQ(Exported("moodle", record), header + expected[field] + ",7,,\n") << field;
  }
}

}  // namespace
