// The top-level widget of a window. It decides nothing itself: every event of it and of the widgets in it is
// the event queue's first.
#ifndef GRADIX_QTWINDOW_H
#define GRADIX_QTWINDOW_H

#include <QDialog>

#include "Platform/Ui/Windows.h"

class QCloseEvent;
class QKeyEvent;

namespace ui {

class QtWindow : public QDialog {
 public:
  explicit QtWindow(Qt::WindowFlags flags);

  void setVisible(bool visible) override;
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
};

Qt::WindowFlags WindowFlagsOf(WindowClass windowClass, uint32_t attributes);

}  // namespace ui

#endif  // GRADIX_QTWINDOW_H
