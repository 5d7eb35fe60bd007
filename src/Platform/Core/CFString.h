// Core Foundation strings: immutable UTF-16 text.
#ifndef GRADIX_CFSTRING_H
#define GRADIX_CFSTRING_H

#include <string>
#include <string_view>

#include "Platform/Core/CFBase.h"

// Reached through the functions below.
struct CFString final : CFObject {
  explicit CFString(std::u16string_view characters) : text(characters) {}
  const std::u16string text;
};
using CFStringRef = const CFString*;

enum CFStringEncoding : uint32_t {
  kCFStringEncodingMacRoman = 0,
  kCFStringEncodingUTF8 = 0x08000100,
};

// From zero-terminated text; null for null, for an unknown encoding and for malformed UTF-8.
CFStringRef CFStringCreateWithCString(const char* text, CFStringEncoding encoding);
// From `length` bytes.
CFStringRef CFStringCreateWithBytes(const char* bytes, CFIndex length, CFStringEncoding encoding);
// From `length` UTF-16 units, taken as they are.
CFStringRef CFStringCreateWithCharacters(const char16_t* characters, CFIndex length);

CFIndex CFStringGetLength(CFStringRef string);  // UTF-16 units; 0 for null

// Bytes that `length` UTF-16 units may need at most, without the closing zero; -1 when that exceeds CFIndex,
// for a negative length and for an unknown encoding.
CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding encoding);

// Writes the text and a closing zero. False, with an empty text in a buffer of at least one byte, when the
// buffer is too small or the encoding lacks one of the characters.
bool CFStringGetCString(CFStringRef string, char* buffer, CFIndex size, CFStringEncoding encoding);

// Another reference to the same text, or null for null.
CFStringRef CFStringCreateCopy(CFStringRef string);

// Not part of Core Foundation: the text for the layers above it.
CFStringRef CFStringCreateWithReplacedUTF8(std::string_view text);  // each malformed byte becomes U+FFFD
std::u16string_view CFStringGetText(CFStringRef string);            // lives as long as the string
std::string CFStringGetUTF8(CFStringRef string);                    // lone surrogates become U+FFFD

// Mac OS Roman to UTF-16 and to UTF-8; a byte without a character becomes U+FFFD.
std::u16string MacRomanToUTF16(std::string_view text);
std::string MacRomanToUTF8(std::string_view text);
// UTF-8 to Mac OS Roman; "?" for what Roman lacks and for malformed bytes.
std::string UTF8ToMacRoman(std::string_view text);

#endif  // GRADIX_CFSTRING_H
