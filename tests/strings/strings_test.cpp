#include <gtest/gtest.h>

#include <cstdlib>

#include "Common/Language.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Filters/GX_StdCsv/QZLoadString.h"
#include "Platform/Core/CFOwned.h"
#include "Platform/Core/Resources.h"

namespace {

constexpr int16_t kErrors = 32500;
constexpr int16_t kInformation = 32700;

// Every id that the filter looks up.
constexpr int kStringIDs[] = {70442, 70443, 70444, 70445, 70446, 70336, 70352, 70372, 70373, 70374, 70375,
                              70376, 70377, 70378, 70532, 70063, 70064, 70065, 70066, 70342, 70345, 70347,
                              70500, 41914, 41916, 41918, 41920, 41923, 41924, 41925, 41932, 41939, 78204};

class Strings : public testing::TestWithParam<int16_t> {
 protected:
  void SetUp() override {
    setenv("GRADIX_BUNDLE", BUNDLE, 1);
    gLang = GetParam();
  }
  void TearDown() override {
    gLang = 0;
    unsetenv("GRADIX_BUNDLE");
  }
};

TEST_P(Strings, EveryIdHasAText) {
  for (const int id : kStringIDs) {
    const std::string text = QZLoadString(id);
    EXPECT_NE(text, std::to_string(id));
    EXPECT_NE(text, "") << id << " has a character that Mac OS Roman lacks";
  }
  EXPECT_EQ(QZLoadString(-5), "-5") << "a missing one is its digits";
  setenv("GRADIX_BUNDLE", BUNDLE "/missing", 1);
  EXPECT_EQ(QZLoadString(-5), "");
}

TEST_P(Strings, TheResourceFileHoldsTheAlertStrings) {
  ASSERT_TRUE(_LoadExtraResourceFile(_ExtraResourceFileName()));
  const ResFileRefNum current = CurResFile();
  EXPECT_NE(GetIndString(kInformation, 1), "");
  EXPECT_EQ(GetIndString(kInformation, 3), "%s");
  EXPECT_EQ(GetIndString(kErrors, 1), "%s");
  EXPECT_FALSE(_LoadExtraResourceFile("no such file.rsrc"));
  EXPECT_EQ(CurResFile(), current);
}

INSTANTIATE_TEST_SUITE_P(Languages, Strings, testing::Values(int16_t{0}, kLanguageSpanish));

TEST(StringTables, LanguagesDiffer) {
  setenv("GRADIX_BUNDLE", BUNDLE, 1);
  const std::string english = QZLoadString(70066);
  gLang = kLanguageSpanish;
  EXPECT_NE(QZLoadString(70066), english);
  gLang = 5;
  EXPECT_EQ(QZLoadString(70066), english) << "any other language is English";
  for (const FormatRow& row : FormatTable()) {
    gLang = 0;
    if (row.spanishNameID == 70444 && row.index == 5) continue;  // shares the string of format 4
    if (row.spanishNameID == 0) continue;
    EXPECT_EQ(QZLoadString(row.spanishNameID), row.name);
  }
  gLang = 0;
  unsetenv("GRADIX_BUNDLE");
}

TEST(StringTables, AStringThatRomanLacksIsEmpty) {
  const CFOwned<CFString> greek(CFStringCreateWithCString("\xCE\xB1", kCFStringEncodingUTF8));
  EXPECT_EQ(VeyCFStringToCString(greek.get()), "");
  const CFOwned<CFString> accent(CFStringCreateWithCString("\xC3\xA9", kCFStringEncodingUTF8));
  EXPECT_EQ(VeyCFStringToCString(accent.get()), "\x8E");
}

}  // namespace
