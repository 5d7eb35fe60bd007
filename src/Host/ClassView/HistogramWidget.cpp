#include "Host/ClassView/HistogramWidget.h"

#include <QEvent>
#include <QLocale>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <numeric>

#include "Host/App/AccessibleRoles.h"
#include "Host/App/Numbers.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/AxisTicks.h"

namespace host {

namespace {

constexpr double kGap = 4.0;        // around labels
constexpr double kBarPart = 0.86;   // of a bin's width
constexpr int kLinesForTitles = 8;  // a lower one has no titles at its axes

// Finer than hundredths where an axis is.
QString _TickText(double tick) {
  return QLocale().toString(tick, 'g', 12);
}

double _WidestLabel(const std::vector<double>& ticks, const QFontMetricsF& metrics) {
  double widest = 0;
  for (const double tick : ticks) widest = std::max(widest, metrics.horizontalAdvance(_TickText(tick)));
  return widest;
}

}  // namespace

HistogramWidget::HistogramWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("histogram"));
  SetAccessibleRole(this, QAccessible::Chart);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  Retranslate();
}

void HistogramWidget::ShowScores(const ScoreStatistics& statistics, const Histogram& histogram) {
  m_statistics = statistics;
  m_histogram = histogram;
  Retranslate();
}

void HistogramWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

// What is drawn is told in words, too.
void HistogramWidget::Retranslate() {
  setAccessibleName(Texts::tr("Score distribution"));
  setAccessibleDescription(HighestCount() == 0 ? Texts::tr("No results yet")
                                               : Summary() + QStringLiteral(". ") + Bins());
  update();
}

QString HistogramWidget::Summary() const {
  const auto results =
      static_cast<int>(std::accumulate(m_histogram.counts.begin(), m_histogram.counts.end(), size_t{0}));
  const QString lowest = NumberText(m_statistics.figures->minimum);
  const QString highest = NumberText(m_statistics.figures->maximum);
  if (lowest == highest) return Texts::tr("%n result(s) of %1 points", nullptr, results).arg(highest);
  const size_t bin = HighestBin();
  return Texts::tr("%n result(s) from %1 to %2 points; most, %3, from %4 to %5", nullptr, results)
      .arg(lowest, highest, CountText(HighestCount()), NumberText(m_histogram.Bound(bin)),
           NumberText(m_histogram.Bound(bin + 1)));
}

QString HistogramWidget::Bins() const {
  QStringList bins;
  for (size_t bin = 0; bin < Histogram::kBins; ++bin) {
    if (m_histogram.counts[bin] == 0) continue;
    bins += Texts::tr("%1 to %2: %3")
                .arg(NumberText(m_histogram.Bound(bin)), NumberText(m_histogram.Bound(bin + 1)),
                     CountText(m_histogram.counts[bin]));
  }
  return bins.join(QLatin1String("; "));
}

QSize HistogramWidget::sizeHint() const {
  const int line = fontMetrics().height();
  return {line * 18, line * 12};
}

QSize HistogramWidget::minimumSizeHint() const {
  const int line = fontMetrics().height();
  return {line * 10, line * 5};
}

size_t HistogramWidget::HighestBin() const {
  const auto& counts = m_histogram.counts;
  return static_cast<size_t>(std::max_element(counts.begin(), counts.end()) - counts.begin());
}

size_t HistogramWidget::HighestCount() const {
  return m_histogram.counts[HighestBin()];
}

bool HistogramWidget::HasTitles() const {
  return height() >= kLinesForTitles * fontMetrics().height();
}

// Above the bars one line for counts; below a line for the points, and one for the axis's title.
HistogramWidget::Axes HistogramWidget::LayOut() const {
  Axes axes;
  const QFontMetricsF metrics(font());
  const double line = metrics.height();
  const double title = HasTitles() ? line : 0;
  const double height = rect().height() - line - kGap - (line + 2 * kGap) - title;
  const auto highest = static_cast<double>(HighestCount());
  axes.counts = AxisTicks(0, highest, [&](double step) { return height * step >= line * highest; });
  const double left = kGap + title + _WidestLabel(axes.counts, metrics) + 2 * kGap;
  const double right = metrics.horizontalAdvance(NumberText(m_histogram.high)) / 2 + kGap;
  axes.plot = QRectF(left, line + kGap, std::max(rect().width() - left - right, 1.0), std::max(height, 1.0));
  axes.points = PointTicks(axes.plot.width());
  return axes;
}

