#include "Toolkit/Alert.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(AlertText, PutsItsArgumentsInTheirPlaces) {
  const struct {
    const char *name, *format;
    std::vector<AlertArgument> arguments;
    const char* expected;
  } rows[] = {
      {"numbers", "%d of %ld and %u", {int64_t{3}, int64_t{-12}, int64_t{7}}, "3 of -12 and 7"},
      {"percent sign", "100%% of %s", {std::string("it")}, "100% of it"},
      {"data", "<%s> <%s>", {std::string("%s%n%d"), std::string("x")}, "<%s%n%d> <x>"},
      {"number as text", "%s", {int64_t{42}}, "42"},
      {"text where a number belongs", "%d %s", {std::string("a")}, "%d a"},
      {"no argument left", "%s %s", {std::string("a")}, "a %s"},
      {"unknown conversions stand", "%n %x %5d %", {int64_t{1}}, "%n %x %5d %"},
      {"Roman, UTF-8", "A\x96o: %s", {Utf8Text{"\xC3\xA9\xE6\x96\x87"}}, "A\xC3\xB1o: \xC3\xA9\xE6\x96\x87"},
      {"Roman argument", "%s", {std::string("\x8E")}, "\xC3\xA9"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(ExpandAlertText(row.format, row.arguments), row.expected) << row.name;
}

TEST(AlertMap, IgnoresAnIndexOutsideOfTheTable) {
  SetAlertMap(kAlertMapSize - 1, 7);
  SetAlertMap(kAlertMapSize, 8);
  EXPECT_EQ(mapTable[kAlertMapSize - 1], 7);
}

}  // namespace
