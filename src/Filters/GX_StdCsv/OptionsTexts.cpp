#include "Filters/GX_StdCsv/OptionsTexts.h"

#include "Common/Language.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Filters/GX_StdCsv/QZLoadString.h"
#include "Toolkit/Alert.h"

namespace {

struct Row {
  uint32_t formatIndex;
  OptionsTexts texts;
};

#define IDENTIFY(idName) "Identify the Gradix student information field that corresponds to the " idName
#define NOT_ENTERED(system, where) \
  system " will not process data for any student that is not already entered in the " where "."

constexpr char kBlackboardPrompt[] =
    IDENTIFY("Blackboard User Name") ".  The Blackboard gradebook will not process data for any user name that is not "
    "enrolled as a user in the Learning System course.";
constexpr char kUserID[] = "Extract User ID from:";
constexpr char kUserName[] = "Extract User Name from:";
constexpr char kUsername[] = "Extract Username from:";
constexpr char kStudentID[] = "Extract Student ID from:";

// clang-format off
constexpr Row kRows[] = {
    {0, {"WebCT User ID", kUserID,
         IDENTIFY("WebCT User ID") ".  " NOT_ENTERED("WebCT", "Grade Book"),
         224, "WebCT", "User ID", 70372, 70373, 70352, false, false}},
    {1, {"Blackboard User Name", kUserName, kBlackboardPrompt,
         223, "Blackboard", "User Name", 70374, 70375, 70378, true, false}},
    {2, {"ANGEL User ID", kUserID,
         IDENTIFY("ANGEL User ID") ".  " NOT_ENTERED("ANGEL", "Gradebook"),
         222, "ANGEL", "User ID", 70376, 70377, 70352, false, false}},
    {4, {"Blackboard User Name", kUserName, kBlackboardPrompt,
         223, "Blackboard", "User Name", 70374, 70375, 70378, true, true}},
    {5, {"Blackboard Learn 9.1 Username", kUsername,
         IDENTIFY("Blackboard Learn 9.1 Username") ". " NOT_ENTERED("Blackboard Learn 9.1", "Results Center"),
         223, "Blackboard Learn 9.1", "Username", 0, 0, 0, true, true}},
    {6, {"Canvas User ID", kUserID,
         IDENTIFY("Canvas Secondary ID") ". " NOT_ENTERED("Canvas", "Gradebook"),
         226, "Canvas", "User ID", 0, 0, 0, false, false}},
    {7, {"Brightspace by D2L Username", kUsername,
         IDENTIFY("Brightspace by D2L Username") ". " NOT_ENTERED("Brightspace by D2L", "grade book"),
         227, "Brightspace by D2L", "Username", 0, 0, 0, false, false}},
    {8, {"Moodle Student ID", kStudentID,
         IDENTIFY("Moodle student email address") ". " NOT_ENTERED("Moodle", "Grader Report"),
         228, "Moodle", "Student ID", 0, 0, 0, false, false}},
    {9, {"Schoology User ID", kUserID,
         IDENTIFY("Schoology User ID") ". " NOT_ENTERED("Schoology", "Gradebook"),
         229, "Schoology", "User ID", 0, 0, 0, false, false}},
    {10, {"Sakai Student ID", kStudentID,
          IDENTIFY("Sakai Student ID") ". " NOT_ENTERED("Sakai", "Gradebook"),
          230, "Sakai", "Student ID", 0, 0, 0, false, false}},
};
// clang-format on

}  // namespace

const OptionsTexts* FindOptionsTexts(uint32_t formatIndex) {
  for (const Row& row : kRows) {
    if (row.formatIndex == formatIndex) return &row.texts;
  }
  return nullptr;
}

int32_t DefaultUserIDRow(uint32_t formatIndex) {
  const FormatRow* format = FindFormat(formatIndex);
  return (format == nullptr ? qz::kUserIDAlias : format->defaultUserIDField) - 1;
}

namespace {

// The string tables are the host's: what they hold is checked while it is filled in.
std::string _Format(int spanishID, const char* english, std::initializer_list<AlertArgument> arguments) {
  return ExpandAlertText(IsSpanish() ? QZLoadString(spanishID) : std::string(english),
                         {arguments.begin(), arguments.size()});
}

}  // namespace

std::string SomeEmptyMessage(const OptionsTexts& texts, size_t empty, size_t students) {
  return _Format(
      70063,
      "The selected %s %s field is empty for %d of %d students. Student records missing a valid %s %s "
      "will not be imported into %s.",
      {texts.nameWord, texts.idWord, static_cast<int64_t>(empty), static_cast<int64_t>(students),
       texts.nameWord, texts.idWord, texts.nameWord});
}

std::string AllEmptyMessage(const OptionsTexts& texts) {
  return _Format(70064,
                 "The selected %s %s field is empty for all students. No student results can be exported.",
                 {texts.nameWord, texts.idWord});
}

std::string SavedMessage(int spanishID, const std::string& path) {
  return _Format(spanishID, "Assignment results have been saved in %s.", {Utf8Text{path}});
}
