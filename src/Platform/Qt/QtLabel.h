// A text item. What it has no room for ends with an ellipsis.
#ifndef GRADIX_QTLABEL_H
#define GRADIX_QTLABEL_H

#include <QLabel>

namespace ui {

class QtLabel : public QLabel {
 public:
  explicit QtLabel(QWidget* parent);

  // The whole text when not all of it is shown; else empty.
  QString CutText() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString WholeText() const;
  bool IsCut() const;
};

}  // namespace ui

#endif  // GRADIX_QTLABEL_H
