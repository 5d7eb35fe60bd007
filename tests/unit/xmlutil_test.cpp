#include "Common/xmlutil.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace {

// A block of exactly the text's size on the heap, so that a sanitizer build catches a read past its end.
std::vector<char> _OnHeap(const std::string& text) {
  return {text.c_str(), text.c_str() + text.size() + 1};
}

using Decoded = std::pair<std::string, bool>;  // the text, and whether it was valid

Decoded _Decode(const std::string& source, int32_t size) {
  std::string destination(static_cast<size_t>(size > 0 ? size : 0) + 1, '#');
  const bool valid = XmlUtf8DecodeString(destination.data(), size, _OnHeap(source).data());
  return {destination.c_str(), valid};
}

// The upper half of Mac OS Roman, in order of code, without 0xF0 and with the ohm sign at 0xBD.
const char* const kRomanUpperHalf =
    "ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªº\u2126æø"
    "¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ";

TEST(CharMaps, RomanUpperHalfDecodesToItsCodes) {
  std::string codes;
  for (int code = 0x80; code <= 0xFF; ++code) {
    if (code != 0xF0) codes += static_cast<char>(code);
  }
  EXPECT_EQ(_Decode(kRomanUpperHalf, 200), (Decoded{codes, true}));
}

TEST(CharMaps, EveryCodeRoundTrips) {
  for (const int32_t set : {0, 3}) {
    int known = 0;
    for (int code = 1; code <= 0xFF; ++code) {
      const int32_t codePoint = XmlMapToUnicodeChar(static_cast<uint8_t>(code), set);
      if (codePoint == 0 || (set == 3 && code < 32)) continue;
      ++known;
      EXPECT_EQ(XmlMapFromUnicodeChar(codePoint, set), code) << "set " << set << " code " << code;
    }
    EXPECT_EQ(known, set == 3 ? 189 : 254);
  }
}

TEST(CharMaps, ChosenEntries) {
  const struct {
    const char* name;
    int32_t set;
    uint8_t code;
    int32_t codePoint;
  } rows[] = {
      {"any other set is Roman", 7, 0x8E, 0xE9},
      {"no logo", 0, 0xF0, 0},
      {"control in Symbol", 3, 0x09, 0x09},
      {"letter in Symbol", 3, 'A', 0x391},
      {"lower of two: Delta", 3, 0x44, 0x394},
      {"lower of two: Omega", 3, 0x57, 0x3A9},
      {"lower of two: mu", 3, 0x6D, 0xB5},
      {"lower of two: fraction", 3, 0xA4, 0x2044},
      {"gap in Symbol", 3, 0x7F, 0},
      {"hole in Symbol", 3, 0xF0, 0},
      {"private use", 3, 0xD2, 0xF6DA},
      {"last", 3, 0xFE, 0xF8FE},
  };
  for (const auto& row : rows) EXPECT_EQ(XmlMapToUnicodeChar(row.code, row.set), row.codePoint) << row.name;
  for (const int32_t missing : {0x3A9, 0xF8FF, 0x80, 0xFFFF, 0x10FFFF, std::numeric_limits<int32_t>::max()}) {
    EXPECT_EQ(XmlMapFromUnicodeChar(missing), 0) << missing;
  }
  for (const int32_t missing : {0x41, 0x09, 0, -1, 0x2126, 0x3BC, 0x10022}) {
    EXPECT_EQ(XmlMapFromUnicodeChar(missing, 3), 0) << missing;
  }
}

TEST(Utf8, EncodesAndDecodesBack) {
  const struct {
    int32_t codePoint;
    const char* bytes;
  } rows[] = {{0x7F, "\x7F"},
              {0x80, "\xC2\x80"},
              {0x7FF, "\xDF\xBF"},
              {0x800, "\xE0\xA0\x80"},
              {0xFFFF, "\xEF\xBF\xBF"},
              {0x10000, "\xF0\x90\x80\x80"},
              {0x10FFFF, "\xF4\x8F\xBF\xBF"},
              {0x110000, ""},
              {std::numeric_limits<int32_t>::max(), ""},
              {-1, ""}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.codePoint);
    char buffer[] = "######";
    const int32_t length = XmlUtf8EncodeChar(buffer, row.codePoint);
    EXPECT_EQ(std::string(buffer, static_cast<size_t>(length)), row.bytes);
    EXPECT_EQ(buffer[length], '#');
    if (length == 0) continue;
    int32_t codePoint = -1;
    EXPECT_EQ(XmlUtf8DecodeChar(&codePoint, _OnHeap(row.bytes).data()), length);
    EXPECT_EQ(codePoint, row.codePoint);
  }
}

