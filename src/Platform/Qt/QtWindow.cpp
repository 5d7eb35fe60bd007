#include "Platform/Qt/QtWindow.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include "Platform/Qt/EventQueue.h"
#include "Platform/Qt/QtRegistry.h"

namespace ui {

QtWindow::QtWindow(Qt::WindowFlags flags) : QDialog(nullptr, flags) {
  setAttribute(Qt::WA_QuitOnClose, false);
  setAttribute(Qt::WA_KeyboardFocusChange);  // focus marks are always drawn
  // Holds the keyboard while no control does, so that Qt gives it to none by itself.
  setFocusPolicy(Qt::TabFocus);
  setFocus(Qt::OtherFocusReason);
}

// QDialog's own would move the focus.
void QtWindow::setVisible(bool visible) {
  if (visible) setAttribute(Qt::WA_KeyboardFocusChange);
  QWidget::setVisible(visible);  // NOLINT(bugprone-parent-virtual-call)
}

void QtWindow::closeEvent(QCloseEvent* event) {
  const WindowRecord* const window = FindWindowOf(this);
  const WindowRef ref = window == nullptr ? nullptr : window->ref;
  if (window != nullptr && window->blocked == 0) {
    CallHandler(ref, EventQueue::Get().handlers().close, ref);
  }
  event->setAccepted(FindWindow(ref) == nullptr);  // a window that stays would keep the host from quitting
}

void QtWindow::keyPressEvent(QKeyEvent* event) {
  event->ignore();
}

bool QtWindow::focusNextPrevChild(bool /*next*/) {
  return false;
}

Qt::WindowFlags WindowFlagsOf(WindowClass windowClass, uint32_t attributes) {
  Qt::WindowFlags flags = windowClass == kFloatingWindowClass ? Qt::Tool : Qt::Dialog;
  flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint;
  if ((attributes & kWindowCloseBoxAttribute) != 0)
    flags |= Qt::WindowCloseButtonHint | Qt::WindowSystemMenuHint;
  if ((attributes & kWindowCollapseBoxAttribute) != 0) flags |= Qt::WindowMinimizeButtonHint;
  return flags;
}

}  // namespace ui
