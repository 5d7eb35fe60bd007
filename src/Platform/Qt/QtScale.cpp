#include "Platform/Qt/QtScale.h"

#include <QApplication>
#include <QFontMetrics>
#include <algorithm>
#include <cmath>

#include "Platform/Qt/QtText.h"

namespace ui {

namespace {

// Templates have room for 9 point text at 96 dots per inch as wide as DejaVu Sans and as high as Noto Sans,
// the widest and the highest of the usual fonts. Measured with the text below.
constexpr double kDrawnForWidth = 614;
constexpr double kDrawnForHeight = 17;

constexpr char kMeasuredText[] =
    "The quick brown fox jumps over the lazy dog. "
    "Extract User ID from the Student information, Select All.";

int16_t _Times(int distance, double factor) {
  return ToInt16(static_cast<int>(std::lround(distance * factor)));
}

}  // namespace

Scale ScaleOfApplicationFont() {
  const QFontMetrics metrics(QApplication::font());
  const double width = metrics.horizontalAdvance(QLatin1String(kMeasuredText));
  return {std::max(width / kDrawnForWidth, 1.0), std::max(metrics.height() / kDrawnForHeight, 1.0)};
}

int ScaledWidth(int distance, const Scale& scale) {
  return _Times(distance, scale.horizontal);
}

Rect Scaled(const Rect& drawn, const Scale& scale) {
  return {_Times(drawn.top, scale.vertical), _Times(drawn.left, scale.horizontal),
          _Times(drawn.bottom, scale.vertical), _Times(drawn.right, scale.horizontal)};
}

}  // namespace ui
