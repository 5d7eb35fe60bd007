// A file to take hold of: dragged from here into a folder, a mail or a browser's page, it is a copy of it.
#ifndef GRADIX_FILEHANDLE_H
#define GRADIX_FILEHANDLE_H

#include <QFrame>
#include <QPoint>
#include <QString>

class QLabel;

namespace host {

class FileHandle : public QFrame {
 public:
  FileHandle(QWidget* parent, const QString& path);

  // A text for what has happened to the file; empty: what can be done with it.
  void Say(const QString& what);

 protected:
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void Drag();
  void Retranslate();

  QString m_path;
  QPoint m_pressed;
  QLabel* m_hint;
};

}  // namespace host

#endif  // GRADIX_FILEHANDLE_H
