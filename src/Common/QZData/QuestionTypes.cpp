#include "Common/QZData/QuestionTypes.h"

#include <iterator>

#include "Common/QZData/QZClass.h"
#include "Common/asciicase.h"

namespace qz {

constexpr const char* kQuestionTypeNames[14] = {"TF", "MTF", "MC", "MR", "BI", "YN", "NR",
                                                "CO", "MA",  "SA", "PR", "ES", "CA", "OT"};
static_assert(std::size(kQuestionTypeNames) == kQuestionOT + 1);

int32_t FindQuestionType(std::string_view abbreviation) {
  for (int32_t type = 0; type <= kQuestionOT; ++type) {
    if (AsciiEqualNoCase(kQuestionTypeNames[type], abbreviation)) return type;
  }
  return -1;
}

}  // namespace qz
