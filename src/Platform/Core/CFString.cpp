#include "Platform/Core/CFString.h"

#include <cstring>
#include <limits>
#include <optional>

#include "Common/RomanText.h"
#include "Common/xmlcharmaps.h"
#include "Common/xmlutil.h"

namespace {

constexpr char32_t kMalformed = 0xFFFFFFFF;

std::optional<char> _UnicodeToRoman(char32_t character) {
  if (character > 0xFFFF) return std::nullopt;
  const uint8_t code = XmlMapFromUnicodeChar(static_cast<int32_t>(character));
  if (code == 0 && character != 0) return std::nullopt;
  return static_cast<char>(code);
}

bool _IsSurrogate(char32_t character) {
  return character >= 0xD800 && character <= 0xDFFF;
}

// Takes one character off the front of `text`: shortest form only, no surrogates. A malformed byte is taken
// alone and gives kMalformed.
char32_t _TakeUTF8(std::string_view* text) {
  const auto lead = static_cast<uint8_t>(text->front());
  const size_t length = lead < 0x80   ? 1
                        : lead < 0xC2 ? 0
                        : lead < 0xE0 ? 2
                        : lead < 0xF0 ? 3
                        : lead < 0xF5 ? 4
                                      : 0;
  char32_t character = length < 2 ? lead : lead & (0x7FU >> length);
  bool valid = length > 0 && length <= text->size();
  for (size_t i = 1; valid && i < length; ++i) {
    const auto byte = static_cast<uint8_t>((*text)[i]);
    valid = (byte & 0xC0) == 0x80;
    character = (character << 6) | (byte & 0x3F);
  }
  valid = valid && !_IsSurrogate(character) && character <= 0x10FFFF && (length != 3 || character >= 0x800) &&
          (length != 4 || character >= 0x10000);
  text->remove_prefix(valid ? length : 1);
  return valid ? character : kMalformed;
}

// The same for UTF-16, where only a lone surrogate is malformed.
char32_t _TakeUTF16(std::u16string_view* text) {
  const char32_t unit = text->front();
  text->remove_prefix(1);
  if (!_IsSurrogate(unit)) return unit;
  const bool isPair = unit < 0xDC00 && !text->empty() && text->front() >= 0xDC00 && text->front() <= 0xDFFF;
  if (!isPair) return kMalformed;
  const char32_t low = text->front();
  text->remove_prefix(1);
  return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
}

void _AppendUTF8(std::string* text, char32_t character) {
  char bytes[4];
  text->append(bytes, static_cast<size_t>(XmlUtf8EncodeChar(bytes, static_cast<int32_t>(character))));
}

void _AppendUTF16(std::u16string* text, char32_t character) {
  if (character > 0xFFFF) {
    *text += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
    *text += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
  } else {
    *text += static_cast<char16_t>(character);
  }
}

// Each malformed byte becomes U+FFFD and is counted.
std::u16string _UTF8ToUTF16(std::string_view text, size_t* malformed) {
  std::u16string result;
  result.reserve(text.size());
  *malformed = 0;
  while (!text.empty()) {
    const char32_t character = _TakeUTF8(&text);
    if (character == kMalformed) ++*malformed;
    _AppendUTF16(&result, character == kMalformed ? kReplacementCharacter : character);
  }
  return result;
}

// The text's bytes in an encoding; nullopt when it lacks one of the characters.
std::optional<std::string> _Encode(std::u16string_view text, CFStringEncoding encoding) {
  if (encoding != kCFStringEncodingUTF8 && encoding != kCFStringEncodingMacRoman) return std::nullopt;
  std::string bytes;
  while (!text.empty()) {
    const char32_t character = _TakeUTF16(&text);
    if (character == kMalformed) return std::nullopt;
    if (encoding == kCFStringEncodingUTF8) {
      _AppendUTF8(&bytes, character);
    } else if (const std::optional<char> code = _UnicodeToRoman(character)) {
      bytes += *code;
    } else {
      return std::nullopt;
    }
  }
  return bytes;
}

}  // namespace

CFStringRef CFStringCreateWithCString(const char* text, CFStringEncoding encoding) {
  if (text == nullptr) return nullptr;
  return CFStringCreateWithBytes(text, static_cast<CFIndex>(std::strlen(text)), encoding);
}

CFStringRef CFStringCreateWithBytes(const char* bytes, CFIndex length, CFStringEncoding encoding) {
  if (bytes == nullptr || length < 0) return nullptr;
  const std::string_view text(bytes, static_cast<size_t>(length));
  if (encoding == kCFStringEncodingMacRoman) return new CFString(MacRomanToUTF16(text));
  if (encoding != kCFStringEncodingUTF8) return nullptr;
  size_t malformed = 0;
  const std::u16string characters = _UTF8ToUTF16(text, &malformed);
  return malformed == 0 ? new CFString(characters) : nullptr;
}

CFStringRef CFStringCreateWithCharacters(const char16_t* characters, CFIndex length) {
  if (characters == nullptr || length < 0) return nullptr;
  return new CFString(std::u16string_view(characters, static_cast<size_t>(length)));
}

CFIndex CFStringGetLength(CFStringRef string) {
  return static_cast<CFIndex>(CFStringGetText(string).size());
}

CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding encoding) {
  if (length < 0) return -1;
  if (encoding == kCFStringEncodingMacRoman) return length;
  // Three bytes hold every unit that stands alone, and a pair of them needs four.
  if (encoding != kCFStringEncodingUTF8 || length > std::numeric_limits<CFIndex>::max() / 3) return -1;
  return length * 3;
}

bool CFStringGetCString(CFStringRef string, char* buffer, CFIndex size, CFStringEncoding encoding) {
  if (buffer == nullptr || size < 1) return false;
  buffer[0] = '\0';
  if (string == nullptr) return false;
  const std::optional<std::string> bytes = _Encode(string->text, encoding);
  if (!bytes || bytes->size() >= static_cast<size_t>(size)) return false;
  std::memcpy(buffer, bytes->c_str(), bytes->size() + 1);
  return true;
}

CFStringRef CFStringCreateCopy(CFStringRef string) {
  CFRetain(string);
  return string;
}

CFStringRef CFStringCreateWithReplacedUTF8(std::string_view text) {
  size_t malformed = 0;
  return new CFString(_UTF8ToUTF16(text, &malformed));
}

std::u16string_view CFStringGetText(CFStringRef string) {
  return string == nullptr ? std::u16string_view() : string->text;
}

std::string CFStringGetUTF8(CFStringRef string) {
  std::string bytes;
  for (std::u16string_view text = CFStringGetText(string); !text.empty();) {
    const char32_t character = _TakeUTF16(&text);
    _AppendUTF8(&bytes, character == kMalformed ? kReplacementCharacter : character);
  }
  return bytes;
}

std::u16string MacRomanToUTF16(std::string_view text) {
  return Utf16FromRoman(text);
}

std::string MacRomanToUTF8(std::string_view text) {
  return Utf8FromRoman(text);
}

std::string UTF8ToMacRoman(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const char32_t character = _TakeUTF8(&text);
    result += character == kMalformed ? '?' : _UnicodeToRoman(character).value_or('?');
  }
  return result;
}
