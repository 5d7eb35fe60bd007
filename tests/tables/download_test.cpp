// Downloaded gradebooks: whose they are, what their columns and rows mean, and why some are of no use.
#include "Systems/Download.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "Common/number.h"
#include "Systems/LearningSystem.h"
#include "Systems/Systems.h"

namespace {

using namespace std::string_literals;

// The columns, apart by "|": i identifier, n name, k kept in the upload, s scores, r read only, o other. With
// the titles of items, other titles behind "~" and the points behind "/".
std::string _Columns(const Gradebook& gradebook) {
  std::string text;
  for (const DownloadColumn& column : gradebook.columns) {
    text.append(text.empty() ? "" : "|").append(1, "inksro"[static_cast<size_t>(column.role)]);
    if (column.role != ColumnRole::kItem) continue;
    text.append(" ").append(column.title);
    if (!column.otherTitle.empty()) text.append("~").append(column.otherTitle);
    if (column.pointsPossible) text.append("/").append(PlainNumber(*column.pointsPossible));
  }
  return text;
}

// The members with the first identifier and the scores: "Anna Bell u1 7.5 ! -".
std::string _Members(const Gradebook& gradebook) {
  std::string text;
  for (const CourseMember& member : gradebook.members) {
    text.append(text.empty() ? "" : "; ").append(member.name);
    bool hasIdentifier = false;
    for (size_t i = 0; i < gradebook.columns.size(); ++i) {
      const ColumnRole role = gradebook.columns[i].role;
      if (role == ColumnRole::kIdentifier && !std::exchange(hasIdentifier, true)) {
        text.append(" ").append(gradebook.Identifier(member, i));
      }
      if (role != ColumnRole::kItem) continue;
      const auto score = gradebook.Score(member.row, i);
      text.append(" ").append(score                               ? gradebook.ScoreText(*score)
                              : gradebook.HasScore(member.row, i) ? "!"
                                                                  : "-");
    }
  }
  return text;
}

struct Row {
  const char* name;
  std::string bytes;
  const LearningSystem* chosen;  // null: the headings tell
  const LearningSystem* system;
  const char* columns;
  const char* members;
};

const Row kRows[] = {
    {"Canvas",
     "Student,ID,SIS User ID,SIS Login ID,Section,Notes,Quiz 1 (301),Essay (two) (302),Odd (303),Current "
     "Score,Final Grade\n"
     ",,,,,,Manual Posting,,,,\n"
     "    Points Possible,,,,,,10,12.5,(read only),(read only),(read only)\n"
     "\"Bell, Anna\",11,u1,anna,A,nice,7.50,EX,1,88,B\n"
     "\"=\"\"=Sum, Ada\"\"\",12,\"=\"\"007\"\"\",ada,A,,N/A\n"
     "\"Student, Test\",13,,,A\n",
     nullptr, &kCanvasSystem, "n|k|i|i|k|o|s Quiz 1/10|s Essay (two)/12.5|r|r|r",
     "Anna Bell u1 7.5 !; Ada =Sum 007 - -; Test Student  - -"},
    {"Canvas, names apart, semicolons, decimal commas, no points",
     "LastName;FirstName;ID;SIS User ID;Section;Quiz, 1 (301);Quizzes Unposted Final Score\n"
     "Bell;Anna;11;u1;A;7,5;88,1\n",
     nullptr, &kCanvasSystem, "n|n|k|i|k|s Quiz, 1|r", "Anna Bell u1 7,5"},
    {"Moodle",
     "First name,Last name,ID number,Email address,Quiz: Rivers (Real),Quiz: Rivers (Percentage),"
     "Rivers (two) (Real),Unit 3: Essay (Real),Essay (Letter),Essay (Feedback),Unit 1 total (Real),"
     "Course total (Real),Last downloaded from this course\n"
     "Anna,Bell,007,a@x,7.50,75.00 %,-,-,A,Good,8.00,15.50,1700000000\n",
     nullptr, &kMoodleSystem, "n|n|i|i|s Quiz: Rivers~Rivers|o|s Rivers (two)|s Unit 3: Essay|o|o|r|r|o",
     "Anna Bell 007 7.5 - -"},
    {"Moodle in Spanish",
     "Nombre\tApellido(s)\tNúmero de ID\tTarea: Ríos (Real)\tTarea: Ríos (Retroalimentación)\t"
     "Total del curso (Real)\nAna\tPáez\t7\t8,50\t\t8,50\n",
     nullptr, &kMoodleSystem, "n|n|i|s Tarea: Ríos~Ríos|o|r", "Ana Páez 7 8,5"},
    {"Moodle in another language",
     "Vorname;Nachname;ID-Nummer;Test: Flüsse (Punkte);Test: Flüsse (Prozentsatz);Aufsatz (Punkte)\n"
     "Ada;Weiß;7;8,50;85 %;-\n",
     &kMoodleSystem, &kMoodleSystem, "i|i|i|s Test: Flüsse~Flüsse|o|s Aufsatz", "Ada Weiß Ada 8,5 -"},
    {"Sakai",
     "\"Student ID\",\"Name\",\"# Student Number\",\"Quiz 1 [10]\",\"* Quiz 1\",\"# Test [5]\",\"# Course "
     "Grade\"\r\n"
     "\"anna\",\"Bell, Ren\xE9\",\"7\",\"7.5\",\"\",\"5\",\"B\"\r\n",
     nullptr, &kSakaiSystem, "i|n|i|s Quiz 1/10|o|r|r", "René Bell anna 7.5"},
    {"Sakai with decimal commas, without scores", "Student ID;Name;Quiz [1] [12,5]\r\nanna;Bell\r\n", nullptr,
     &kSakaiSystem, "i|n|s Quiz [1]/12.5", "Bell anna -"},
    {"Sakai in another language", "ID;Nombre;Quiz [10]\r\nanna;Bell, Anna;9,999\r\n", &kSakaiSystem,
     &kSakaiSystem, "i|n|s Quiz/10", "Anna Bell anna 10"},
    {"Blackboard",
     "\"Last Name\"\t\"First Name\"\t\"Username\"\t\"Student ID\"\t\"Last Access\"\t\"Availability\"\t"
     "\"Weighted Total [Total Pts: up to 0 Percentage] |1\"\t\"Total [Total Pts: 20 Score] |2\"\t"
     "\"Quiz 1 [Total Pts: 10 Score] |3\"\t\"Essay [Total Pts: 5 Letter] |4\"\t\"Notes |5\"\t"
     "\"Mean [Total Pts: up to 9 Score] |7\"\t\"Lab [Total Pts: 2.5] |6\"\t\"Mine [Total Pts: 9 Score]\"\r\n"
     "\"Bell\"\t\"Anna\"\t\"anna\"\t\"7\"\t\"\"\t\"Yes\"\t\"80\"\t\"16\"\t\"7."
     "5\"\t\"A\"\t\"x\"\t\"2\"\t\"\"\t\"1\"\r\n",
     nullptr, &kBlackboardSystem, "n|n|i|i|o|o|r|r|s Quiz 1/10|o|o|r|s Lab/2.5|o", "Anna Bell anna 7.5 -"},
    {"Brightspace",
     "OrgDefinedId,Username,Last Name,First Name,Email,Quiz 1 Points Grade <Numeric MaxPoints:10 Weight:1 "
     "Category:Quizzes CategoryWeight:5>,Essay Text Grade <Text>,Pass Points Grade <PassFail>,"
     "Quizzes Subtotal Numerator,Sum Points Grade <Calculated MaxPoints:5>,Lab Points Grade,"
     "Calculated Final Grade Numerator,End-of-Line Indicator\n"
     "#007,#anna,Bell,Anna,a@x,7.5,fine,1,7,2,,9,#\n",
     nullptr, &kBrightspaceSystem, "i|i|n|n|i|s Quiz 1/10|o|o|r|r|s Lab|r|k", "Anna Bell 007 7.5 -"},
};

std::string _Utf16(const std::string& ascii) {
  std::string bytes = "\xFF\xFE";
  for (const char character : ascii) bytes.append(1, character).append(1, '\0');
  return bytes;
}

TEST(Download, IsUnderstood) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    const bool isAscii = row.system == &kBlackboardSystem;  // the one that comes as UTF-16
    for (const std::string& bytes : {row.bytes, isAscii ? _Utf16(row.bytes) : row.bytes}) {
      Gradebook gradebook;
      ASSERT_EQ(ParseGradebook(bytes, row.chosen, &gradebook).reason, "");
      EXPECT_EQ(gradebook.system, row.system);
      EXPECT_EQ(_Columns(gradebook), row.columns);
      EXPECT_EQ(_Members(gradebook), row.members);
    }
  }
}

