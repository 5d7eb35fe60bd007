#include "Common/number.h"

#include <locale.h>

#include <algorithm>
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
  const char* number = text;
  while (_IsBlank(*number)) ++number;
  if (number[0] == '+' && number[1] != '-') ++number;  // from_chars knows no plus sign
  double value = 0.0;
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
