#include "Common/number.h"

#include <gtest/gtest.h>

#include <bit>
#include <cfloat>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

const char* const kTexts[] = {
    "",
    " ",
    "0",
    "-0",
    "+3",
    "-3.25",
    ".5",
    "-.5",
    "5.",
    ".",
    "-",
    "+",
    "+-3",
    "-+3",
    "++3",
    " 7",
    "\t\n7",
    "\v\f\r8",
    "\xA0"
    "9",
    "1e2",
    "1E+2",
    "1e-2",
    "1e",
    "1e+",
    "1ex",
    "2,5",
    "2.5,5",
    "abc",
    "7abc",
    "1_000",
    "1e400",
    "-1e400",
    "1e-400",
    "-1e-400",
    "4.9e-324",
    "2e-324",
    "1.7976931348623159e308",
    "2.2250738585072011e-308",
    "0x10",
    "0X1.8p3",
    "-0x1p-2",
    "0x",
    "+0x1",
    "0x.8",
    "inf",
    "-INFINITY",
    "+inf",
    "infx",
    "nan",
    "-nan",
    "NAN(1)",
    "nan(",
    "1 2",
    "- 5",
    "0.1",
    "9007199254740993",
    "123456789012345678901234567890",
    "0.000000000000000000000000000001234",
};

std::vector<double> SomeDoubles() {
  std::vector<double> values = {0.0,
                                -0.0,
                                1.0,
                                -1.0,
                                2.5,
                                0.1,
                                99.99995,
                                999999.5,
                                1e6,
                                123456.5,
                                1e-4,
                                9.9999995e-5,
                                1e100,
                                1.0 / 3.0,
                                DBL_MAX,
                                -DBL_MAX,
                                DBL_MIN,
                                DBL_TRUE_MIN,
                                -DBL_TRUE_MIN,
                                std::numeric_limits<double>::infinity(),
                                -std::numeric_limits<double>::infinity(),
                                std::nan(""),
                                -std::nan("")};
  std::mt19937_64 random(20160501);
  for (int i = 0; i < 2000; ++i) values.push_back(std::bit_cast<double>(random()));
  for (int i = 0; i < 2000; ++i) values.push_back(static_cast<double>(random() % 2000001) / 1000.0 - 1000.0);
  return values;
}

std::string General(double value) {
  char buffer[32];
  const size_t length = FormatGeneral(buffer, value);
  return {buffer, length};
}

std::string Fixed(double value, int32_t decimals) {
  char buffer[kFixedTextSize];
  const size_t length = FormatFixed(buffer, value, decimals);
  return {buffer, length};
}

std::string Printed(const char* format, int decimals, double value) {
  char buffer[kFixedTextSize];
  std::snprintf(buffer, sizeof buffer, format, decimals, value);
  return buffer;
}

bool Identical(double a, double b) {
  return (std::isnan(a) && std::isnan(b) && std::signbit(a) == std::signbit(b)) ||
         std::bit_cast<uint64_t>(a) == std::bit_cast<uint64_t>(b);
}

// What the C library answers in the C locale, collected before the locale changes.
struct Reference {
  std::vector<double> doubles = SomeDoubles();
  std::vector<double> parsed;
  std::vector<std::string> general;
  std::vector<std::string> fixed;

  Reference() {
    for (const char* text : kTexts) parsed.push_back(std::strtod(text, nullptr));
    for (const double value : doubles) {
      general.push_back(Printed("%.*g", 6, value));
      fixed.push_back(Printed("%.*f", 3, value));
    }
  }

  void Check() const {
    for (size_t i = 0; i < parsed.size(); ++i) {
      EXPECT_TRUE(Identical(ParseDouble(kTexts[i]), parsed[i])) << '"' << kTexts[i] << '"';
    }
    for (size_t i = 0; i < doubles.size(); ++i) {
      EXPECT_EQ(General(doubles[i]), general[i]);
      EXPECT_EQ(Fixed(doubles[i], 3), fixed[i]);
    }
  }
};

TEST(Number, AgreesWithTheCLibraryInAnyLocale) {
  const Reference reference;
  reference.Check();

  for (const char* locale : {"de_DE.UTF-8", "de_DE.utf8", "de_DE"}) {
    if (std::setlocale(LC_ALL, locale) == nullptr) continue;
    EXPECT_EQ(Printed("%.*f", 1, 2.5), "2,5");
    reference.Check();
    std::setlocale(LC_ALL, "C");
    return;
  }
  GTEST_SKIP() << "no German locale";
}

TEST(Number, FixedTakesAnyNumberOfDecimals) {
  for (const double value : {0.1, -2.5, DBL_MAX, -DBL_MAX, DBL_TRUE_MIN, -std::nan("")}) {
    for (const int32_t decimals : {0, 1, 17, 400, 1074, -1}) {
      EXPECT_EQ(Fixed(value, decimals), Printed("%.*f", decimals, value)) << value << ' ' << decimals;
    }
    EXPECT_EQ(Fixed(value, std::numeric_limits<int32_t>::max()), Fixed(value, kMaxDecimals));
  }
  EXPECT_EQ(Fixed(-DBL_MAX, kMaxDecimals).size(), kFixedTextSize - 1);
}

TEST(Number, ParsesIntegers) {
  const struct {
    const char* text;
    int32_t value;
  } rows[] = {
      {"", 0},
      {nullptr, 0},
      {"12", 12},
      {" \t\v\f\r\n-7x", -7},
      {"+3.9", 3},
      {"--3", 0},
      {"+ 3", 0},
      {"0x10", 0},
      {"007", 7},
      {"\xA0"
       "5",
       0},
      {"2147483647", std::numeric_limits<int32_t>::max()},
      {"2147483648", std::numeric_limits<int32_t>::max()},
      {"-2147483648", std::numeric_limits<int32_t>::min()},
      {"-2147483649", std::numeric_limits<int32_t>::min()},
      {"99999999999999999999999999999999", std::numeric_limits<int32_t>::max()},
      {"-99999999999999999999999999999999", std::numeric_limits<int32_t>::min()},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ParseInt32(row.text), row.value) << (row.text != nullptr ? row.text : "(null)");
  }
}

}  // namespace