// What is no number is kept as it is, so nothing else may be taken for one.
TEST(Download, ReadsScores) {
  const struct {
    std::string cell;
    double score;  // -1: none
    bool isMissed;
  } rows[] = {{" 7.5 ", 7.5, true}, {".5", .5, true},   {"5.", 5, true},
              {"+5", 5, true},      {"7,5", -1, true},  {"1.2.3", -1, true},
              {"1e1", -1, true},    {"0x1", -1, true},  {"-", -1, false},
              {".", -1, true},      {"n/a", -1, false}, {"inf", -1, true},
              {"5%", -1, true},     {"", -1, false},    {std::string(400, '9'), -1, true}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.cell);
    Gradebook gradebook;
    const std::string bytes =
        "Student,ID,Section,Quiz (1)\nBell,1,A,\"" + row.cell + "\"\nCole,2,A,1.5\nDrew,3,A,1.5";
    ASSERT_FALSE(ParseGradebook(bytes, nullptr, &gradebook).IsFault());
    EXPECT_EQ(gradebook.Score(1, 3).value_or(-1), row.score);
    EXPECT_EQ(gradebook.HasScore(1, 3), row.isMissed);
  }
}

TEST(Download, NamesNewColumns) {
  const struct {
    const LearningSystem& system;
    const char* title;
  } rows[] = {{kCanvasSystem, "Quiz"},
              {kMoodleSystem, "Quiz"},
              {kSakaiSystem, "Quiz [10]"},
              {kBlackboardSystem, "Quiz"},
              {kBrightspaceSystem, "Quiz Points Grade"}};
  for (const auto& row : rows) EXPECT_EQ(row.system.download->newTitle("Quiz", 10), row.title);
}

