#include "Common/QZXMLParse/QZClassParse.h"

#include <algorithm>
#include <array>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

#include "Common/QZXMLParse/QZClassParseContext.h"
#include "Common/QZXMLParse/QZClassParseHandlers.h"
#include "Common/QZXMLParse/gxml.h"

namespace {

// Resolves a slash-separated element path to element ids. Returns their number, 0 when a part is unknown.
int32_t _ConvertElementPath(int32_t* ids, int32_t maximum, std::string_view path) {
  int32_t count = 0;
  while (!path.empty() && count < maximum) {
    const size_t slash = path.find('/');
    const std::string name(path.substr(0, slash));
    path.remove_prefix(slash == std::string_view::npos ? path.size() : slash + 1);
    ids[count] = XmlElementFindElementID(ids, count, name.c_str());
    if (ids[count] == kElementUnknown) return 0;
    ++count;
  }
  return count;
}

// Has `handler` called at the end of every element at the path.
bool _SetCallback(std::string_view path, XmlParserHandler handler) {
  std::array<int32_t, kMaximumDepth> ids{};
  const int32_t count = _ConvertElementPath(ids.data(), kMaximumDepth, path);
  if (count < 1) return false;
  XmlElementSetUserData(ids.data(), count - 1, ids[static_cast<size_t>(count) - 1],
                        reinterpret_cast<intptr_t>(handler));
  return true;
}

void _SetCallbacks() {
  XmlElementClearAllUserData();
  _SetCallback("class/class-name", _HandleClassName);
  _SetCallback("class/preferences", _HandlePreferences);
  _SetCallback("class/student-list/student", _HandleStudent);
  _SetCallback("class/assignment-list/assignment", _HandleAssignment);

  // The parts of an assignment are taken as they end, so that no more than one of them is ever in the tree.
  _SetCallback("class/assignment-list/assignment/question-list", _HandleQuestionList);
  _SetCallback("class/assignment-list/assignment/question-list/question", _HandleQuestion);
  _SetCallback("class/assignment-list/assignment/results-list", _HandleResultsList);
  _SetCallback("class/assignment-list/assignment/results-list/results", _HandleResults);
  _SetCallback("class/assignment-list/assignment/results-list/results/response-list", _HandleResponseList);
  _SetCallback("class/assignment-list/assignment/results-list/results/response-list/response",
               _HandleResponse);
}

std::mutex gTablesMutex;
size_t gParses = 0;  // that use the tables

// The element tables with the reader's handlers: set up by the first of the parses that run at once, and left
// alone until none does any more.
class SharedTables {
 public:
  SharedTables() {
    const std::lock_guard lock(gTablesMutex);
    if (gParses == 0) _SetCallbacks();
    ++gParses;
  }
  ~SharedTables() {
    const std::lock_guard lock(gTablesMutex);
    --gParses;
  }
  SharedTables(const SharedTables&) = delete;
  SharedTables& operator=(const SharedTables&) = delete;
};

// Without what was kept of a record that a fault cut off.
void _DropUnfinished(const cXmlParserContext& context, qz::OriginalTexts* originals) {
  originals->DropStudent(context.NextStudent());
  originals->DropAssignment(context.NextAssignment());
}

}  // namespace

bool QZClassParse(qz::ClassRecord* record, std::istream& stream, QZClassParseReport* report) {
  const SharedTables tables;
  qz::OriginalTexts* originals = report == nullptr ? nullptr : report->originals;
  cXmlParserContext context(record, originals);
  const bool parsed = context.ProcessFile(stream);
  if (originals != nullptr && context.Report().reason != nullptr) _DropUnfinished(context, originals);
  // Files give no sort key. Equal keys may come out in any order; file order is what a teacher expects.
  std::stable_sort(record->assignments.begin(), record->assignments.end(), qz::AssignmentLess());
  if (report != nullptr) *report = std::move(context.Report());
  return parsed;
}
