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

// A decimal number: digits * 10 ^ exponent.
struct Decimal {
  uint64_t digits = 0;
  int32_t exponent = 0;
};

// The nearest one of ten digits.
Decimal _TenDigits(double magnitude) {
  char text[32];
  const auto result =
      std::to_chars(text, std::end(text), magnitude, std::chars_format::scientific, 9);  // "1.234567890e-05"
  Decimal decimal;
  std::from_chars(text, text + 1, decimal.digits);
  uint64_t behindPoint = 0;
  const char* const exponent = std::from_chars(text + 2, result.ptr, behindPoint).ptr + 1;
  decimal.digits = decimal.digits * 1'000'000'000 + behindPoint;
  std::from_chars(*exponent == '+' ? exponent + 1 : exponent, result.ptr, decimal.exponent);
  decimal.exponent -= 9;
  return decimal;
}

// A half goes up.
void _Round(Decimal* decimal, int32_t maxDecimals) {
  const int32_t surplus = -maxDecimals - decimal->exponent;
  if (surplus <= 0) return;
  uint64_t unit = 1;
  for (int32_t i = 0; i < std::min(surplus, 11); ++i) unit *= 10;  // eleven: less than a half in any case
  decimal->digits = (decimal->digits + unit / 2) / unit;
  decimal->exponent = -maxDecimals;
}

std::string _Text(Decimal decimal) {
  while (decimal.digits != 0 && decimal.digits % 10 == 0) {
    decimal.digits /= 10;
    ++decimal.exponent;
  }
  std::string text = std::to_string(decimal.digits);
  if (decimal.digits == 0) return text;
  if (decimal.exponent >= 0) return text.append(static_cast<size_t>(decimal.exponent), '0');
  const auto decimals = static_cast<size_t>(-decimal.exponent);
  if (text.size() <= decimals) text.insert(0, decimals - text.size() + 1, '0');
  return text.insert(text.size() - decimals, 1, '.');
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

std::string PlainNumber(double value, int32_t maxDecimals) {
  Decimal decimal = _TenDigits(std::fabs(value));
  if (maxDecimals >= 0) _Round(&decimal, maxDecimals);
  std::string text = _Text(decimal);
  if (value < 0.0 && text != "0") text.insert(0, 1, '-');
  return text;
}

size_t FormatFixed(char (&buffer)[kFixedTextSize], double value, int32_t decimals) {
  const int32_t precision = decimals < 0 ? 6 : std::min(decimals, kMaxDecimals);
  return _Terminate(buffer,
                    std::to_chars(buffer, std::end(buffer) - 1, value, std::chars_format::fixed, precision));
}
