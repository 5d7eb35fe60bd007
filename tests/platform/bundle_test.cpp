#include "Platform/Core/CFBundle.h"

#include <gtest/gtest.h>

#include "Platform/Core/CFOwned.h"
#include "Platform/Core/StringsTable.h"
#include "tests/platform/temp_folder.h"

namespace {

using Text = CFOwned<CFString>;

// Null for a null text.
Text _Make(const char* text) {
  return Text(CFStringCreateWithCString(text, kCFStringEncodingUTF8));
}

std::string _Localized(CFBundleRef bundle, const char* key, const char* value, const char* table) {
  const Text text(
      CFBundleCopyLocalizedString(bundle, _Make(key).get(), _Make(value).get(), _Make(table).get()));
  return text == nullptr ? "(null)" : CFStringGetUTF8(text.get());
}

std::string _ResourcePath(CFBundleRef bundle, const char* name, const char* type, const char* subfolder) {
  const CFOwned<CFURL> url(
      CFBundleCopyResourceURL(bundle, _Make(name).get(), _Make(type).get(), _Make(subfolder).get()));
  return url == nullptr ? "(none)" : url->path;
}

TEST(CFBundle, FollowsTheEnvironment) {
  const TempFolder folder;
  folder.Write("One.bundle/x", "");
  folder.Write("Two.bundle/x", "");
  folder.Write("file", "");
  ScopedEnvironment variable("GRADIX_BUNDLE", folder.Path("One.bundle"));
  const CFBundleRef one = CFBundleGetMainBundle();
  ASSERT_NE(one, nullptr);
  variable.Set(folder.Path("Two.bundle/"));
  EXPECT_EQ(CFOwned<CFURL>(CFBundleCopyBundleURL(CFBundleGetMainBundle()))->path, folder.Path("Two.bundle"));
  variable.Set(folder.Path("One.bundle"));
  EXPECT_EQ(CFBundleGetMainBundle(), one);
  for (const char* name : {"missing", "file"}) {
    variable.Set(folder.Path(name));
    EXPECT_EQ(CFBundleGetMainBundle(), nullptr) << name;
  }
  EXPECT_EQ(CFOwned<CFURL>(CFBundleCopyBundleURL(one))->path, folder.Path("One.bundle"));
  EXPECT_EQ(CFBundleCopyBundleURL(nullptr), nullptr);
}

TEST(CFBundle, FindsResourcesInsideOnly) {
  const TempFolder folder;
  folder.Write("outside", "");
  folder.Write("B.bundle/Info", "");
  folder.Write("B.bundle/Resources/page.html", "");
  folder.Write("B.bundle/Resources/help/page.html", "");
  const ScopedEnvironment variable("GRADIX_BUNDLE", folder.Path("B.bundle"));
  const CFBundleRef bundle = CFBundleGetMainBundle();
  const struct {
    const char *name, *type, *subfolder, *expected;
  } rows[] = {
      {"page.html", nullptr, nullptr, "page.html"}, {"page", "html", "", "page.html"},
      {"page", "html", "help", "help/page.html"},   {"page", nullptr, nullptr, nullptr},
      {"help", nullptr, nullptr, nullptr},          {"help/page", "html", nullptr, nullptr},
      {"page", "html", "help/../help", nullptr},    {"Info", nullptr, "..", nullptr},
      {"../Info", nullptr, nullptr, nullptr},       {"", nullptr, nullptr, nullptr},
      {nullptr, "html", nullptr, nullptr},          {"page", "html/../../Info", nullptr, nullptr},
  };
  for (const auto& row : rows) {
    const std::string expected =
        row.expected == nullptr ? "(none)" : folder.Path(std::string("B.bundle/Resources/") + row.expected);
    EXPECT_EQ(_ResourcePath(bundle, row.name, row.type, row.subfolder), expected)
        << (row.name == nullptr ? "(null)" : row.name);
  }
  EXPECT_EQ(_ResourcePath(nullptr, "page.html", nullptr, nullptr), "(none)");
}

TEST(CFBundle, LocalizesStrings) {
  const TempFolder folder;
  folder.Write("B.bundle/Resources/Main.strings", "\"ok\" = \"D'accord\";\n\"empty\" = \"\";\n");
  folder.Write("B.bundle/Resources/Localizable.strings", "\"ok\" = \"default\";");
  const ScopedEnvironment variable("GRADIX_BUNDLE", folder.Path("B.bundle"));
  const CFBundleRef bundle = CFBundleGetMainBundle();
  const struct {
    const char *key, *value, *table, *expected;
  } rows[] = {
      {"ok", "OK", "Main", "D'accord"},     {"empty", "x", "Main", ""},
      {"ok", "OK", nullptr, "default"},     {"missing", "value", "Main", "value"},
      {"missing", "", "Main", "missing"},   {"missing", nullptr, "Main", "missing"},
      {"ok", "value", "NoTable", "value"},  {"ok", "value", "../Resources/Main", "value"},
      {nullptr, nullptr, "Main", "(null)"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(_Localized(bundle, row.key, row.value, row.table), row.expected) << row.expected;
  }
  EXPECT_EQ(_Localized(nullptr, "ok", "value", "Main"), "value");

  folder.Write("B.bundle/Resources/Main.strings", "\"ok\" = \"changed\";");
  EXPECT_EQ(_Localized(bundle, "ok", "OK", "Main"), "D'accord") << "read once";
}

TEST(StringsTable, ReadsUpToTheFirstMalformedEntry) {
  const struct {
    const char *name, *text;
    StringsTable expected;
  } rows[] = {
      {"empty", "", {}},
      {"comments", "/* \"x\" = \"y\"; **/ // \"x\"=\"y\";\n\"a\"/*=*/=\"b\" ;", {{u"a", u"b"}}},
      {"no comment inside a text", "\"/*a\" = \"//b\";", {{u"/*a", u"//b"}}},
      {"escapes", R"("\"\\" = "\n\r\t\U00e9\U20AC\'";)", {{u"\"\\", u"\n\r\té€'"}}},
      {"surrogates", R"("a" = "\UD83D\UDE00";)", {{u"a", u"\U0001F600"}}},
      {"first counts", "\"a\" = \"1\";\"a\" = \"2\";", {{u"a", u"1"}}},
      {"UTF-8", "\xEF\xBB\xBF\"\xC3\xA9\"=\"\xE2\x82\xAC\";", {{u"é", u"€"}}},
      {"malformed UTF-8", "\"a\"=\"\xFF\";", {}},
      {"no semicolon", "\"a\"=\"1\";\"b\"=\"2\" \"c\"=\"3\";", {{u"a", u"1"}}},
      {"no closing quote", "\"a\"=\"1\";\"b\"=\"2;", {{u"a", u"1"}}},
      {"unfinished escape", "\"a\"=\"1\";\"b\"=\"\\", {{u"a", u"1"}}},
      {"short hexadecimal", "\"a\"=\"1\";\"b\"=\"\\U12\";", {{u"a", u"1"}}},
      {"no hexadecimal", "\"a\"=\"1\";\"b\"=\"\\U12G4\";", {{u"a", u"1"}}},
      {"unfinished comment", "\"a\"=\"1\";/* \"b\"=\"2\";", {{u"a", u"1"}}},
      {"without quotes", "\"a\"=\"1\"; b = \"2\";", {{u"a", u"1"}}},
  };
  for (const auto& row : rows) EXPECT_EQ(ParseStringsBytes(row.text), row.expected) << row.name;

  const std::string little("\xFF\xFE\"\0\xE9\0\"\0=\0\"\0\xAC\x20\"\0;\0", 18);
  std::string big;
  for (size_t i = 0; i < little.size(); i += 2) big.append({little[i + 1], little[i]});
  EXPECT_EQ(ParseStringsBytes(little), (StringsTable{{u"é", u"€"}}));
  EXPECT_EQ(ParseStringsBytes(big), (StringsTable{{u"é", u"€"}}));
  EXPECT_EQ(ParseStringsBytes(little.substr(0, 17)), StringsTable());
}

}  // namespace
