// The 8-bit character sets, Mac OS Roman and Adobe Symbol, and their mapping to and from Unicode.
//
// The tables follow the published ones:
//   Roman   https://www.unicode.org/Public/MAPPINGS/VENDORS/APPLE/ROMAN.TXT
//   Symbol  https://www.unicode.org/Public/MAPPINGS/VENDORS/ADOBE/symbol.txt, the lower code point where it
//           lists two
// Roman differs in two places: 0xBD is U+2126 (ohm sign), not the Greek letter, and 0xF0, the Apple logo in
// the private use area, is left out.
#ifndef GRADIX_XMLCHARMAPS_H
#define GRADIX_XMLCHARMAPS_H

#include <cstdint>

struct XmlCharMapEntry {
  uint8_t code;
  uint16_t codePoint;
};

// In ascending order of code.
extern const XmlCharMapEntry _gAnsiMap[128];         // 0x80 to 0xFF without 0xF0, closed by (0, 0)
extern const XmlCharMapEntry _gAdobeSymbolMap[189];  // not closed

// The character set that selects Symbol; every other value selects Roman.
inline constexpr int32_t kXmlSymbolSet = 3;

// The 8-bit code of a code point, 0 when the set lacks it. In Roman a code point below 128 is itself (a
// negative one, which only malformed UTF-8 yields, its low byte); Symbol has no such shortcut.
uint8_t XmlMapFromUnicodeChar(int32_t codePoint, int32_t characterSet);
uint8_t XmlMapFromUnicodeChar(int32_t codePoint);  // Roman

// The code point of an 8-bit code, 0 when the set lacks it. Codes below 128 in Roman and below 32 in Symbol
// are themselves.
int32_t XmlMapToUnicodeChar(uint8_t code, int32_t characterSet);
int32_t XmlMapToUnicodeChar(uint8_t code);  // Roman

#endif  // GRADIX_XMLCHARMAPS_H
