// Text of XML documents: UTF-8, its conversion to the program's 8-bit text, escaping, and the names of a few
// enumerations. None of these functions throws, and none reads past the zero byte that ends a text.
#ifndef GRADIX_XMLUTIL_H
#define GRADIX_XMLUTIL_H

#include <cstdint>

#include "Common/xmlcharmaps.h"

// Writes the UTF-8 form of a code point, unterminated, and gives its length: 1 to 4 bytes, or 0 with nothing
// written for a negative code point and from 0x110000 on. Surrogates are encoded like any other code point.
int32_t XmlUtf8EncodeChar(char* buffer, int32_t codePoint);

// Stores the code point of the sequence at `bytes` and gives the length that its lead byte announces, 1 to 6;
// or 0 with nothing stored for a byte that cannot lead. Following bytes are taken as they come and overlong
// forms are accepted, so a malformed sequence can yield any number, a negative one included. Where the text
// ends inside the sequence, the missing bytes count as zero bytes and the announced length is still returned;
// XmlUtf8Step tells how many there are.
int32_t XmlUtf8DecodeChar(int32_t* codePoint, const char* bytes);

// The bytes that a sequence of the announced length really takes: fewer where the text ends inside it, 1 for
// an invalid lead byte (length 0), 0 at the end of the text.
int32_t XmlUtf8Step(const char* bytes, int32_t length);

// The number of characters of a text; an invalid lead byte counts as one.
int32_t XmlUtf8StrLen(const char* text);

// Converts a text to Mac OS Roman, at most `size` characters and a closing zero, so `destination` holds
// `size` + 1 bytes. What Roman lacks, and a byte that cannot lead a sequence, becomes "?". False only when
// such a byte was met.
bool XmlUtf8DecodeString(char* destination, int32_t size, const char* source);

// The same for a caller that goes on behind the text: gives the closing zero's address, and the result in
// `valid`.
char* XmlUtf8DecodeTo(char* destination, int32_t size, const char* source, bool* valid);

// Escapes 8-bit text for XML: markup characters and both quotes as entities, bytes from 0x80 on as character
// references, of the Roman character's code point with `mapToUnicode` and of the byte's own value without,
// control characters other than tab and line ends as spaces. Gives the length of the result, or -1 when it
// exceeds `size`, with the pieces that fit written. `destination` holds `size` + 1 bytes, at least one, and
// always ends up terminated; null only measures, within the same `size`.
int32_t XmlEncodeString(char* destination, const char* source, int32_t size, bool mapToUnicode);

// Names are compared without regard to ASCII case, the first match counts; a null name matches nothing.

// One text style. `alternative` is a second name that is understood but never given, or null.
struct XmlStyleName {
  int32_t bit;
  const char* name;
  const char* alternative;
};

struct XmlValueName {
  int32_t value;
  const char* name;
};

extern const XmlStyleName _gStyleNameMap[10];  // closed by bit 0
extern const XmlValueName _xmlLabelStyles[10];
extern const XmlValueName _mcSequence[7];

const char* XmlGetStyleNameFromBit(int32_t bit);       // "" for anything but a single known bit
int32_t XmlGetStyleBitFromName(const char* name);      // 0 when unknown
int32_t XmlLabelStyleNameToValue(const char* name);    // -1 when unknown
const char* XmlLabelStyleValueToName(int32_t value);   // null when unknown
int32_t XmlMCChoiceSequenceToValue(const char* name);  // -1 when unknown
const char* XmlNameToMCChoiceSequence(int32_t value);  // the name of a value; null when unknown

#endif  // GRADIX_XMLUTIL_H
