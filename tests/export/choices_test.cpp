// What is chosen for an export: assignments, identifiers, the report; and the session that gets it.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "Export/ExportChoices.h"
#include "Export/ExportWriter.h"
#include "Export/IdentifierCheck.h"
#include "tests/support/Exported.h"

namespace {

qz::ClassRecord ClassWithAssignments(const std::vector<int32_t>& ids) {
  qz::ClassRecord record;
  for (const int32_t id : ids) record.assignments.emplace_back().id = id;
  record.assignments.front().selected = true;  // whatever was selected before
  return record;
}

TEST(ExportChoices, SelectTheAssignmentsByTheirIds) {
  using Fault = ChoiceFault;
  const struct {
    const char* what;
    const char* format;
    std::vector<int32_t> ids;
    Fault fault;
    std::string selected;  // of assignments 7, 8, 7
    int32_t unknownID;
  } rows[] = {
      {"all", "canvas", {}, Fault::kNone, "111", 0},
      {"one", "canvas", {8}, Fault::kNone, "010", 0},
      {"twins and repeated", "canvas", {7, 7}, Fault::kNone, "101", 0},
      {"unknown", "canvas", {8, -9}, Fault::kUnknownAssignment, "100", -9},
      {"report, one", "detailed", {8}, Fault::kNone, "010", 0},
      {"report, twins", "detailed", {7}, Fault::kNone, "101", 0},
      {"report, all", "detailed", {}, Fault::kNotOneAssignment, "111", 0},
      {"report, two", "detailed", {7, 8}, Fault::kNotOneAssignment, "111", 0},
      {"report, unknown", "detailed", {9}, Fault::kUnknownAssignment, "100", 9},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    ExportChoices choices;
    choices.format = FindFormat(row.format);
    choices.assignmentIDs = row.ids;
    const auto session = MakeSession(*choices.format);
    *session->GetClass() = ClassWithAssignments({7, 8, 7});
    const AppliedChoices applied = Apply(choices, session.get());
    EXPECT_EQ(applied.fault, row.fault);
    EXPECT_EQ(applied.unknownID, row.unknownID);
    std::string selected;
    for (const qz::AssignmentRecord& assignment : session->GetClass()->assignments) {
      selected += assignment.selected ? '1' : '0';
    }
    EXPECT_EQ(selected, row.selected);
    if (row.fault == Fault::kNone) {
      EXPECT_EQ(applied.selected, static_cast<size_t>(std::count(selected.begin(), selected.end(), '1')));
    }
  }
}

TEST(ExportChoices, ReachTheFile) {
  ExportChoices choices;
  choices.format = FindFormat("blackboard8");
  choices.identifier = qz::kUserIDCustom2;
  choices.useQuotes = false;
  const auto session = MakeSession(*choices.format);
  session->GetClass()->students.emplace_back().custom[1] = "me";
  Apply(choices, session.get());
  const std::string path = TestPath("file.csv").string();
  const FileOutcome outcome = WriteExport(session.get(), path, TextEncoding::kMacRoman);
  EXPECT_TRUE(outcome.begun);
  EXPECT_EQ(outcome.error, 0);
  const std::string text = ReadFile(path);
  EXPECT_NE(text.find("me"), std::string::npos);
  EXPECT_EQ(text.find('"'), std::string::npos);

  EXPECT_FALSE(WriteExport(session.get(), TestPath("none/x").string(), TextEncoding::kMacRoman).begun);
}

TEST(ExportChoices, ReportIsThatOfANewDialogUnlessChosen) {
  ExportChoices choices;
  choices.format = FindFormat("detailed");
  const auto session = MakeSession(*choices.format);
  *session->GetClass() = ClassWithAssignments({1});
  session->GetClass()->options = {};
  Apply(choices, session.get());
  EXPECT_EQ(session->GetClass()->optionValue, 0x7);
  EXPECT_EQ(session->GetClass()->options, qz::ClassRecord().options);
  choices.report.fields = 0x4000;
  choices.report.options[qz::kReportAnswerKey] = true;
  Apply(choices, session.get());
  EXPECT_EQ(session->GetClass()->optionValue, 0x4000);
  EXPECT_TRUE(session->GetClass()->options[qz::kReportAnswerKey]);
}

qz::ClassRecord ClassWithIDs(const std::vector<std::string>& identifiers) {
  qz::ClassRecord record;
  for (const std::string& identifier : identifiers) record.students.emplace_back().alias = identifier;
  return record;
}

TEST(IdentifierCheck, FindsEmptyAndRepeatedIdentifiers) {
  using Groups = std::vector<std::vector<size_t>>;
  const struct {
    const char* what;
    std::vector<std::string> identifiers;
    bool someEmpty;
    bool allEmpty;
    Groups duplicates;
  } rows[] = {
      {"no students", {}, false, true, {}},
      {"all different, case and blanks count", {"a", "A", "a "}, false, false, {}},
      {"one empty", {"a", "", "b"}, true, false, {}},
      {"two empty are equal", {"", "a", ""}, true, false, {{0, 2}}},
      {"one student, empty", {""}, false, true, {}},
      {"groups in order of their second student",
       {"x", "y", "y", "x", "y", "z"},
       false,
       false,
       {{1, 2, 4}, {0, 3}}},
  };
  for (const auto& row : rows) {
    const IdentifierCheck check = CheckIdentifiers(ClassWithIDs(row.identifiers), qz::kUserIDAlias);
    EXPECT_EQ(check.studentCount, row.identifiers.size()) << row.what;
    EXPECT_EQ(check.SomeEmpty(), row.someEmpty) << row.what;
    EXPECT_EQ(check.AllEmpty(), row.allEmpty) << row.what;
    EXPECT_EQ(check.duplicates, row.duplicates) << row.what;
  }
}

}  // namespace
