#include "Filters/GX_StdCsv/FormatTable.h"

#include <algorithm>
#include <iterator>

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

// Hosts keep the index, so the order is fixed. Both later Blackboard formats share one Spanish name.
// clang-format off
constexpr FormatRow kFormats[] = {
    {0, "webct", "Assignment Results for WebCT Vista", 70442,
     "WebCT User ID", kUserIDAlias, false, _Make<SessionWebCT>},
    {1, "blackboard6", "Assignment Results for Blackboard 6.0 - 7.0", 70443,
     "Blackboard User Name", kUserIDAlias, false, _Make<SessionBlackboard>},
    {2, "angel", "Assignment Results for ANGEL", 70445,
     "ANGEL User ID", kUserIDAlias, false, _Make<SessionANGEL>},
    {kDetailedResultsFormat, "detailed", "Detailed Results as Text", 70446,
     nullptr, kUserIDAlias, false, _Make<SessionEnhancedText>},
    {4, "blackboard8", "Assignment Results for Blackboard 8.0 - 9.0", 70444,
     "Blackboard User Name", kUserIDAlias, true, _Make<SessionBlackboard9>},
    {5, "blackboard91", "Assignment Results for Blackboard Learn 9.1", 70444,
     "Blackboard Learn 9.1 Username", kUserIDStudentID, true, _Make<SessionBlackboard91>},
    {6, "canvas", "Assignment Results for Canvas", 0,
     "Canvas User ID", kUserIDStudentID, false, _Make<SessionCanvas>},
    {7, "d2l", "Assignment Results for Brightspace by D2L", 0,
     "Brightspace by D2L Username", kUserIDCustom1, false, _Make<SessionD2L>},
    {8, "moodle", "Assignment Results for Moodle 3.1.2", 0,
     "Moodle Student ID", kUserIDCustom1, false, _Make<SessionMoodle>},
    {9, "schoology", "Assignment Results for Schoology", 0,
     "Schoology User ID", kUserIDStudentID, false, _Make<SessionSchoology>},
    {10, "sakai", "Assignment Results for Sakai", 0,
     "Sakai Student ID", kUserIDStudentID, false, _Make<SessionSakai>},
};
// clang-format on

}  // namespace

std::span<const FormatRow> FormatTable() {
  return kFormats;
}

const FormatRow* FindFormat(uint32_t index) {
  return index < std::size(kFormats) ? &kFormats[index] : nullptr;
}

const FormatRow* FindFormat(std::string_view key) {
  const auto* found = std::find_if(std::begin(kFormats), std::end(kFormats),
                                   [key](const FormatRow& row) { return row.key == key; });
  return found == std::end(kFormats) ? nullptr : found;
}
