#include "Host/ClassView/HistogramWidget.h"

#include <QEvent>
#include <QPainter>
#include <QStringList>
#include <algorithm>

#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"

namespace host {

namespace {

constexpr double kGap = 4.0;       // around labels
constexpr double kBarPart = 0.86;  // of a bin's width

}  // namespace

HistogramWidget::HistogramWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("histogram"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  Retranslate();
}

void HistogramWidget::SetHistogram(const Histogram& histogram) {
  m_histogram = histogram;
  Retranslate();
}

// What is drawn is told in words, too.
void HistogramWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void HistogramWidget::Retranslate() {
  QStringList bins;
  for (size_t bin = 0; bin < Histogram::kBins; ++bin) {
    bins += Texts::tr("%1 to %2: %3")
                .arg(PointsText(m_histogram.Bound(bin)), PointsText(m_histogram.Bound(bin + 1)))
                .arg(m_histogram.counts[bin]);
  }
  setAccessibleName(Texts::tr("Score distribution"));
  setAccessibleDescription(HighestCount() == 0 ? Texts::tr("No results yet")
                                               : bins.join(QLatin1String("; ")));
  update();
}

QSize HistogramWidget::sizeHint() const {
  const int line = fontMetrics().height();
  return {line * 18, line * 12};
}

QSize HistogramWidget::minimumSizeHint() const {
  const int line = fontMetrics().height();
  return {line * 13, line * 8};
}

size_t HistogramWidget::HighestCount() const {
  return *std::max_element(m_histogram.counts.begin(), m_histogram.counts.end());
}

// Above the bars one line for counts; below two for the axis.
QRectF HistogramWidget::PlotArea() const {
  const double line = fontMetrics().height();
  const double side = fontMetrics().horizontalAdvance(QStringLiteral("0000")) / 2.0;
  return QRectF(rect()).adjusted(line + side, line + kGap, -side - kGap, -2 * line - 2 * kGap);
}

QRectF HistogramWidget::BarOf(const QRectF& plot, size_t bin) const {
  const double width = plot.width() / static_cast<double>(Histogram::kBins);
  const double part = static_cast<double>(m_histogram.counts[bin]) / static_cast<double>(HighestCount());
  const double height = plot.height() * part;
  const double left = plot.left() + width * (static_cast<double>(bin) + (1.0 - kBarPart) / 2);
  return {left, plot.bottom() - height, width * kBarPart, height};
}

void HistogramWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  const QRectF plot = PlotArea();
  if (HighestCount() == 0) {
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    painter.drawText(plot, Qt::AlignCenter | Qt::TextWordWrap, Texts::tr("No results yet"));
  } else {
    DrawBars(&painter, plot);
  }
  DrawAxes(&painter, plot);
}

void HistogramWidget::DrawBars(QPainter* painter, const QRectF& plot) const {
  const double line = fontMetrics().height();
  for (size_t bin = 0; bin < Histogram::kBins; ++bin) {
    if (m_histogram.counts[bin] == 0) continue;
    const QRectF bar = BarOf(plot, bin);
    painter->fillRect(bar, palette().color(QPalette::Highlight));
    painter->setPen(palette().color(QPalette::Text));
    const QRectF label = QRectF(bar.left() - line, bar.top() - line - 1, bar.width() + 2 * line, line);
    painter->drawText(label, Qt::AlignCenter, QString::number(m_histogram.counts[bin]));
  }
}

void HistogramWidget::DrawAxes(QPainter* painter, const QRectF& plot) const {
  const double line = fontMetrics().height();
  painter->setPen(palette().color(QPalette::Text));
  painter->drawLine(plot.bottomLeft(), plot.bottomRight());
  painter->drawLine(plot.bottomLeft(), plot.topLeft());
  const double binWidth = plot.width() / static_cast<double>(Histogram::kBins);
  for (size_t bin = 0; bin <= Histogram::kBins; bin += 2) {
    const double x = plot.left() + binWidth * static_cast<double>(bin);
    painter->drawLine(QPointF(x, plot.bottom()), QPointF(x, plot.bottom() + kGap));
    const QRectF label(x - binWidth, plot.bottom() + kGap, 2 * binWidth, line);
    painter->drawText(label, Qt::AlignCenter, PointsText(m_histogram.Bound(bin)));
  }
  const QRectF below(plot.left(), plot.bottom() + kGap + line, plot.width(), line);
  painter->drawText(below, Qt::AlignCenter, Texts::tr("Points"));
  painter->translate(kGap, plot.bottom());
  painter->rotate(-90);
  painter->drawText(QRectF(0, 0, plot.height(), line), Qt::AlignCenter, Texts::tr("Students"));
}

}  // namespace host
