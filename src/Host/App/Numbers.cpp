#include "Host/App/Numbers.h"

#include <QLocale>
#include <cmath>

namespace host {

namespace {

constexpr double kLarge = 1e15;  // from here on, with an exponent

}  // namespace

QString NumberText(double number) {
  const QLocale locale;
  if (!(std::abs(number) < kLarge)) return locale.toString(number, 'g', 6);
  const double hundredths = std::round(number * 100);
  if (hundredths == 0) return locale.toString(0);
  const bool tenths = std::fmod(hundredths, 10) == 0;
  const bool whole = std::fmod(hundredths, 100) == 0;
  return locale.toString(hundredths / 100, 'f', whole ? 0 : tenths ? 1 : 2);
}

QString CountText(size_t count) {
  return QLocale().toString(static_cast<qulonglong>(count));
}

}  // namespace host
