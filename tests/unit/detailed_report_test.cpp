#include <gtest/gtest.h>

#include <string>

#include "tests/support/Exported.h"

namespace {

using Options = std::array<bool, qz::kReportOptionCount>;

// Two students, one of them absent, and two questions.
qz::ClassRecord _ClassOfTwo() {
  qz::ClassRecord record;
  record.students.resize(2);
  record.students[0].id = 7;
  record.students[0].firstName = "Ann";
  record.students[0].lastName = "Smith";
  record.students[0].studentID = "1001";
  record.students[1].id = 8;
  record.students[1].firstName = "Bo \"B\"";
  record.assignments.resize(3);
  record.assignments[2].selected = true;  // only the first selected one is reported
  qz::AssignmentRecord& quiz = record.assignments[1];
  quiz.selected = true;
  // The report does not count by their numbers.
  quiz.questions = {{qz::kQuestionMC, 61, 11, 2, 5, "B", "", "", "", 2.0},
                    {qz::kQuestionMC, 62, 12, 2, 5, "C", "", "", "", 1.0}};
  quiz.results.resize(1);
  quiz.results[0].studentID = 7;
  quiz.results[0].responses = {
      {12, 3, "other bank", 1.0}, {12, 2, "A", 0.0}, {11, 2, "B", 2.0}, {11, 2, "late", 0.0}};
  record.optionValue = 7;
  return record;
}

TEST(DetailedReport, GoldenFiles) {
  const struct {
    const char* name;
    int32_t fields;
    Options options;  // answer key, responses, points earned, points possible, asterisks
  } rows[] = {
      {"everything", 7, {true, true, true, true, true}},
      {"responses", 7, {false, true, false, false, false}},
      {"no-key-line", 4, {false, true, false, true, true}},  // for points possible alone
      {"points", 2, {false, false, true, true, true}},
      {"key-line-for-points", 1, {false, true, true, true, false}},  // leaves the answers empty
      {"no-students", 0, {true, true, false, false, true}},
      {"no-questions", 4, {true, false, false, true, true}},
  };
  for (const auto& row : rows) {
    qz::ClassRecord record = _ClassOfTwo();
    record.optionValue = row.fields;
    record.options = row.options;
    ExpectGolden(std::string("small-class.detailed-") + row.name, Exported("detailed", record));
  }
}

TEST(DetailedReport, WritesTheFieldOfEachBit) {
  qz::ClassRecord record;
  record.assignments.resize(1);
  record.assignments[0].selected = true;
  uint32_t bit = 1;
  for (const char* title : {"Last name", "First name", "Student ID", "Password", "Student alias", "Gender",
                            "Date of birth", "Grade level", "Sociological/Economic", "Race/Ethnicity",
                            "Other", "Custom 1", "Custom 2", "Custom 3", "Pad ID"}) {
    record.optionValue = static_cast<int32_t>(bit);
    EXPECT_EQ(Exported("detailed", record), '"' + std::string(title) + "\"\n");
    bit <<= 1U;
  }
}

TEST(DetailedReport, NeedsASelectedAssignment) {
  const auto session = NewSession(*FindFormat("detailed"));
  *session->GetClass() = _ClassOfTwo();
  for (qz::AssignmentRecord& assignment : session->GetClass()->assignments) assignment.selected = false;
  const std::filesystem::path path = TestPath("none.csv");
  EXPECT_EQ(session->Export(path.string().c_str()), QZFILTER_FAILED);
  EXPECT_FALSE(std::filesystem::exists(path));
}

}  // namespace
