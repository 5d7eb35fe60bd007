#include "Common/RomanText.h"

#include <array>

#include "Common/xmlcharmaps.h"
#include "Common/xmlutil.h"

char16_t UnicodeFromRoman(char character) {
  const int32_t codePoint = XmlMapToUnicodeChar(static_cast<uint8_t>(character));
  return codePoint == 0 && character != '\0' ? kReplacementCharacter : static_cast<char16_t>(codePoint);
}

std::u16string Utf16FromRoman(std::string_view text) {
  std::u16string characters;
  characters.reserve(text.size());
  for (const char character : text) characters += UnicodeFromRoman(character);
  return characters;
}

std::string Utf8FromRoman(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (const char character : text) {
    std::array<char, 4> bytes{};
    const int32_t length = XmlUtf8EncodeChar(bytes.data(), UnicodeFromRoman(character));
    utf8.append(bytes.data(), static_cast<size_t>(length));
  }
  return utf8;
}
