#include "Common/CaseFold.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include "Common/asciicase.h"
#include "Common/xmlutil.h"

namespace {

// Every `step`th character from `first` to `last` folds to the one `distance` behind it.
struct FoldedRange {
  int32_t first;
  int32_t last;
  int32_t step;
  int32_t distance;
};

// In ascending order, from U+0080 on.
constexpr FoldedRange kFoldedRanges[] = {
    // Latin
    {0x00B5, 0x00B5, 1, 0x307},  // micro sign: the Greek letter
    {0x00C0, 0x00D6, 1, 32},
    {0x00D8, 0x00DE, 1, 32},
    {0x0100, 0x012E, 2, 1},
    {0x0132, 0x0136, 2, 1},
    {0x0139, 0x0147, 2, 1},
    {0x014A, 0x0176, 2, 1},
    {0x0178, 0x0178, 1, -0x79},
    {0x0179, 0x017D, 2, 1},
    {0x017F, 0x017F, 1, -0x10C},  // long s
    {0x018F, 0x018F, 1, 0xCA},
    {0x01A0, 0x01A4, 2, 1},
    {0x01AF, 0x01AF, 1, 1},
    {0x01CD, 0x01DB, 2, 1},
    {0x01DE, 0x01EE, 2, 1},
    {0x01F8, 0x021E, 2, 1},
    {0x0222, 0x0232, 2, 1},
    // Greek
    {0x0386, 0x0386, 1, 38},
    {0x0388, 0x038A, 1, 37},
    {0x038C, 0x038C, 1, 64},
    {0x038E, 0x038F, 1, 63},
    {0x0391, 0x03A1, 1, 32},
    {0x03A3, 0x03AB, 1, 32},
    {0x03C2, 0x03C2, 1, 1},  // final sigma
    // Cyrillic
    {0x0400, 0x040F, 1, 80},
    {0x0410, 0x042F, 1, 32},
    {0x0460, 0x0480, 2, 1},
    {0x048A, 0x04BE, 2, 1},
    {0x04C0, 0x04C0, 1, 15},
    {0x04C1, 0x04CD, 2, 1},
    {0x04D0, 0x052E, 2, 1},
    // Armenian
    {0x0531, 0x0556, 1, 48},
    // Latin of Vietnam and others
    {0x1E00, 0x1E94, 2, 1},
    {0x1E9E, 0x1E9E, 1, -0x1DBF},  // sharp s
    {0x1EA0, 0x1EFE, 2, 1},
    {0x2126, 0x2126, 1, -0x1D5D},  // ohm sign: the Greek letter
};

int32_t _Fold(int32_t codePoint) {
  const auto* range =
      std::lower_bound(std::begin(kFoldedRanges), std::end(kFoldedRanges), codePoint,
                       [](const FoldedRange& candidate, int32_t wanted) { return candidate.last < wanted; });
  const bool folds = range != std::end(kFoldedRanges) && range->first <= codePoint &&
                     (codePoint - range->first) % range->step == 0;
  return folds ? codePoint + range->distance : codePoint;
}

// The bytes of a character of two or three, or 0 where there is none. No folded one is longer.
size_t _Decode(std::string_view text, int32_t* codePoint) {
  const auto byteAt = [text](size_t i) { return static_cast<uint8_t>(text[i]); };
  const size_t length = (byteAt(0) & 0xE0U) == 0xC0U ? 2 : (byteAt(0) & 0xF0U) == 0xE0U ? 3 : 0;
  if (length == 0 || text.size() < length) return 0;
  uint32_t value = byteAt(0) & (0x7FU >> length);
  for (size_t i = 1; i < length; ++i) {
    if ((byteAt(i) & 0xC0U) != 0x80U) return 0;
    value = value << 6U | (byteAt(i) & 0x3FU);
  }
  if (value < (length == 2 ? 0x80U : 0x800U)) return 0;
  *codePoint = static_cast<int32_t>(value);
  return length;
}

}  // namespace

std::string FoldCase(std::string_view utf8) {
  std::string folded;
  folded.reserve(utf8.size());
  for (size_t i = 0; i < utf8.size();) {
    int32_t codePoint = 0;
    const size_t length = _Decode(utf8.substr(i), &codePoint);
    if (length == 0) {
      folded += AsciiLower(utf8[i++]);
      continue;
    }
    std::array<char, 4> bytes{};
    folded.append(bytes.data(), static_cast<size_t>(XmlUtf8EncodeChar(bytes.data(), _Fold(codePoint))));
    i += length;
  }
  return folded;
}
