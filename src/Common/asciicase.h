// Comparing text without regard to the case of the letters A to Z. Every other byte stands for itself,
// whatever the locale of the process, so texts compare the same on every desktop.
#ifndef GRADIX_ASCIICASE_H
#define GRADIX_ASCIICASE_H

#include <cstddef>
#include <string_view>

constexpr char AsciiLower(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

constexpr bool AsciiEqualNoCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    if (AsciiLower(a[i]) != AsciiLower(b[i])) return false;
  }
  return true;
}

#endif  // GRADIX_ASCIICASE_H
