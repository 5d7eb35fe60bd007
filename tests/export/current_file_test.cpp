// Current files, whole: those of a small class in which the systems differ, and those of a sample.
#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

#include "Export/ClassFile.h"
#include "Export/ExportChoices.h"
#include "Export/ExportWriter.h"
#include "Filters/GX_StdCsv/Session.h"
#include "Systems/LearningSystem.h"
#include "tests/support/Exported.h"

namespace {

// One question's answer, or several with their points only.
qz::ResultsRecord _Results(int32_t student, std::initializer_list<double> points, const char* text = "") {
  qz::ResultsRecord results;
  results.studentID = student;
  for (const double earned : points) {
    const auto question = static_cast<int32_t>(results.responses.size() + 1);
    results.responses.push_back({question, 0, text, earned});
  }
  return results;
}

ClassFile _SmallClass() {
  ClassFile file;
  file.record.students = {NewStudent(1, "Ann \"A\"", "Smith, Jr.", "0012", "asmith"),
                          NewStudent(2, "?ukasz", "Now\x87k", "1;2", ""), NewStudent(3, "Cy", "", "", "cy"),
                          NewStudent(4, "Bo", "Lee", "7", "bo")};
  file.originals.KeepStudent(1, *qz::FindStudentField("first-name"), "Łukasz");
  file.record.assignments.resize(2);
  qz::AssignmentRecord& first = file.record.assignments[0];
  first.name = "\"\x8E\", \xD0";
  first.pointsPossible = 1234567;
  first.results = {_Results(1, {2.675}, "\"b\", c"), _Results(2, {1e6}, "?"), _Results(3, {9})};
  file.originals.KeepResponse(0, 1, 0, "Ł");
  first.questions.resize(2);
  first.questions[0].questionID = 1;
  first.questions[0].answer = std::string("?");
  first.questions[0].pointsPossible = 2.5;
  file.originals.KeepQuestion(0, 0, qz::QuestionText::kAnswer, "Ź");
  qz::AssignmentRecord& second = file.record.assignments[1];
  second.name = "Quiz 2";
  second.id = 2;
  second.pointsPossible = 3;
  second.results = {_Results(2, {0.1, 0.2}), _Results(4, {std::numeric_limits<double>::infinity()})};
  return file;
}

std::string _Written(ClassFile file, const ExportChoices& choices) {
  const std::unique_ptr<Session> session = MakeSession(*choices.format);
  *session->GetClass() = std::move(file.record);
  EXPECT_EQ(Apply(choices, session.get()).fault, ChoiceFault::kNone);
  const ExportSubject subject = MakeExportSubject(choices, *session, file.originals);
  const std::string path = TestPath("current.csv").string();
  const FileOutcome outcome = WriteCurrentExport(subject, path);
  EXPECT_TRUE(outcome.begun);
  EXPECT_EQ(outcome.error, 0);

  // Blocks of many lines, so that the disk is full before the last one, too.
  std::FILE* full = std::fopen("/dev/full", "w");
  EXPECT_EQ(WriteCurrentExport(subject, full).error, ENOSPC);
  std::fclose(full);
  return ReadFile(path);
}

ExportChoices _Choices(const char* format, qz::UserIDField identifier, char delimiter = ',') {
  ExportChoices choices;
  choices.format = FindFormat(format);
  choices.identifier = identifier;
  choices.dialect = Dialect::kCurrent;
  choices.delimiter = delimiter;
  return choices;
}

#define BOM "\xEF\xBB\xBF"

TEST(CurrentFile, HasWhatEachSystemTakes) {
  using enum qz::UserIDField;
  const struct {
    const char* name;
    const char* format;
    qz::UserIDField identifier;
    char delimiter;
    const char* expected;
  } rows[] = {
      {"Canvas", "canvas", kUserIDStudentID, ',',
       R"("Student","ID","SIS User ID","SIS Login ID","Section","""é"", –","Quiz 2"
"    Points Possible",,,,,1234567,3
"Ann ""A"" Smith, Jr.",,"0012","asmith",,2.675,
"Łukasz Nowák",,"1;2",,,1000000,0.3
"Bo Lee",,"7","bo",,,
)"},
      {"Canvas by the login, semicolons", "canvas", kUserIDAlias, ';',
       R"("Student";"ID";"SIS User ID";"SIS Login ID";"Section";"""é"", –";"Quiz 2"
"    Points Possible";;;;;1234567;3
"Ann ""A"" Smith, Jr.";;"0012";"asmith";;2.675;
"Cy ";;;"cy";;9;
"Bo Lee";;"7";"bo";;;
)"},
      {"Moodle", "moodle", kUserIDStudentID, ',',
       R"("User ID","""é"", –","Quiz 2"
"0012",2.675,-
"1;2",1000000,0.3
"7",-,-
)"},
      {"Sakai, in ISO-8859-1", "sakai", kUserIDStudentID, ',',
       "\"Student ID\",\"Student Name\",\"\"\"\xE9\"\", ? [1234567]\",\"Quiz 2 [3]\"\n"
       "\"0012\",\"Smith, Jr. Ann \"\"A\"\"\",2.68,\n"
       "\"1;2\",\"Now\xE1k ?ukasz\",1000000,0.3\n"
       "\"7\",\"Lee Bo\",,\n"},
      {"Sakai with decimal commas", "sakai", kUserIDLastName, ';',
       "\"Student ID\";\"Student Name\";\"\"\"\xE9\"\", ? [1234567]\";\"Quiz 2 [3]\"\n"
       "\"Smith, Jr.\";\"Smith, Jr. Ann \"\"A\"\"\";2,68;\n"
       "\"Now\xE1k\";\"Now\xE1k ?ukasz\";1000000;0,3\n"
       "\"Lee\";\"Lee Bo\";;\n"},
      {"Brightspace", "d2l", kUserIDStudentID, ',',
       BOM R"("OrgDefinedId","""é"", – Points Grade","Quiz 2 Points Grade","End-of-Line Indicator"
"#0012",2.675,,"#"
"1;2",1000000,0.3,"#"
"#7",,,"#"
)"},
      {"Blackboard", "blackboard91", kUserIDFirstName, ',',
       BOM
       R"("Last Name","First Name","Username","Student ID","Last Access","Availability","Weighted Total",)"
       R"("""é"", – [Pts: 1234567 Weight:: 0% Category:: Quiz]","Quiz 2 [Pts: 3 Weight:: 0% Category:: Quiz]",)"
       R"("Running Total [Pts: 1234570]"
"Smith, Jr.","Ann ""A""","Ann ""A""","0012","","Yes","Not Applicable","2.675","-","2.675"
"Nowák","Łukasz","Łukasz","1;2","","Yes","Not Applicable","1000000","0.3","1000000.3"
"","Cy","Cy","","","Yes","Not Applicable","9","-","9"
"Lee","Bo","Bo","7","","Yes","Not Applicable","-","-","-"
)"},
      {"Schoology", "schoology", kUserIDStudentID, ',',
       R"("User Unique ID","""é"", –","Quiz 2"
"0012","2.675",""
"1;2","1000000","0.3"
"7","",""
)"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(_Written(_SmallClass(), _Choices(row.format, row.identifier, row.delimiter)), row.expected);
  }
}

TEST(CurrentFile, OfTheReportHasTheClassicFilesCells) {
  ClassFile file = _SmallClass();
  file.record.customLabels[0] = std::string("?");
  file.originals.KeepLabel(0, "Łabel");
  ExportChoices choices = _Choices("detailed", qz::kUserIDAlias, ';');
  choices.assignmentIDs = {0};
  choices.report = {.fields = 0x802, .options = {true, true, true, true, true}};
  EXPECT_EQ(_Written(file, choices), BOM R"("First name";"Łabel";1;;2;
;;"Ź";2,5;"";0
"Ann ""A""";;"*""b"", c";2,675;;
"Łukasz";;"*Ł";1000000;;
"Cy";;"*";9;;
"Bo";;;;;
)");
}

// Every format that has one, and the detailed report with everything.
TEST(CurrentFile, GoldenFiles) {
  for (const FormatRow& format : FormatTable()) {
    SCOPED_TRACE(format.key);
    const std::string key = format.key;
    ASSERT_EQ(FindCurrentFile(format) == nullptr, key == "webct" || key == "blackboard6" || key == "angel");
    if (FindCurrentFile(format) == nullptr) continue;
    ExportChoices choices = _Choices(format.key, format.defaultUserIDField);
    if (format.IsReport()) {
      choices.assignmentIDs = {306};
      choices.report = {.fields = 0x7FFF, .options = {true, true, true, true, true}};
    }
    ClassFile file = ReadClassFile(SAMPLES "/secondary-school.xml");
    ASSERT_TRUE(file.IsRead());
    ExpectGolden("secondary-school." + key + "-current", _Written(std::move(file), choices));
  }
}

}  // namespace
