// The encodings that learning systems write and read, and their conversion to and from UTF-8.
#ifndef GRADIX_TABLES_TEXTENCODING_H
#define GRADIX_TABLES_TEXTENCODING_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

enum class TextEncoding : uint8_t {
  kMacRoman,  // the program's own, in the classic files
  kUtf8,
  kUtf8WithBom,  // byte-order mark in front
  kLatin1,       // ISO-8859-1
  kUtf16LE,      // with byte-order mark, as kUtf16BE
  kUtf16BE,
};

// "UTF-8", as people call it.
const char* EncodingName(TextEncoding encoding);

// The encoding that the bytes show: by their byte-order mark; UTF-16 without one by its zero bytes; UTF-8
// when they are valid as such and not all ASCII. Nothing when they do not tell.
std::optional<TextEncoding> DetectEncoding(std::string_view bytes);

// The text as UTF-8 without a byte-order mark. Nothing when the bytes are not in that encoding;
// `faultOffset`, unless null, is then the position of the first bad byte.
std::optional<std::string> DecodeText(std::string_view bytes, TextEncoding encoding,
                                      size_t* faultOffset = nullptr);

// The UTF-8 text in the encoding, without a byte-order mark. What it lacks becomes "?" and is counted in
// `replaced`, unless that is null.
std::string EncodeText(std::string_view utf8, TextEncoding encoding, uint64_t* replaced = nullptr);

// The bytes in front of a file: the byte-order mark, if the encoding has one.
std::string_view ByteOrderMark(TextEncoding encoding);

#endif  // GRADIX_TABLES_TEXTENCODING_H
