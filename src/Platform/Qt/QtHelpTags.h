// Shows the help tag of the control on which the mouse came to rest.
#ifndef GRADIX_QTHELPTAGS_H
#define GRADIX_QTHELPTAGS_H

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace ui {

class HelpTags : public QObject {
 public:
  static HelpTags& Get();

  void SetDelay(int milliseconds) { m_delay = milliseconds; }
  void MouseMoved(QWidget* widget, QPoint position);  // on the screen
  void Cancel();

 private:
  HelpTags();
  void Show();

  QTimer m_timer;
  QPointer<QWidget> m_widget;
  QPoint m_position;
  int m_delay = 500;
};

}  // namespace ui

#endif  // GRADIX_QTHELPTAGS_H
