// Downloaded gradebooks: whose they are, what their columns and rows mean, and why some are of no use.
#include "Systems/Download.h"

#include <gtest/gtest.h>

#include <string>

#include "Common/number.h"
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
     "Student,ID,SIS User ID,SIS Login ID,Section,Notes,Quiz 1 (301),Essay (two) (302),Current Score,Final "
     "Grade\n"
     ",,,,,,Manual Posting,,,\n"
     "    Points Possible,,,,,,10,12.5,(read only),(read only)\n"
     "\"Bell, Anna\",11,u1,anna,A,nice,7.50,EX,88,B\n"
     "\"=\"\"=Sum, Ada\"\"\",12,\"=\"\"007\"\"\",ada,A,,N/A\n"
     "\"Student, Test\",13,,,A\n",
     nullptr, &kCanvasSystem, "n|k|i|i|k|o|s Quiz 1/10|s Essay (two)/12.5|r|r",
     "Anna Bell u1 7.5 !; Ada =Sum 007 - -; Test Student  - -"},
    {"Canvas, names apart, semicolons, decimal commas, no points",
     "LastName;FirstName;ID;SIS User ID;Section;Quiz, 1 (301);Quizzes Unposted Final Score\n"
     "Bell;Anna;11;u1;A;7,5;88,1\n",
     nullptr, &kCanvasSystem, "n|n|k|i|k|s Quiz, 1|r", "Anna Bell u1 7,5"},
};

TEST(Download, IsUnderstood) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    Gradebook gradebook;
    const TableFault fault = ParseGradebook(row.bytes, row.chosen, &gradebook);
    ASSERT_EQ(fault.reason, "");
    EXPECT_EQ(gradebook.system, row.system);
    EXPECT_EQ(_Columns(gradebook), row.columns);
    EXPECT_EQ(_Members(gradebook), row.members);
  }
}

}  // namespace
