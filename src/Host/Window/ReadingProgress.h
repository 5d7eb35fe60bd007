// How far the reading of a class file has come, in the status bar.
#ifndef GRADIX_READINGPROGRESS_H
#define GRADIX_READINGPROGRESS_H

#include <QTimer>
#include <QWidget>
#include <functional>

class QLabel;
class QProgressBar;
class QPushButton;

namespace host {

// Shows itself when the reading takes long enough to be noticed.
class ReadingProgress : public QWidget {
 public:
  ReadingProgress(QWidget* parent, std::function<void()> cancel);

  void Begin(const QString& name);
  void Show(qint64 read, qint64 size);  // in bytes; a size below 1 is unknown
  void End();

 private:
  QLabel* m_text;
  QProgressBar* m_bar;
  QPushButton* m_cancel;
  QTimer m_delay;
};

}  // namespace host

#endif  // GRADIX_READINGPROGRESS_H
