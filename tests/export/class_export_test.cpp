// One class from its choices to its file: what stands in the way, and in which order.
#include "Export/ClassExport.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

ExportChoices _Choices(Dialect dialect) {
  ExportChoices choices;
  choices.format = FindFormat("canvas");
  choices.dialect = dialect;
  choices.identifier = choices.format->defaultUserIDField;
  return choices;
}

// Students with these ids, and one assignment.
ClassFile _Class(const std::vector<std::string>& ids, const std::string& title) {
  std::string text = "<class><student-list>";
  for (const std::string& id : ids) text += "<student><student-id>" + id + "</student-id></student>";
  text += "</student-list><assignment-list><assignment id=\"7\"><assignment-name>" + title;
  std::istringstream stream(text + "</assignment-name></assignment></assignment-list></class>");
  return ReadClassFile(stream, "-");
}

TEST(ClassExport, FindsTheFirstObstacle) {
  const Dialect classic = Dialect::kClassic;
  const Dialect current = Dialect::kCurrent;
  const struct {
    const char* name;
    Dialect dialect;
    std::vector<std::string> ids;
    const char* title;
    ExportRules rules;
    ExportObstacle obstacle;
    size_t students;  // in the file
  } rows[] = {
      {"clean", classic, {"a", "b"}, "Quiz", {}, ExportObstacle::kNone, 2},
      {"trouble", classic, {"a", "b"}, "Quiz, 2", {}, ExportObstacle::kNone, 2},
      {"strict", classic, {"a", "b"}, "Quiz, 2", {.strict = true}, ExportObstacle::kTrouble, 2},
      {"shared before trouble",
       classic,
       {"a", "a"},
       "Quiz, 2",
       {.strict = true},
       ExportObstacle::kIdentifiers,
       2},
      {"shared, forced", classic, {"a", "a"}, "Quiz", {.force = true}, ExportObstacle::kNone, 2},
      {"two without id", classic, {"a", "", ""}, "Quiz", {}, ExportObstacle::kIdentifiers, 3},
      {"two without id, left out", current, {"a", "", ""}, "Quiz", {}, ExportObstacle::kNone, 1},
      {"nobody has one", current, {"", ""}, "Quiz", {}, ExportObstacle::kIdentifiers, 0},
      {"lost letters", classic, {"\u0141", "\u0142"}, "Quiz", {}, ExportObstacle::kIdentifiers, 2},
      {"letters kept", current, {"\u0141", "\u0142"}, "Quiz", {}, ExportObstacle::kNone, 2},
      {"letters shared", current, {"\u0141", "\u0141"}, "Quiz", {}, ExportObstacle::kIdentifiers, 2},
  };
  for (const auto& row : rows) {
    const ClassExport exporting(_Class(row.ids, row.title), _Choices(row.dialect), row.rules);
    EXPECT_EQ(exporting.Obstacle(), row.obstacle) << row.name;
    EXPECT_EQ(exporting.Counts().students, row.students) << row.name;
    EXPECT_EQ(exporting.Counts().assignments, 1) << row.name;
  }
}

TEST(ClassExport, TellsWhatIsKnownOfAClassThatDoesNotFit) {
  std::istringstream broken("<class>");
  const ClassExport unread(ReadClassFile(broken, "-"), _Choices(Dialect::kClassic), {});
  EXPECT_EQ(unread.Obstacle(), ExportObstacle::kClassFile);
  EXPECT_EQ(unread.File().fault.line, 1);

  ExportChoices choices = _Choices(Dialect::kClassic);
  choices.assignmentIDs = {8};
  const ClassExport unknown(_Class({"a"}, "Quiz"), choices, {});
  EXPECT_EQ(unknown.Obstacle(), ExportObstacle::kChoices);
  EXPECT_EQ(unknown.Applied().unknownID, 8);
  EXPECT_EQ(unknown.Texts().AssignmentName(0), "Quiz");
}

TEST(ClassExport, WritesTheChosenDialect) {
  for (const auto& [dialect, heading] : {std::pair{Dialect::kClassic, "Student,ID,Section"},
                                         std::pair{Dialect::kCurrent, R"("Student","ID","SIS User ID")"}}) {
    ClassExport exporting(_Class({"a"}, "Quiz"), _Choices(dialect), {});
    char* text = nullptr;
    size_t size = 0;
    std::FILE* stream = open_memstream(&text, &size);
    EXPECT_EQ(exporting.Write(stream).error, 0);
    std::fclose(stream);
    EXPECT_EQ(std::string(text, size).rfind(heading, 0), 0U) << text;
    std::free(text);
  }
}

}  // namespace
