#include "Common/QZData/QZString.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>

#include "Filters/GX_StdCsv/util.h"

namespace {

constexpr int32_t kMax = std::numeric_limits<int32_t>::max();
constexpr int32_t kMin = std::numeric_limits<int32_t>::min();

// The result of an in-place operation on a copy of the text in a buffer of `room` characters, or the text's
// own.
template <typename Operation>
std::string _InPlace(const std::string& text, int32_t room, Operation operation) {
  std::string buffer(std::max(text.size(), static_cast<size_t>(std::max(room, 0))) + 1, '#');
  std::memcpy(buffer.data(), text.c_str(), text.size() + 1);
  operation(buffer.data());
  buffer.resize(std::strlen(buffer.c_str()));
  return buffer;
}

TEST(QzString, DeletesAndInserts) {
  const struct {
    const char* name;
    int32_t position, count;
    const char *deleted, *inserted;  // null: no buffer could hold it
  } rows[] = {
      {"start", 0, 2, "cde", "--abcde"},
      {"middle", 2, 1, "abde", "ab-cde"},
      {"more than there is", 3, 9, "abc", "abc---------de"},
      {"past the end", 99, 3, "abcde", "abcde---"},
      {"negative count", 1, -4, "abcde", "abcde"},
      {"negative position", -3, 2, "cde", "--abcde"},
      {"huge position and count", kMax, kMax, "abcde", nullptr},
      {"huge count", 1, kMax, "a", nullptr},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(_InPlace("abcde", 5, [&](char* s) { qz::lstrdel(s, row.position, row.count); }), row.deleted);
    if (row.inserted == nullptr) continue;
    EXPECT_EQ(_InPlace("abcde", 20, [&](char* s) { qz::lstrins(s, row.position, row.count, '-'); }),
              row.inserted);
  }
}

TEST(QzString, StripsSpacesOnly) {
  const struct {
    const char* text;
    bool leading, trailing;
    const char* expected;
  } rows[] = {{"  a b  ", true, true, "a b"},    {"  a b  ", true, false, "a b  "},
              {"  a b  ", false, true, "  a b"}, {"  a  ", false, false, "  a  "},
              {"\t a\n ", true, true, "\t a\n"}, {"   ", true, false, ""}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    const auto strip = [&row](char* text) { qz::StripSpaces(text, row.leading, row.trailing); };
    EXPECT_EQ(_InPlace(row.text, 0, strip), row.expected);
    const auto freeStrip = [&row](char* text) { ::StripSpaces(text, row.leading, row.trailing); };
    EXPECT_EQ(_InPlace(row.text, 0, freeStrip), row.expected);
  }
}

TEST(QzString, EscapesFromTheEndWhileThereIsRoom) {
  const struct {
    const char* name;
    char* (*fix)(char*, int32_t);
    const char* text;
    int32_t greatest;
    const char* expected;
  } rows[] = {
      {"script", qz::FixScriptQuotes, R"(it's a \)", 99, R"(it\'s a \\)"},
      {"script reaches the greatest", qz::FixScriptQuotes, "it's", 5, R"(it\'s)"},
      {"script without room", qz::FixScriptQuotes, "it's", 4, "it s"},
      {"script, the last ones win", qz::FixScriptQuotes, "'a'b'", 7, R"( a\'b\')"},
      {"script, longer than the greatest", qz::FixScriptQuotes, "a'b'c", 2, "a b c"},
      {"form", qz::FixFormQuotes, R"("a" 'b')", 99, "&#34;a&#34; &#39;b&#39;"},
      {"form stays below the greatest", qz::FixFormQuotes, "a\"b", 7, "a b"},
      {"form just below", qz::FixFormQuotes, "a\"b", 8, "a&#34;b"},
      {"form, one of two", qz::FixFormQuotes, "'\"", 10, " &#34;"},
      {"php", qz::FixPHP, "<?php?>", 99, R"(\x3c?php?\x3e)"},
      {"php reaches the greatest", qz::FixPHP, "a<b", 6, R"(a\x3cb)"},
      {"php without room", qz::FixPHP, "a<b", 5, "a b"},
      {"negative greatest", qz::FixFormQuotes, "'", kMin, " "},
  };
  for (const auto& row : rows) {
    const auto fix = [&row](char* text) { row.fix(text, row.greatest); };
    EXPECT_EQ(_InPlace(row.text, row.greatest, fix), row.expected) << row.name;
  }
}

TEST(QzString, ReplacesWithinTheGreatestLength) {
  const struct {
    const char *name, *text, *find, *replacement;
    int32_t greatest;
    bool all;
    const char* expected;
  } rows[] = {
      {"first only", "a-b-c", "-", "+", 20, false, "a+b-c"},
      {"all", "a-b-c", "-", "==", 20, true, "a==b==c"},
      {"contains what it replaces", "xx", "x", "xyx", 20, true, "xyxxyx"},
      {"does not join its neighbours", "aabb", "ab", "", 20, true, "ab"},
      {"overlapping", "aaa", "aa", "b", 20, true, "ba"},
      {"case counts", "Ab", "a", "x", 20, true, "Ab"},
      {"cut", "a-b-c", "-", "1234", 7, true, "a123b1c"},
      {"only deleted", "a-b-c", "-", "1234", 3, true, "abc"},
      {"longer than the greatest", "abcdef", "c", "xyz", 2, true, "abdef"},
      {"negative greatest", "a-b", "-", "+", -5, true, "ab"},
      {"nothing to find", "abc", "", "x", 20, true, "abc"},
  };
  for (const auto& row : rows) {
    const auto replace = [&row](char* s) {
      qz::ReplaceString(s, row.find, row.replacement, row.greatest, row.all);
    };
    EXPECT_EQ(_InPlace(row.text, row.greatest, replace), row.expected) << row.name;
  }
}

TEST(QzString, SearchesWithAnExactFirstCharacter) {
  const struct {
    const char *text, *find;
    ptrdiff_t at;  // -1: not found
  } rows[] = {{"Score SCORE", "score", -1},
              {"Score SCORE", "Score", 0},
              {"a sCORE", "score", 2},
              {"aab", "ab", -1 /* goes on at 2 */},
              {"axab", "ab", 2},
              {"abc", "abcd", -1},
              {"abc", "c", 2},
              {"abc", "", -1},
              {"\xC9x", "\xC9X", 0},
              {"\xC9\xC9", "\xC9\xE9", -1}};
  for (const auto& row : rows) {
    const char* const found = qz::StringSearch(row.text, row.find);
    EXPECT_EQ(found == nullptr ? -1 : found - row.text, row.at) << row.text << ' ' << row.find;
  }
}

TEST(QzString, Rounds) {
  const struct {
    double value;
    int32_t decimals;
    double expected;
  } rows[] = {{2.675, 2, 2.68},
              {-2.675, 2, -2.68},
              {0.000009, 3, 0.0},
              {-0.000009, 9, 0.0},
              {-0.5, 0, -1.0},
              {2.5, 0, 3.0},
              {1e300, 2, 1e300},
              {-DBL_MAX, kMax, -DBL_MAX},
              {HUGE_VAL, 2, HUGE_VAL},
              {1.23456789, kMin, 1.234568 /* as with 6 */},
              {1.25, kMax, 1.25 + 0.0000001}};
  for (const auto& row : rows) EXPECT_EQ(qz::Round(row.value, row.decimals), row.expected) << row.value;
  EXPECT_TRUE(std::isnan(qz::Round(std::nan(""), 2)));
}

}  // namespace
