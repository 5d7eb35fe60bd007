#include "Filters/GX_StdCsv/FormatTable.h"

#include <algorithm>
#include <iterator>

#include "Common/asciicase.h"
#include "Filters/GX_StdCsv/formats/ANGEL.h"
#include "Filters/GX_StdCsv/formats/Blackboard.h"
#include "Filters/GX_StdCsv/formats/Canvas.h"
#include "Filters/GX_StdCsv/formats/D2L.h"
#include "Filters/GX_StdCsv/formats/EnhancedText.h"
#include "Filters/GX_StdCsv/formats/Moodle.h"
#include "Filters/GX_StdCsv/formats/Sakai.h"
#include "Filters/GX_StdCsv/formats/Schoology.h"
#include "Filters/GX_StdCsv/formats/WebCT.h"

namespace {

using qz::kUserIDAlias;
using qz::kUserIDCustom1;
using qz::kUserIDStudentID;

template <typename FormatSession>
std::unique_ptr<Session> _Make(const QZEXPORTBEGIN* begin) {
  return std::make_unique<FormatSession>(begin);
}

constexpr char kBlackboardPrompt[] =
    "Identify the Gradix student information field that corresponds to the Blackboard User Name.  "
    "The Blackboard gradebook will not process data for any user name that is not enrolled as a user in the "
    "Learning System course.";

// Hosts keep the index, so the order is fixed: a new format comes last.
constexpr FormatRow kFormats[] = {
    {
        .index = 0,
        .key = "webct",
        .name = "Assignment Results for WebCT Vista",
        .spanishNameID = 70442,
        .make = _Make<SessionWebCT>,
        .layout = &kWebCT,
        .idName = "WebCT User ID",
        .defaultUserIDField = kUserIDAlias,
        .popupLabel = "Extract User ID from:",
        .prompt =
            "Identify the Gradix student information field that corresponds to the WebCT User ID.  "
            "WebCT will not process data for any student that is not already entered in the Grade Book.",
        .nameWord = "WebCT",
        .idWord = "User ID",
        .helpTopic = 224,
        .spanishIDName = 70372,
        .spanishPrompt = 70373,
        .spanishPopupLabel = 70352,
    },
    {
        .index = 1,
        .key = "blackboard6",
        .name = "Assignment Results for Blackboard 6.0 - 7.0",
        .spanishNameID = 70443,
        .make = _Make<SessionBlackboard>,
        .layout = &kBlackboard,
        .isBlackboard = true,
        .idName = "Blackboard User Name",
        .defaultUserIDField = kUserIDAlias,
        .popupLabel = "Extract User Name from:",
        .prompt = kBlackboardPrompt,
        .nameWord = "Blackboard",
        .idWord = "User Name",
        .helpTopic = 223,
        .spanishIDName = 70374,
        .spanishPrompt = 70375,
        .spanishPopupLabel = 70378,
    },
    {
        .index = 2,
        .key = "angel",
        .name = "Assignment Results for ANGEL",
        .spanishNameID = 70445,
        .make = _Make<SessionANGEL>,
        .layout = &kANGEL,
        .idName = "ANGEL User ID",
        .defaultUserIDField = kUserIDAlias,
        .popupLabel = "Extract User ID from:",
        .prompt = "Identify the Gradix student information field that corresponds to the ANGEL User ID.  "
                  "ANGEL will not process data for any student that is not already entered in the Gradebook.",
        .nameWord = "ANGEL",
        .idWord = "User ID",
        .helpTopic = 222,
        .spanishIDName = 70376,
        .spanishPrompt = 70377,
        .spanishPopupLabel = 70352,
    },
    {
        .index = kDetailedResultsFormat,
        .key = "detailed",
        .name = "Detailed Results as Text",
        .spanishNameID = 70446,
        .make = _Make<SessionEnhancedText>,
        .helpTopic = 225,
    },
    {
        .index = 4,
        .key = "blackboard8",
        .name = "Assignment Results for Blackboard 8.0 - 9.0",
        .spanishNameID = 70444,
        .make = _Make<SessionBlackboard9>,
        .layout = &kBlackboard9,
        .isBlackboard = true,
        .hasUnquotedVariant = kBlackboard9.quotesAreOptional,
        .idName = "Blackboard User Name",
        .defaultUserIDField = kUserIDAlias,
        .popupLabel = "Extract User Name from:",
        .prompt = kBlackboardPrompt,
        .nameWord = "Blackboard",
        .idWord = "User Name",
        .helpTopic = 223,
        .spanishIDName = 70374,
        .spanishPrompt = 70375,
        .spanishPopupLabel = 70378,
    },
    {
        .index = 5,
        .key = "blackboard91",
        .alias = "blackboard",
        .name = "Assignment Results for Blackboard Learn 9.1",
        .spanishNameID = 70444,  // that of 8.0 - 9.0: there is no other
        .make = _Make<SessionBlackboard91>,
        .layout = &kBlackboard9,
        .isBlackboard = true,
        .hasUnquotedVariant = kBlackboard9.quotesAreOptional,
        .idName = "Blackboard Learn 9.1 Username",
        .defaultUserIDField = kUserIDStudentID,
        .popupLabel = "Extract Username from:",
        .prompt =
            "Identify the Gradix student information field that corresponds to the Blackboard Learn 9.1 "
            "Username. Blackboard Learn 9.1 will not process data for any student that is not already "
            "entered in the Results Center.",
        .nameWord = "Blackboard Learn 9.1",
        .idWord = "Username",
        .helpTopic = 223,
    },
    {
        .index = 6,
        .key = "canvas",
        .name = "Assignment Results for Canvas",
        .make = _Make<SessionCanvas>,
        .layout = &kCanvas,
        .idName = "Canvas User ID",
        .defaultUserIDField = kUserIDStudentID,
        .popupLabel = "Extract User ID from:",
        .prompt =
            "Identify the Gradix student information field that corresponds to the Canvas Secondary ID. "
            "Canvas will not process data for any student that is not already entered in the Gradebook.",
        .nameWord = "Canvas",
        .idWord = "User ID",
        .helpTopic = 226,
    },
    {
        .index = 7,
        .key = "d2l",
        .alias = "brightspace",
        .name = "Assignment Results for Brightspace by D2L",
        .make = _Make<SessionD2L>,
        .layout = &kD2L,
        .idName = "Brightspace by D2L Username",
        .defaultUserIDField = kUserIDCustom1,
        .popupLabel = "Extract Username from:",
        .prompt = "Identify the Gradix student information field that corresponds to the Brightspace by D2L "
                  "Username. Brightspace by D2L will not process data for any student that is not already "
                  "entered in the grade book.",
        .nameWord = "Brightspace by D2L",
        .idWord = "Username",
        .helpTopic = 227,
    },
    {
        .index = 8,
        .key = "moodle",
        .name = "Assignment Results for Moodle 3.1.2",
        .make = _Make<SessionMoodle>,
        .layout = &kMoodle,
        .idName = "Moodle Student ID",
        .defaultUserIDField = kUserIDCustom1,
        .popupLabel = "Extract Student ID from:",
        .prompt =
            "Identify the Gradix student information field that corresponds to the Moodle student email "
            "address. "
            "Moodle will not process data for any student that is not already entered in the Grader Report.",
        .nameWord = "Moodle",
        .idWord = "Student ID",
        .helpTopic = 228,
    },
    {
        .index = 9,
        .key = "schoology",
        .name = "Assignment Results for Schoology",
        .make = _Make<SessionSchoology>,
        .layout = &kSchoology,
        .idName = "Schoology User ID",
        .defaultUserIDField = kUserIDStudentID,
        .popupLabel = "Extract User ID from:",
        .prompt =
            "Identify the Gradix student information field that corresponds to the Schoology User ID. "
            "Schoology will not process data for any student that is not already entered in the Gradebook.",
        .nameWord = "Schoology",
        .idWord = "User ID",
        .helpTopic = 229,
    },
    {
        .index = 10,
        .key = "sakai",
        .name = "Assignment Results for Sakai",
        .make = _Make<SessionSakai>,
        .layout = &kSakai,
        .idName = "Sakai Student ID",
        .defaultUserIDField = kUserIDStudentID,
        .popupLabel = "Extract Student ID from:",
        .prompt = "Identify the Gradix student information field that corresponds to the Sakai Student ID. "
                  "Sakai will not process data for any student that is not already entered in the Gradebook.",
        .nameWord = "Sakai",
        .idWord = "Student ID",
        .helpTopic = 230,
    },
};

constexpr bool _IsInOrder() {
  uint32_t index = 0;
  for (const FormatRow& row : kFormats) {
    if (row.index != index++) return false;
  }
  return true;
}
static_assert(_IsInOrder());

bool _IsNamed(const FormatRow& row, std::string_view word) {
  return AsciiEqualNoCase(row.key, word) || (row.alias != nullptr && AsciiEqualNoCase(row.alias, word));
}

}  // namespace

std::span<const FormatRow> FormatTable() {
  return kFormats;
}

const FormatRow* FindFormat(uint32_t index) {
  return index < std::size(kFormats) ? &kFormats[index] : nullptr;
}

const FormatRow* FindFormat(std::string_view word) {
  const auto* found = std::find_if(std::begin(kFormats), std::end(kFormats),
                                   [word](const FormatRow& row) { return _IsNamed(row, word); });
  return found == std::end(kFormats) ? nullptr : found;
}
