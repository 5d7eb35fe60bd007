// The plain pieces of an export file: literal text and numbers, the same bytes in every locale.
#ifndef GRADIX_CSVTEXT_H
#define GRADIX_CSVTEXT_H

#include <cstdint>
#include <cstdio>

// Writes the text as it is.
inline void WriteText(std::FILE* file, const char* text) {
  std::fputs(text, file);
}

// Writes the number as "%d" does.
void WriteInteger(std::FILE* file, int32_t value);

// Writes the number as "%g" does: six significant digits, no trailing zeros.
void WriteNumber(std::FILE* file, double value);

#endif  // GRADIX_CSVTEXT_H
