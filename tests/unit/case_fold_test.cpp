#include <gtest/gtest.h>

#include <string>

#include "Common/CaseFold.h"

namespace {

struct Row {
  const char* name;
  const char* text;
  const char* folded;
};

TEST(FoldCase, GivesEveryLetterOneCase) {
  const Row rows[] = {
      {"empty", "", ""},
      {"ASCII, digits and signs", "ABYZ abyz 0189 @[`{", "abyz abyz 0189 @[`{"},
      {"Latin-1", "ÀÖØÞ×÷ß", "àöøþ×÷ß"},
      {"extended Latin", "ŁĄŻİıĹŇŊŶŸŹŽĐȘȚǍ", "łążİıĺňŋŷÿźžđșțǎ"},
      {"Vietnamese and sharp s", "ƠƯẠỸẞ", "ơưạỹß"},
      {"Greek", "ΆΈΌΎΏΑΡΣΫςΩ\u2126", "άέόύώαρσϋσωω"},
      {"Cyrillic and Armenian", "ЀЏАЯҐӀӁӐԱՖ", "ѐџаяґӏӂӑաֆ"},
      {"no letters of two cases", "中文 אב\U0001F600", "中文 אב\U0001F600"},
      {"cut short", "A\xC3", "a\xC3"},
      {"cut short inside", "\xE1\xBA", "\xE1\xBA"},
      {"stray bytes", "\x80\xFF\xC3Z", "\x80\xFF\xC3z"},
      {"overlong", "\xC1\x81\xE0\x83\x80", "\xC1\x81\xE0\x83\x80"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(FoldCase(row.text), row.folded) << row.name;
    EXPECT_EQ(FoldCase(row.folded), row.folded) << row.name;
  }
}

}  // namespace
