#include "Common/number.h"

#include <locale.h>

#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>
#include <system_error>

namespace {

bool _IsBlank(char character) {
  return character == ' ' || (character >= '\t' && character <= '\r');
}

bool _IsDigit(char character) {
  return character >= '0' && character <= '9';
}

// A plain decimal of at most 15 digits. Its digits and the power of ten are doubles without error, so that
// their quotient is the nearest double. False for anything else.
bool _ParsePlain(const char* text, size_t length, double* value) {
  constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  if (length > 16 || FLT_EVAL_METHOD != 0) return false;
  const char* const end = text + length;
  const char* point = nullptr;
  int64_t digits = 0;
  for (const char* next = text; next != end; ++next) {
    if (_IsDigit(*next)) {
      digits = digits * 10 + (*next - '0');
    } else if (*next == '.' && point == nullptr) {
      point = next;
    } else {
      return false;
    }
  }
  const auto digitCount = static_cast<size_t>(length) - (point == nullptr ? 0 : 1);
  if (digitCount == 0 || digitCount > 15) return false;
  *value = static_cast<double>(digits) / kPowers[point == nullptr ? 0 : end - point - 1];
  return true;
}

// The rare forms: hexadecimal, infinity, nan, out of range, no number at all.
double _ParseDoubleSlowly(const char* text) {
  static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
  return cLocale != nullptr ? strtod_l(text, nullptr, cLocale) : std::strtod(text, nullptr);
}

size_t _Terminate(char* buffer, const std::to_chars_result& result) {
  *result.ptr = '\0';
  return static_cast<size_t>(result.ptr - buffer);
}

}  // namespace

int32_t ParseInt32(const char* text) {
  if (text == nullptr) return 0;
  while (_IsBlank(*text)) ++text;
  const bool negative = *text == '-';
  if (*text == '-' || *text == '+') ++text;
  constexpr int64_t kLimit = int64_t{1} << 31;  // the magnitude of the least number
  int64_t magnitude = 0;
  for (; _IsDigit(*text); ++text) magnitude = std::min(magnitude * 10 + (*text - '0'), kLimit);
  if (negative) return static_cast<int32_t>(-magnitude);
  return static_cast<int32_t>(std::min<int64_t>(magnitude, std::numeric_limits<int32_t>::max()));
}

double ParseDouble(const char* text) {
  return text == nullptr ? 0.0 : ParseDouble(text, std::strlen(text));
}

double ParseDouble(const char* text, size_t length) {
  double value = 0.0;
  if (_ParsePlain(text, length, &value)) return value;
  const char* number = text;
  while (_IsBlank(*number)) ++number;
  if (number[0] == '+' && number[1] != '-') ++number;  // from_chars knows no plus sign
  const auto [end, error] = std::from_chars(number, text + length, value);
  const bool plain = error == std::errc() && std::isfinite(value) && *end != 'x' && *end != 'X';
  return plain ? value : _ParseDoubleSlowly(text);
}

size_t FormatGeneral(char (&buffer)[32], double value) {
  return _Terminate(buffer,
                    std::to_chars(buffer, std::end(buffer) - 1, value, std::chars_format::general, 6));
}

size_t FormatFixed(char (&buffer)[kFixedTextSize], double value, int32_t decimals) {
  const int32_t precision = decimals < 0 ? 6 : std::min(decimals, kMaxDecimals);
  return _Terminate(buffer,
                    std::to_chars(buffer, std::end(buffer) - 1, value, std::chars_format::fixed, precision));
}
