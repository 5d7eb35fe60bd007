// A line above the class that tells of something the user may want to act on.
#ifndef GRADIX_NOTICEBAR_H
#define GRADIX_NOTICEBAR_H

#include <QFrame>
#include <functional>

class QLabel;
class QPushButton;
class QToolButton;

namespace host {

// Hidden until it has something to tell. Announces its text to screen readers.
class NoticeBar : public QFrame {
 public:
  NoticeBar(QWidget* parent, std::function<void()> act);

  // The button is shown when it has a text.
  void Tell(const QString& text, const QString& button);

 private:
  QLabel* m_text;
  QPushButton* m_act;
  QToolButton* m_close;
};

}  // namespace host

#endif  // GRADIX_NOTICEBAR_H
