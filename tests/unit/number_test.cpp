#include "Common/number.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cfloat>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int32_t kGreatestInt = std::numeric_limits<int32_t>::max();
constexpr int32_t kLeastInt = std::numeric_limits<int32_t>::min();

const char* const kTexts[] = {
    // ordinary numbers, signs and blanks
    "0", "-0", "+3", "-3.25", ".5", "-.5", "5.", " 7", "\t\n7", "\v\f\r8", "1e2", "1E+2", "1e-2", "0.1",
    // no number, or something behind it
    "", " ", ".", "-", "+", "+-3", "-+3", "++3", "- 5", "\2409", "abc", "7abc", "1 2", "2,5", "2.5,5", "1e",
    "1e+", "1ex", "1_000",
    // at and beyond the limits
    "1e400", "-1e400", "1e-400", "-1e-400", "4.9e-324", "2e-324", "1.7976931348623159e308",
    "2.2250738585072011e-308", "9007199254740993", "123456789012345678901234567890",
    // other notations
    "0x10", "0X1.8p3", "-0x1p-2", "0x", "+0x1", "0x.8", "inf", "-INFINITY", "+inf", "infx", "nan", "-nan",
    "NAN(1)", "nan("};

// The texts above, and plain decimals of every length up to a little more than a double holds.
std::vector<std::string> _SomeTexts() {
  std::vector<std::string> texts(std::begin(kTexts), std::end(kTexts));
  std::mt19937_64 random(20160502);
  for (size_t i = 0; i < 4000; ++i) {
    std::string text = std::to_string(random() % 1000000000 + 1) + std::to_string(random() % 1000000000);
    text.resize(std::min(text.size(), 1 + i % 18));
    if (i % 4 != 0) text.insert(static_cast<size_t>(random() % (text.size() + 1)), 1, '.');
    texts.push_back(text);
  }
  return texts;
}

std::vector<double> _SomeDoubles() {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  std::vector<double> values = {0.0, -0.0, 2.5,          -0.1,    99.99995, 999999.5,
                                1e6, 1e-4, 9.9999995e-5, DBL_MAX, DBL_MIN};
  values.insert(values.end(), {-DBL_TRUE_MIN, kInfinity, -kInfinity, std::nan(""), -std::nan("")});
  std::mt19937_64 random(20160501);
  for (int i = 0; i < 2000; ++i) values.push_back(std::bit_cast<double>(random()));
  for (int i = 0; i < 2000; ++i) values.push_back(static_cast<double>(random() % 2000001) / 1000.0 - 1000.0);
  return values;
}

std::string _Printed(const char* format, int decimals, double value) {
  char buffer[kFixedTextSize];
  std::snprintf(buffer, sizeof buffer, format, decimals, value);
  return buffer;
}

std::string _Fixed(double value, int32_t decimals) {
  char buffer[kFixedTextSize];
  const size_t length = FormatFixed(buffer, value, decimals);
  return {buffer, length};
}

// What `call` gives in the C locale, whatever the program's is.
template <typename Call>
auto _InCLocale(Call call) {
  static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
  const locale_t old = uselocale(locale);
  const auto result = call();
  uselocale(old);
  return result;
}

void _ExpectTheCLibrarysAnswers() {
  for (const std::string& text : _SomeTexts()) {
    const double expected = _InCLocale([&] { return std::strtod(text.c_str(), nullptr); });
    const double parsed = ParseDouble(text.c_str());
    EXPECT_EQ(std::signbit(parsed), std::signbit(expected)) << '"' << text << '"';
    EXPECT_TRUE(parsed == expected || (std::isnan(parsed) && std::isnan(expected))) << text;
  }
  for (const double value : _SomeDoubles()) {
    char general[32];
    const std::string expected = _InCLocale([&] { return _Printed("%.*g", 6, value); });
    EXPECT_EQ(FormatGeneral(general, value), expected.size());
    EXPECT_EQ(general, expected);
    EXPECT_EQ(_Fixed(value, 3), _InCLocale([&] { return _Printed("%.*f", 3, value); }));
  }
}

TEST(Number, AgreesWithTheCLibraryInEveryLocale) {
  _ExpectTheCLibrarysAnswers();
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) GTEST_SKIP() << "no German locale";
  EXPECT_EQ(_Printed("%.*f", 1, 2.5), "2,5");
  _ExpectTheCLibrarysAnswers();
  std::setlocale(LC_ALL, "C");
}

TEST(Number, FixedTakesAnyNumberOfDecimals) {
  for (const double value : {0.1, -2.5, -DBL_MAX, DBL_TRUE_MIN, -std::nan("")}) {
    for (const int32_t decimals : {0, 17, kMaxDecimals, -1}) {
      EXPECT_EQ(_Fixed(value, decimals), _Printed("%.*f", decimals, value)) << value << ' ' << decimals;
    }
    EXPECT_EQ(_Fixed(value, kGreatestInt), _Fixed(value, kMaxDecimals));
  }
  EXPECT_EQ(_Fixed(-DBL_MAX, kMaxDecimals).size(), kFixedTextSize - 1);
}

TEST(Number, PlainIsWhatPeopleWrite) {
  const struct {
    double value;
    int32_t decimals;
    const char* text;
  } rows[] = {
      {0.0, -1, "0"},
      {-0.0, -1, "0"},
      {7.5, -1, "7.5"},
      {-0.25, -1, "-0.25"},
      {0.1 + 0.2, -1, "0.3"},
      {1e6, -1, "1000000"},
      {1234.567, -1, "1234.567"},
      {1.0 / 3, -1, "0.3333333333"},
      {12345678901.5, -1, "12345678900"},
      {1e-7, -1, "0.0000001"},
      {9999999999.9, -1, "10000000000"},
      {2.675, 2, "2.68"},  // as a double a little less
      {-2.675, 2, "-2.68"},
      {2.674, 2, "2.67"},
      {0.00499999, 2, "0"},
      {-0.004, 2, "0"},
      {0.005, 2, "0.01"},
      {9.999, 2, "10"},
      {2.5, 0, "3"},
      {0.5, 0, "1"},
      {1e-300, 2, "0"},
      {1e12, 2, "1000000000000"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(PlainNumber(row.value, row.decimals), row.text) << row.value << ' ' << row.decimals;
  }
  EXPECT_EQ(PlainNumber(1e300), "1" + std::string(300, '0'));
}

TEST(Number, ParsesIntegers) {
  const struct {
    const char* text;
    int32_t value;
  } rows[] = {
      {"", 0},
      {nullptr, 0},
      {" \t\v\f\r\n-7x", -7},
      {"+3.9", 3},
      {"--3", 0},
      {"+ 3", 0},
      {"0x10", 0},
      {"\2405", 0},
      {"2147483647", kGreatestInt},
      {"2147483648", kGreatestInt},
      {"-2147483648", kLeastInt},
      {"-2147483649", kLeastInt},
      {"99999999999999999999999999999999", kGreatestInt},
      {"-99999999999999999999999999999999", kLeastInt},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ParseInt32(row.text), row.value) << (row.text != nullptr ? row.text : "(null)");
  }
}

}  // namespace
