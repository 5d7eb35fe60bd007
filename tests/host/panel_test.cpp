// Figures and axes beside the table.
#include <cmath>

#include "Host/App/Numbers.h"
#include "Host/ClassView/AxisTicks.h"
#include "Host/ClassView/HistogramWidget.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

class PanelTest : public HostTest {};

TEST_F(PanelTest, NumbersHaveAtMostTwoDecimals) {
  const struct {
    double number;
    const char* english;
    const char* spanish;
  } rows[] = {
      {7, "7", "7"},      {7.5, "7.5", "7,5"},       {22.0 / 3, "7.33", "7,33"},  {9.995001, "10", "10"},
      {-0.004, "0", "0"}, {-0.25, "-0.25", "-0,25"}, {1e300, "1E+300", "1E+300"}, {HUGE_VAL, "inf", "inf"}};
  for (const auto& row : rows) {
    SetCurrentLanguage(HostLanguage::kEnglish);
    EXPECT_EQ(NumberText(row.number), QString::fromLatin1(row.english));
    SetCurrentLanguage(HostLanguage::kSpanish);
    EXPECT_EQ(NumberText(row.number), QString::fromLatin1(row.spanish));
  }
}

TEST_F(PanelTest, TicksAreWholeNumbersThatFit) {
  const struct {
    double low, high, least;  // least: the least step that fits
    std::vector<double> ticks;
  } rows[] = {{0, 6, 0, {0, 1, 2, 3, 4, 5, 6}},
              {0, 11, 1.5, {0, 2, 4, 6, 8, 10}},
              {0, 100, 12, {0, 20, 40, 60, 80, 100}},
              {-2.5, 7.5, 3, {0, 5}},
              {0, 1, 0, {0, 1}},
              {0, 0.6, 0.2, {0, 0.2, 0.4, 0.6}},
              {0, 3, 99, {0}},
              {0, 0, 0, {}},
              {-HUGE_VAL, 3, 0, {}}};
  for (const auto& row : rows) {
    const auto ticks = AxisTicks(row.low, row.high, [&row](double step) { return step >= row.least; });
    ASSERT_EQ(ticks.size(), row.ticks.size()) << row.low << " to " << row.high;
    for (size_t i = 0; i < ticks.size(); ++i) EXPECT_NEAR(ticks[i], row.ticks[i], 1e-12) << row.high;
  }
}

TEST_F(PanelTest, HistogramIsToldInWords) {
  HistogramWidget widget(nullptr);
  const struct {
    Scores scores;
    const char* text;
  } rows[] = {{{}, "No results yet"},
              {{std::nullopt, HUGE_VAL}, "No results yet"},
              {{1.0, std::nullopt, 9.5, 9.25},
               "3 results from 1 to 9.5 points; most, 2, from 9 to 10. 1 to 2: 1; 9 to 10: 2"},
              {{10.0}, "1 result of 10 points. 9 to 10: 1"}};
  for (const auto& row : rows) {
    widget.ShowScores(ComputeStatistics(row.scores), ComputeHistogram(row.scores, 10));
    EXPECT_EQ(widget.accessibleDescription(), QString::fromLatin1(row.text));
    for (const int width : {1, 40, 400}) {  // whatever its size, it is drawn
      widget.resize(width, width);
      EXPECT_FALSE(widget.grab().isNull());
    }
  }
}

}  // namespace

}  // namespace host
