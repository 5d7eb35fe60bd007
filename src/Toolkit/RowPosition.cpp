#include "Toolkit/RowPosition.h"

#include <algorithm>
#include <string_view>

#include "Common/asciicase.h"

namespace {

// By the values of the bytes.
bool _LessNoCase(std::string_view a, std::string_view b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return static_cast<uint8_t>(AsciiLower(x)) < static_cast<uint8_t>(AsciiLower(y));
  });
}

}  // namespace

int32_t ResolveRowPosition(int32_t position, const char* text, int32_t count,
                           std::string (*textOf)(void* rows, int32_t row), void* rows) {
  if (position == kRowTop) return 0;
  if (position == kRowLast) return count;
  if (position == kRowSorted) {
    const std::string_view wanted = text != nullptr ? text : "";
    int32_t row = 0;
    while (row < count && !_LessNoCase(wanted, textOf(rows, row))) ++row;
    return row;
  }
  return std::clamp(position, 0, count);
}
