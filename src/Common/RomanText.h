// The program's 8-bit text, Mac OS Roman, as Unicode. A code without a character becomes U+FFFD.
#ifndef GRADIX_COMMON_ROMANTEXT_H
#define GRADIX_COMMON_ROMANTEXT_H

#include <cstdint>
#include <string>
#include <string_view>

inline constexpr char16_t kReplacementCharacter = 0xFFFD;

char16_t UnicodeFromRoman(char character);
std::u16string Utf16FromRoman(std::string_view text);
std::string Utf8FromRoman(std::string_view text);

#endif  // GRADIX_COMMON_ROMANTEXT_H
