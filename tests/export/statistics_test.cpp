#include "Export/Statistics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr std::nullopt_t kMissing = std::nullopt;
const double kInfinity = std::numeric_limits<double>::infinity();
const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kHuge = std::numeric_limits<double>::max();

TEST(Statistics, Figures) {
  struct Case {
    Scores scores;
    size_t missing;
    double mean, median, minimum, maximum, deviation;
  };
  const Case cases[] = {
      {{5.0}, 0, 5, 5, 5, 5, 0},
      {{2.0, 4.0, 4.0, 4.0, 5.0, 5.0, 7.0, 9.0}, 0, 5, 4.5, 2, 9, 2},
      {{9.0, kMissing, 1.0, kMissing, 2.0}, 2, 4, 2, 1, 9, std::sqrt(38.0 / 3)},
      {{0.0, -1.5, kInfinity, 1.5, kNaN}, 0, 0, 0, -1.5, 1.5, std::sqrt(1.5)},
      {{kHuge, kHuge}, 0, kHuge, kHuge, kHuge, kHuge, 0},
      {{1e9 + 1, 1e9 + 2, 1e9 + 3}, 0, 1e9 + 2, 1e9 + 2, 1e9 + 1, 1e9 + 3, std::sqrt(2.0 / 3)},
  };
  for (const Case& test : cases) {
    const ScoreStatistics statistics = ComputeStatistics(test.scores);
    SCOPED_TRACE(&test - cases);
    EXPECT_EQ(statistics.students, test.scores.size());
    EXPECT_EQ(statistics.missing, test.missing);
    EXPECT_EQ(statistics.results, test.scores.size() - test.missing);
    ASSERT_TRUE(statistics.figures);
    EXPECT_DOUBLE_EQ(statistics.figures->mean, test.mean);
    EXPECT_DOUBLE_EQ(statistics.figures->median, test.median);
    EXPECT_DOUBLE_EQ(statistics.figures->minimum, test.minimum);
    EXPECT_DOUBLE_EQ(statistics.figures->maximum, test.maximum);
    EXPECT_NEAR(statistics.figures->standardDeviation, test.deviation, 1e-12);
  }
}

TEST(Statistics, NothingToCompute) {
  for (const Scores& scores : {Scores{}, Scores{kMissing, kMissing}, Scores{kNaN, kInfinity}}) {
    EXPECT_FALSE(ComputeStatistics(scores).figures);
  }
}

TEST(Statistics, HistogramBins) {
  struct Case {
    Scores scores;
    double pointsPossible, low, high;
    std::array<size_t, 10> counts;
  };
  const Case cases[] = {
      {{}, 10, 0, 10, {}},
      {{}, 0, 0, 1, {}},
      {{0.0, 0.99, 1.0, 9.0, 10.0, kMissing}, 10, 0, 10, {2, 1, 0, 0, 0, 0, 0, 0, 0, 2}},
      {{12.0, 0.0}, 10, 0, 12, {1, 0, 0, 0, 0, 0, 0, 0, 0, 1}},
      {{-10.0, 10.0, 0.0}, 10, -10, 10, {1, 0, 0, 0, 0, 1, 0, 0, 0, 1}},
      {{0.0, 0.0}, 0, 0, 1, {2}},
      {{kNaN, kInfinity, -kInfinity, 3.0}, 10, 0, 10, {0, 0, 0, 1}},
      {{-kHuge, kHuge}, 1, -kHuge, kHuge, {1, 0, 0, 0, 0, 0, 0, 0, 0, 1}},
      // 0.3 lies on a bound that 0.1 * 3 misses.
      {{0.1, 0.3, 0.7}, 1, 0, 1, {0, 1, 0, 1, 0, 0, 0, 1, 0, 0}},
  };
  for (const Case& test : cases) {
    const Histogram histogram = ComputeHistogram(test.scores, test.pointsPossible);
    SCOPED_TRACE(&test - cases);
    EXPECT_EQ(histogram.low, test.low);
    EXPECT_EQ(histogram.high, test.high);
    EXPECT_EQ(histogram.counts, test.counts);
  }
}

}  // namespace
