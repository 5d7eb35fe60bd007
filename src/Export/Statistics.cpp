#include "Export/Statistics.h"

#include <algorithm>
#include <cmath>

namespace {

std::vector<double> _FiniteScores(const Scores& scores) {
  std::vector<double> finite;
  finite.reserve(scores.size());
  for (const std::optional<double>& score : scores) {
    if (score && std::isfinite(*score)) finite.push_back(*score);
  }
  return finite;
}

double _MedianOfSorted(const std::vector<double>& sorted) {
  const size_t middle = sorted.size() / 2;
  if (sorted.size() % 2 == 1) return sorted[middle];
  return sorted[middle - 1] / 2 + sorted[middle] / 2;
}

ScoreFigures _FiguresOf(std::vector<double> scores) {
  std::sort(scores.begin(), scores.end());
  ScoreFigures figures;
  figures.median = _MedianOfSorted(scores);
  figures.minimum = scores.front();
  figures.maximum = scores.back();
  double squares = 0.0;
  double count = 0.0;
  for (const double score : scores) {
    count += 1.0;
    const double step = score - figures.mean;
    figures.mean += step / count;
    squares += step * (score - figures.mean);
  }
  figures.standardDeviation = std::sqrt(squares / count);
  return figures;
}

}  // namespace

ScoreStatistics ComputeStatistics(const Scores& scores) {
  ScoreStatistics statistics;
  statistics.students = scores.size();
  statistics.missing = static_cast<size_t>(std::count(scores.begin(), scores.end(), std::nullopt));
  statistics.results = statistics.students - statistics.missing;
  const std::vector<double> finite = _FiniteScores(scores);
  if (!finite.empty()) statistics.figures = _FiguresOf(finite);
  return statistics;
}

double Histogram::Bound(size_t bin) const {
  const double part = static_cast<double>(bin) / static_cast<double>(kBins);
  return low * (1.0 - part) + high * part;
}

Histogram ComputeHistogram(const Scores& scores, double pointsPossible) {
  Histogram histogram;
  histogram.high = std::max(pointsPossible, 0.0);
  const std::vector<double> finite = _FiniteScores(scores);
  for (const double score : finite) {
    histogram.low = std::min(histogram.low, score);
    histogram.high = std::max(histogram.high, score);
  }
  if (histogram.high <= histogram.low) histogram.high = histogram.low + 1.0;
  for (const double score : finite) {
    // The bounds themselves decide, so that a score on one is never rounded into the bin below.
    size_t bin = 0;
    while (bin + 1 < Histogram::kBins && score >= histogram.Bound(bin + 1)) ++bin;
    ++histogram.counts[bin];
  }
  return histogram;
}