std::vector<double> HistogramWidget::PointTicks(double width) const {
  const QFontMetricsF metrics(font());
  const double low = m_histogram.low;
  const double high = m_histogram.high;
  const double gap = metrics.horizontalAdvance(QLatin1Char(' ')) + kGap;
  const auto labels = [&](double step) { return _WidestLabel({low, high, low + step}, metrics) + gap; };
  return AxisTicks(low, high, [&](double step) { return width * (step / (high - low)) >= labels(step); });
}

QRectF HistogramWidget::BarOf(const Axes& axes, size_t bin) const {
  const double width = axes.plot.width() / static_cast<double>(Histogram::kBins);
  const double part = static_cast<double>(m_histogram.counts[bin]) / static_cast<double>(HighestCount());
  const double height = axes.plot.height() * part;
  const double left = axes.plot.left() + width * (static_cast<double>(bin) + (1.0 - kBarPart) / 2);
  return {left, axes.plot.bottom() - height, width * kBarPart, height};
}

void HistogramWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  const Axes axes = LayOut();
  if (HighestCount() == 0) {
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    painter.drawText(axes.plot, Qt::AlignCenter | Qt::TextWordWrap, Texts::tr("No results yet"));
  } else {
    DrawBars(&painter, axes);
  }
  painter.setPen(palette().color(QPalette::Text));
  DrawPoints(&painter, axes);
  DrawCounts(&painter, axes);
}

// The counts stand above the bars as long as they are narrower.
void HistogramWidget::DrawBars(QPainter* painter, const Axes& axes) const {
  const QFontMetricsF metrics(font());
  const double line = metrics.height();
  const auto countOf = [this](size_t bin) { return CountText(m_histogram.counts[bin]); };
  const double width = axes.plot.width() / static_cast<double>(Histogram::kBins);
  const bool hasCounts = metrics.horizontalAdvance(countOf(HighestBin())) <= width;
  for (size_t bin = 0; bin < Histogram::kBins; ++bin) {
    if (m_histogram.counts[bin] == 0) continue;
    const QRectF bar = BarOf(axes, bin);
    painter->fillRect(bar, palette().color(QPalette::Highlight));
    painter->setPen(palette().color(QPalette::Text));
    const QRectF label(bar.left() - line, bar.top() - line - 1, bar.width() + 2 * line, line);
    if (hasCounts) painter->drawText(label, Qt::AlignCenter, countOf(bin));
  }
}

void HistogramWidget::DrawPoints(QPainter* painter, const Axes& axes) const {
  const QRectF& plot = axes.plot;
  const double line = fontMetrics().height();
  painter->drawLine(plot.bottomLeft(), plot.bottomRight());
  const double top = plot.bottom() + kGap;
  for (const double tick : axes.points) {
    const double part = (tick - m_histogram.low) / (m_histogram.high - m_histogram.low);
    const double x = plot.left() + plot.width() * part;
    painter->drawLine(QPointF(x, plot.bottom()), QPointF(x, top));
    painter->drawText(QRectF(x - plot.width(), top, 2 * plot.width(), line), Qt::AlignCenter,
                      _TickText(tick));
  }
  if (!HasTitles()) return;
  const QRectF title(plot.left(), top + line, plot.width(), line);
  painter->drawText(title, Qt::AlignCenter | Qt::TextDontClip, Texts::tr("Points"));
}

void HistogramWidget::DrawCounts(QPainter* painter, const Axes& axes) const {
  const QRectF& plot = axes.plot;
  const double line = fontMetrics().height();
  painter->drawLine(plot.bottomLeft(), plot.topLeft());
  for (const double tick : axes.counts) {
    const double y = plot.bottom() - plot.height() * tick / static_cast<double>(HighestCount());
    painter->drawLine(QPointF(plot.left() - kGap, y), QPointF(plot.left(), y));
    const QRectF label(0, y - line / 2, plot.left() - 2 * kGap, line);
    painter->drawText(label, Qt::AlignRight | Qt::AlignVCenter, _TickText(tick));
  }
  if (!HasTitles()) return;
  painter->translate(kGap, height());
  painter->rotate(-90);
  const QRectF title(height() - plot.bottom(), 0, plot.height(), line);
  painter->drawText(title, Qt::AlignCenter | Qt::TextDontClip, Texts::tr("Students"));
}

}  // namespace host
