// Numbers as text, always in the form of the C locale: a host may have set any other one.
#ifndef GRADIX_NUMBER_H
#define GRADIX_NUMBER_H

#include <cstddef>
#include <cstdint>
#include <string>

// A decimal integer by the rules of atol: blanks, a sign, digits, up to the first other character. 0 when
// there are no digits; what is out of range becomes the nearest int32_t. Null reads like an empty text.
int32_t ParseInt32(const char* text);

// A real number by the rules of atof: blanks, a sign, then a decimal or hexadecimal number, infinity or nan;
// 0 when there is none. Null reads like an empty text.
double ParseDouble(const char* text);

// The same for a text whose length is known.
double ParseDouble(const char* text, size_t length);

// Formats as "%g" does, terminated; gives the length.
size_t FormatGeneral(char (&buffer)[32], double value);

// The finite number as people write it: at most ten significant digits, so that 0.1 + 0.2 is "0.3", without
// trailing zeros and never with an exponent. Of these digits `maxDecimals`, unless negative, keeps so many
// decimals, a half rounded away from 0. There is no "-0".
std::string PlainNumber(double value, int32_t maxDecimals = -1);

// The longest text of FormatFixed: a sign, 309 digits, the point, 1074 decimals. No double has more decimals
// than that, so further ones would all be zeros.
inline constexpr int32_t kMaxDecimals = 1074;
inline constexpr size_t kFixedTextSize = 1 + 309 + 1 + kMaxDecimals + 1;

// Formats as "%.*f" does, terminated; gives the length. A negative number of decimals means 6, a number above
// kMaxDecimals means kMaxDecimals.
size_t FormatFixed(char (&buffer)[kFixedTextSize], double value, int32_t decimals);

#endif  // GRADIX_NUMBER_H