TEST(Utf8, DecodesMalformedSequences) {
  const int32_t kNotStored = 12345;
  const struct {
    const char *name, *bytes;
    int32_t length, codePoint, step;
  } rows[] = {
      {"end of text", "", 1, 0, 0},
      {"continuation", "\x80", 0, kNotStored, 1},
      {"0xFE", "\xFE", 0, kNotStored, 1},
      {"0xFF", "\xFF\x80", 0, kNotStored, 1},
      {"overlong", "\xC0\xAF", 2, '/', 2},
      {"ASCII follows", "\xC3(", 2, 0x68, 2},
      {"five bytes", "\xFB\xBF\xBF\xBF\xBF", 5, 0x3FFFFFF, 5},
      {"six bytes, second at bit 28", "\xFC\x81\x80\x80\x80\x81", 6, 0x10000001, 6},
      {"six bytes wrap", "\xFD\xBF\xBF\xBF\xBF\xBF", 6, static_cast<int32_t>(0x30FFFFFFU), 6},
      {"two bytes cut", "\xC3", 2, (3 << 6) - 128, 1},
      {"three bytes cut at once", "\xE2", 3, (2 << 12) - (128 << 6) - 128, 1},
      {"three bytes cut late", "\xE2\x82", 3, (2 << 12) + (2 << 6) - 128, 2},
      {"six bytes cut", "\xFC\x80", 6, -(128 << 18) - (128 << 12) - (128 << 6) - 128, 2},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const std::vector<char> bytes = _OnHeap(row.bytes);
    int32_t codePoint = kNotStored;
    const int32_t length = XmlUtf8DecodeChar(&codePoint, bytes.data());
    EXPECT_EQ(length, row.length);
    EXPECT_EQ(codePoint, row.codePoint);
    EXPECT_EQ(XmlUtf8Step(bytes.data(), length), row.step);
  }
}

TEST(Utf8, DecodesText) {
  const struct {
    const char *name, *source;
    int32_t size;
    Decoded expected;
    int32_t characters;
  } rows[] = {
      {"empty", "", 5, {"", true}, 0},
      {"accents", "Zo\xC3\xAB", 9, {"Zo\x91", true}, 3},
      {"unmappable is valid", "\xCE\xA9\xEF\xA3\xBF", 9, {"??", true}, 2},
      {"beyond the planes", "\xF0\x9F\x98\x80!", 9, {"?!", true}, 2},
      {"invalid lead", "a\200b\xFF", 9, {"a?b?", false}, 4},
      {"invalid lead behind the size", "ab\x80", 2, {"ab", true}, 3},
      {"cut to size", "h\xC3\xA9llo", 2, {"h\x8E", true}, 5},
      {"negative size", "abc", -7, {"", true}, 3},
      {"ends in a lead byte", "ab\xC3", 9, {"ab@", true}, 3},
      {"negative code point", "ab\xE2", 9, {"ab\x80", true}, 3},
      {"overlong zero", "a\xC0\x80z", 9, {"a?z", true}, 3},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(_Decode(row.source, row.size), row.expected);
    EXPECT_EQ(XmlUtf8StrLen(_OnHeap(row.source).data()), row.characters);
  }
}

TEST(XmlEncode, EscapesWithinTheSize) {
  const struct {
    const char *name, *source;
    int32_t size;
    bool map;
    int32_t length;
    const char* written;
  } rows[] = {
      {"empty", "", 0, true, 0, ""},
      {"markup and quotes", "<a b='\"&'>", 99, true, 35, "&lt;a b=&apos;&quot;&amp;&apos;&gt;"},
      {"controls", "\x01\t\n\r\x1F\x7F", 9, true, 6, " \t\n\r \x7F"},
      {"mapped", "A\x8E&", 99, true, 14, "A&#x00e9;&amp;"},
      {"not mapped", "A\x8E&", 99, false, 14, "A&#x008e;&amp;"},
      {"four digits", "\xDE", 99, true, 8, "&#xfb01;"},
      {"without a character", "\xF0", 99, true, 1, " "},
      {"without a character, not mapped", "\xF0", 99, false, 8, "&#x00f0;"},
      {"fits exactly", "a<b", 6, true, 6, "a&lt;b"},
      {"entity does not fit", "a<b", 3, true, -1, "a"},
      {"stops at the first misfit", "a<b", 5, true, -1, "a&lt;"},
      {"negative size", "a", -1, true, -1, ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    std::string destination(static_cast<size_t>(row.size > 0 ? row.size : 0) + 1, '#');
    EXPECT_EQ(XmlEncodeString(destination.data(), row.source, row.size, row.map), row.length);
    EXPECT_STREQ(destination.c_str(), row.written);
    EXPECT_EQ(XmlEncodeString(nullptr, row.source, row.size, row.map), row.length);
  }
}

TEST(XmlNames, StylesLabelsAndSequences) {
  EXPECT_EQ(XmlGetStyleBitFromName("Single Underline"), 0x004);
  EXPECT_STREQ(XmlGetStyleNameFromBit(0x004), "underline");
  EXPECT_STREQ(XmlGetStyleNameFromBit(0x100), "strikethru");
  EXPECT_EQ(XmlLabelStyleNameToValue("NONE"), 1);
  EXPECT_EQ(XmlLabelStyleNameToValue("Gray-Box"), 10);
  EXPECT_STREQ(XmlLabelStyleValueToName(2), "none");
  EXPECT_EQ(XmlMCChoiceSequenceToValue("FGHJK_ABCDE"), 6);
  EXPECT_STREQ(XmlNameToMCChoiceSequence(7), "jklmn_abcde");

  for (const char* unknown : {"", "abc", "bold ", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(XmlGetStyleBitFromName(unknown), 0);
    EXPECT_EQ(XmlLabelStyleNameToValue(unknown), -1);
    EXPECT_EQ(XmlMCChoiceSequenceToValue(unknown), -1);
  }
  for (const int32_t unknown : {-1, 0, 11}) {
    EXPECT_STREQ(XmlGetStyleNameFromBit(unknown), "");
    EXPECT_EQ(XmlLabelStyleValueToName(unknown), nullptr);
    EXPECT_EQ(XmlNameToMCChoiceSequence(unknown), nullptr);
  }
}

}  // namespace
