// A histogram of scores, drawn in the colours of the palette.
#ifndef GRADIX_HISTOGRAMWIDGET_H
#define GRADIX_HISTOGRAMWIDGET_H

#include <QWidget>
#include <vector>

#include "Export/Statistics.h"

class QPainter;

namespace host {

// Told to assistive technology as a chart, with what it shows as the description.
class HistogramWidget : public QWidget {
 public:
  explicit HistogramWidget(QWidget* parent);

  // Both of the same scores.
  void ShowScores(const ScoreStatistics& statistics, const Histogram& histogram);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Axes {
    std::vector<double> counts;
    std::vector<double> points;
    QRectF plot;
  };

  void Retranslate();
  QString Summary() const;
  QString Bins() const;
  bool HasTitles() const;
  Axes LayOut() const;
  std::vector<double> PointTicks(double width) const;
  QRectF BarOf(const Axes& axes, size_t bin) const;
  void DrawBars(QPainter* painter, const Axes& axes) const;
  void DrawPoints(QPainter* painter, const Axes& axes) const;
  void DrawCounts(QPainter* painter, const Axes& axes) const;
  size_t HighestBin() const;
  size_t HighestCount() const;

  ScoreStatistics m_statistics;
  Histogram m_histogram;
};

}  // namespace host

#endif  // GRADIX_HISTOGRAMWIDGET_H
