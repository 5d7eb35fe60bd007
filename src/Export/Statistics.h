// What the scores of one assignment tell: a few figures and their distribution.
#ifndef GRADIX_EXPORT_STATISTICS_H
#define GRADIX_EXPORT_STATISTICS_H

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

// By position in the roster; none for a student without results.
using Scores = std::vector<std::optional<double>>;

// The figures leave out scores that are not finite.
struct ScoreFigures {
  double mean = 0.0;
  double median = 0.0;
  double minimum = 0.0;
  double maximum = 0.0;
  double standardDeviation = 0.0;  // of the class itself, not estimated from a sample
};

struct ScoreStatistics {
  size_t students = 0;
  size_t results = 0;
  size_t missing = 0;
  std::optional<ScoreFigures> figures;  // none without a finite score
};

ScoreStatistics ComputeStatistics(const Scores& scores);

// Ten bins of equal width from `low` to `high`. A bin holds its lower bound; the last one its upper, too.
struct Histogram {
  static constexpr size_t kBins = 10;

  double low = 0.0;
  double high = 1.0;
  std::array<size_t, kBins> counts{};

  // The lower bound of a bin; `high` for kBins.
  double Bound(size_t bin) const;
};

// From 0 to the points possible, or farther where a score lies outside. Scores that are not finite count
// nowhere.
Histogram ComputeHistogram(const Scores& scores, double pointsPossible);

#endif  // GRADIX_EXPORT_STATISTICS_H
