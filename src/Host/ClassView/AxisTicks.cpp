#include "Host/ClassView/AxisTicks.h"

#include <cmath>

namespace host {

namespace {

constexpr double kFinest = 20;      // steps of an axis between two whole numbers
constexpr double kRounding = 1e-9;  // of a step
constexpr double kDigits[] = {1, 2, 5};

std::vector<double> _Multiples(double step, double low, double high) {
  const double first = std::ceil(low / step - kRounding);
  const double last = std::floor(high / step + kRounding);
  std::vector<double> multiples;
  for (int i = 0; first + i <= last; ++i) multiples.push_back((first + i) * step + 0.0);  // no negative zero
  return multiples;
}

}  // namespace

std::vector<double> AxisTicks(double low, double high, const std::function<bool(double step)>& fits) {
  const double range = high - low;
  if (!std::isfinite(range) || range <= 0) return {};
  const double least = range < 1 ? range / kFinest : 1;
  for (int exponent = static_cast<int>(std::floor(std::log10(least)));; ++exponent) {
    for (const double digit : kDigits) {
      const double step = digit * std::pow(10, exponent);
      if (step >= least && (step > range || fits(step))) return _Multiples(step, low, high);
    }
  }
}

}  // namespace host