TEST(Download, TellsTheFault) {
  const std::string canvas = "Student,ID,SIS User ID,Section,Quiz (1)\n";
  const struct {
    const char* name;
    std::string bytes;
    const LearningSystem* chosen;
    const char* fault;
  } rows[] = {
      {"longer row", canvas + "\"Bell,\nAnna\",1,u,A,2\n\"Cole, B\",2,v,A,3,4\n", nullptr,
       "4: the row has 6 cells; expected 5 as in the headings"},
      {"cut row", canvas + "\"Bell, Anna\",1,u\n", nullptr,
       "2: the row has 3 cells; expected 5 as in the headings"},
      {"no end of line", "Username,Quiz Points Grade,End-of-Line Indicator\n#anna,7\n", nullptr,
       "2: the row has 2 cells; expected 3 as in the headings"},
      {"heading twice", "Student,ID,SIS User ID,Section, sis user id ,Quiz (1)\nA,1,u,A,v,2\n", nullptr,
       "1: the heading \"sis user id\" stands there twice"},
      {"no students", canvas + "    Points Possible,,,,10\n", nullptr,
       "0: the gradebook has headings, but no students"},
      {"no points", "First name,Last name,Quiz (Percentage)\nA,B,5 %\n", nullptr,
       "1: no column has points; download the gradebook with grades of the type \"Real\""},
      {"another system's", "Student ID,Name,Quiz [10]\nanna,Bell,7\n", &kCanvasSystem,
       "1: not a gradebook downloaded from Canvas; expected the headings of Canvas: \"Student\", \"ID\", ... "
       "\"Section\"; found \"Student ID\", \"Name\", \"Quiz [10]\", as in a gradebook of Sakai"},
      {"nobody's", "\r\n\xE9,\"b\nb\",0123456789012345678901234567890123456789012,d,e\n", nullptr,
       "2: unknown gradebook; expected the headings of Canvas: \"Student\", \"ID\", ... \"Section\"; Moodle: "
       "\"First name\", ... \"(Real)\" behind the titles; Blackboard: \"Last Name\", \"First Name\", "
       "\"Username\", ... \"Availability\"; Brightspace: \"OrgDefinedId\" or \"Username\", ... \"End-of-Line "
       "Indicator\"; Sakai: \"Student ID\", \"Name\"; found \"é\", \"b b\", "
       "\"0123456789012345678901234567890123456789...\", \"d\", ..."},
      {"not Canvas's encoding", canvas + "\"B\xE9ll, Anna\",1,u,A,2\n", nullptr,
       "2: the text is not UTF-8 as expected; another program may have saved the file anew"},
      {"a system without download", canvas, &kSchoologySystem,
       "0: gradebooks downloaded from Schoology cannot be read"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Gradebook gradebook;
    const TableFault fault = ParseGradebook(row.bytes, row.chosen, &gradebook);
    EXPECT_EQ(std::to_string(fault.line) + ": " + fault.reason, row.fault);
    EXPECT_TRUE(gradebook.members.empty());
  }
}

}  // namespace
