// A histogram of scores, drawn in the colours of the palette.
#ifndef GRADIX_HISTOGRAMWIDGET_H
#define GRADIX_HISTOGRAMWIDGET_H

#include <QWidget>

#include "Export/Statistics.h"

namespace host {

class HistogramWidget : public QWidget {
 public:
  explicit HistogramWidget(QWidget* parent);

  void SetHistogram(const Histogram& histogram);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Retranslate();
  QRectF PlotArea() const;
  QRectF BarOf(const QRectF& plot, size_t bin) const;
  void DrawBars(QPainter* painter, const QRectF& plot) const;
  void DrawAxes(QPainter* painter, const QRectF& plot) const;
  size_t HighestCount() const;

  Histogram m_histogram;
};

}  // namespace host

#endif  // GRADIX_HISTOGRAMWIDGET_H
