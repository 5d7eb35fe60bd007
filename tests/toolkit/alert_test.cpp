#include "Toolkit/Alert.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Row {
  const char *name, *format;
  std::vector<AlertArgument> arguments;
  const char* expected;
};

class AlertText : public testing::TestWithParam<Row> {};

TEST_P(AlertText, Expands) {
  const Row& row = GetParam();
  EXPECT_EQ(ExpandAlertText(row.format, row.arguments), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Places, AlertText,
    testing::Values(
        Row{"text", "Saved in %s.", {std::string("/tmp/a.csv")}, "Saved in /tmp/a.csv."},
        Row{"numbers", "%d of %ld and %u", {int64_t{3}, int64_t{-12}, int64_t{7}}, "3 of -12 and 7"},
        Row{"percent sign", "100%% of %s", {std::string("it")}, "100% of it"},
        Row{"a place in an argument is data",
            "<%s> <%s>",
            {std::string("%s%n%d"), std::string("x")},
            "<%s%n%d> <x>"},
        Row{"number as text", "%s", {int64_t{42}}, "42"},
        Row{"text where a number belongs", "%d %s", {std::string("a")}, "%d a"},
        Row{"no argument left", "%s %s", {std::string("a")}, "a %s"},
        Row{"unknown conversions stand", "%n %x %5d %", {int64_t{1}}, "%n %x %5d %"},
        Row{"Roman format, UTF-8 argument",
            "A\x96o: %s",
            {Utf8Text{"\xC3\xA9\xE6\x96\x87"}},
            "A\xC3\xB1o: \xC3\xA9\xE6\x96\x87"},
        Row{"Roman argument", "%s", {std::string("\x8E")}, "\xC3\xA9"}),
    [](const auto& param) {
      std::string name = param.param.name;
      for (char& c : name) c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
      return name;
    });

TEST(AlertMap, IgnoresAnIndexOutsideOfTheTable) {
  SetAlertMap(kAlertMapSize - 1, 7);
  SetAlertMap(kAlertMapSize, 8);
  EXPECT_EQ(mapTable[kAlertMapSize - 1], 7);
}

}  // namespace
