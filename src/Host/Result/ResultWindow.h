// A window that shows an exported file as a table and as text.
#ifndef GRADIX_RESULTWINDOW_H
#define GRADIX_RESULTWINDOW_H

#include <QString>
#include <QWidget>
#include <cstdint>

class QFormLayout;
class QLabel;
class QPushButton;

namespace host {

class FilePreview;

struct ExportedFile {
  QString path;
  uint32_t replacedCharacters = 0;
  uint32_t studentsWithoutIdentifier = 0;
};

// A window of its own that goes with its parent and destroys itself when it is closed.
class ResultWindow : public QWidget {
 public:
  // Reads the file, a very large one in part. Says how many characters and identifiers are missing.
  ResultWindow(QWidget* parent, const ExportedFile& file);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Retranslate();
  void AddDetails(const QString& path);
  void AddButtons(const QString& path);

  QString Notes() const;

  ExportedFile m_file;
  qint64 m_size = 0;
  FilePreview* m_preview;
  QLabel* m_notes;
  QFormLayout* m_details;
  QLabel* m_sizeText;
  QPushButton* m_openFolder;
  QPushButton* m_close;
};

}  // namespace host

#endif  // GRADIX_RESULTWINDOW_H
