#include "Platform/Core/CFString.h"

#include <gtest/gtest.h>

#include <limits>

#include "Platform/Core/CFOwned.h"

namespace {

using Text = CFOwned<CFString>;

Text _Unicode(std::u16string_view text) {
  return Text(CFStringCreateWithCharacters(text.data(), static_cast<CFIndex>(text.size())));
}

TEST(CFString, EveryRomanCharacterRoundTrips) {
  EXPECT_EQ(MacRomanToUTF16("\xF0"), u"\uFFFD");  // the one byte without a character
  EXPECT_EQ(UTF8ToMacRoman("\uF8FF\uFFFD"), "??");
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != 0xF0) bytes += static_cast<char>(byte);
  }
  EXPECT_EQ(UTF8ToMacRoman(MacRomanToUTF8(bytes)), bytes);
  const Text string(CFStringCreateWithBytes(bytes.data(), 255, kCFStringEncodingMacRoman));
  EXPECT_EQ(CFStringGetText(string.get()), MacRomanToUTF16(bytes));
  char buffer[256];
  ASSERT_TRUE(CFStringGetCString(string.get(), buffer, sizeof(buffer), kCFStringEncodingMacRoman));
  EXPECT_EQ(std::string(buffer, 256), bytes + '\0');
}

TEST(CFString, DecodesOnlyWellFormedUTF8) {
  const struct {
    const char *name, *bytes;
    std::u16string expected;  // empty: refused
    const char* roman;
  } rows[] = {
      {"all lengths", "a\xC3\xA9\xE2\x84\xA6\xF0\x9F\x98\x80", u"aé\u2126\U0001F600", "a\x8E\xBD?"},
      {"bounds",
       "\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF",
       u"\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF", "????????"},
      {"overlong", "\xC1\xBF", u"", "??"},
      {"overlong of three", "\xE0\x9F\xBF", u"", "???"},
      {"overlong of four", "\xF0\x8F\xBF\xBF", u"", "????"},
      {"surrogate", "\xED\xA0\x80", u"", "???"},
      {"beyond Unicode", "\xF4\x90\x80\x80", u"", "????"},
      {"lone continuation", "a\x80", u"", "a?"},
      {"cut short", "a\xE2\x84", u"", "a??"},
      {"ASCII inside", "\xE2(\xA6", u"", "?(?"},
      {"no lead", "\xFF", u"", "?"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const Text string(CFStringCreateWithCString(row.bytes, kCFStringEncodingUTF8));
    EXPECT_EQ(string == nullptr, row.expected.empty());
    EXPECT_EQ(CFStringGetText(string.get()), row.expected);
    if (!row.expected.empty()) {
      EXPECT_EQ(CFStringGetUTF8(string.get()), row.bytes);
    }
    EXPECT_EQ(UTF8ToMacRoman(row.bytes), row.roman);
  }
}

TEST(CFString, EncodesOrFailsWithAnEmptyText) {
  constexpr CFStringEncoding kUTF8 = kCFStringEncodingUTF8;
  constexpr CFStringEncoding kRoman = kCFStringEncodingMacRoman;
  const struct {
    const char* name;
    std::u16string text;
    CFStringEncoding encoding;
    CFIndex size;
    const char* expected;  // null: fails
  } rows[] = {
      {"empty", u"", kUTF8, 1, ""},
      {"fits exactly", u"aé", kUTF8, 4, "a\xC3\xA9"},
      {"lacks the zero", u"aé", kUTF8, 3, nullptr},
      {"pair", u"\U0001F600", kUTF8, 7, "\xF0\x9F\x98\x80"},
      {"lone high surrogate", u"a\xD83D", kUTF8, 20, nullptr},
      {"two high surrogates", u"\xD83D\xD83D\xDE00", kUTF8, 20, nullptr},
      {"lone low surrogate", u"\xDE00z", kUTF8, 20, nullptr},
      {"Roman", u"é", kRoman, 2, "\x8E"},
      {"not in Roman", u"a\u0416", kRoman, 20, nullptr},
      {"pair not in Roman", u"\U0001F600", kRoman, 20, nullptr},
      {"unknown encoding", u"a", static_cast<CFStringEncoding>(0x100), 20, nullptr},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const Text string = _Unicode(row.text);
    std::string buffer(static_cast<size_t>(row.size), '#');
    EXPECT_EQ(CFStringGetCString(string.get(), buffer.data(), row.size, row.encoding),
              row.expected != nullptr);
    EXPECT_STREQ(buffer.c_str(), row.expected == nullptr ? "" : row.expected);
    if (row.expected != nullptr) {
      EXPECT_GE(CFStringGetMaximumSizeForEncoding(CFStringGetLength(string.get()), row.encoding) + 1,
                row.size);
    }
  }
  EXPECT_EQ(CFStringGetUTF8(_Unicode(u"a\xD83Dz").get()), "a\xEF\xBF\xBDz");
  char untouched = '#';
  EXPECT_FALSE(CFStringGetCString(_Unicode(u"a").get(), &untouched, 0, kUTF8));
  EXPECT_EQ(untouched, '#');
  EXPECT_EQ(CFStringGetMaximumSizeForEncoding(std::numeric_limits<CFIndex>::max() / 2, kUTF8), -1);
}

TEST(CFString, NullAndCounting) {
  EXPECT_EQ(CFStringCreateWithCString(nullptr, kCFStringEncodingUTF8), nullptr);
  EXPECT_EQ(CFStringCreateWithBytes("a", -1, kCFStringEncodingUTF8), nullptr);
  EXPECT_EQ(CFStringCreateCopy(nullptr), nullptr);
  EXPECT_EQ(CFStringGetLength(nullptr), 0);
  CFRelease(nullptr);

  const CFStringRef string = CFStringCreateWithCString("text", kCFStringEncodingUTF8);
  const Text copy(CFStringCreateCopy(string));
  CFRelease(string);
  EXPECT_EQ(CFStringGetUTF8(copy.get()), "text");  // freed memory, had the copy not counted
}

}  // namespace
