// What a user does to windows and widgets, and how they are found: by what they are called and by what they
// show. Suites give it the loop that follows each gesture.
#ifndef GRADIX_TESTS_GESTURES_H
#define GRADIX_TESTS_GESTURES_H

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QWidget>
#include <string>

enum class Input { mouse, keys };

namespace gestures {

// The visible top-level widget that `matches`, or null.
template <typename Matches>
QWidget* FindWindow(const Matches& matches) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && matches(*window)) return window;
  }
  return nullptr;
}

inline bool IsMessageBox(const QWidget& window) {
  return qobject_cast<const QMessageBox*>(&window) != nullptr;
}

inline QMessageBox* MessageBox() {
  return static_cast<QMessageBox*>(FindWindow(IsMessageBox));
}

// No alert: those have the title of their window.
inline QWidget* WindowTitled(const std::string& title) {
  return FindWindow([&](const QWidget& window) {
    return window.windowTitle().toStdString() == title && !IsMessageBox(window);
  });
}

// The widget of the dialog's item with that number, or null.
template <typename Widget = QWidget>
Widget* Item(const QWidget* window, int item) {
  return window != nullptr ? window->findChild<Widget*>(QStringLiteral("item%1").arg(item)) : nullptr;
}

// Near the left edge, where the title and the check mark of a box are.
inline void Click(QWidget* widget) {
  ASSERT_NE(widget, nullptr);
  QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(10, widget->height() / 2));
}

// At whatever is at that point of the window; with `doubleClick`, as the second one of a double click.
inline void ClickAt(QWidget* window, QPoint where, bool doubleClick = false) {
  ASSERT_NE(window, nullptr);
  QPointer<QWidget> target = window->childAt(where);
  if (target == nullptr) target = window;
  const QPointF at = target->mapFrom(window, QPointF(where));
  const QPointF onScreen = target->mapToGlobal(at);
  QMouseEvent press(doubleClick ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, at, onScreen,
                    Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(target, &press);
  QMouseEvent release(QEvent::MouseButtonRelease, at, onScreen, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
  if (target != nullptr) QCoreApplication::sendEvent(target, &release);
}

// The button that shows or is called this.
inline void PressTitled(QWidget* window, const QString& title) {
  ASSERT_NE(window, nullptr);
  for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
    if (!button->isVisible() || (button->text() != title && button->accessibleName() != title)) continue;
    return QTest::mouseClick(button, Qt::LeftButton);
  }
  ADD_FAILURE() << "no button " << title.toStdString();
}

// A key, where the window's focus is.
inline void Type(QWidget* window, int key, Qt::KeyboardModifiers modifiers = {}) {
  ASSERT_NE(window, nullptr);
  QWidget* const focus = window->focusWidget();
  QTest::keyClick(focus != nullptr ? focus : window, static_cast<Qt::Key>(key), modifiers);
}

// In the list's row, that far from its left edge; in its middle when `left` is negative.
inline void ClickRow(QAbstractItemView* list, int row, Qt::KeyboardModifiers modifiers = {}, int left = -1) {
  ASSERT_NE(list, nullptr);
  const QModelIndex index = list->model()->index(row, 0);
  list->scrollTo(index);
  const QPoint middle = list->visualRect(index).center();
  const QPoint where(left < 0 ? middle.x() : left, middle.y());
  QTest::mouseMove(list->viewport(), where);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, where);
}

// Chooses from the list of the popup that is open, on whose row `from` it stands.
inline void ChooseFromOpenPopup(int from, int row, Input input) {
  QWidget* const popup = QApplication::activePopupWidget();
  ASSERT_NE(popup, nullptr) << "no list is open";
  auto* const rows = popup->findChild<QAbstractItemView*>();
  ASSERT_NE(rows, nullptr);
  if (input == Input::mouse) return ClickRow(rows, row);
  for (int i = from; i < row; ++i) QTest::keyClick(rows, Qt::Key_Down);
  for (int i = from; i > row; --i) QTest::keyClick(rows, Qt::Key_Up);
  QTest::keyClick(rows, Qt::Key_Return);
}

}  // namespace gestures

#endif  // GRADIX_TESTS_GESTURES_H
