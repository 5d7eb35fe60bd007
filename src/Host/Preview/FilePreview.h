// A delimited file as a table and as the exact text that it is.
#ifndef GRADIX_FILEPREVIEW_H
#define GRADIX_FILEPREVIEW_H

#include <QByteArray>
#include <QString>
#include <QWidget>

#include "Host/Preview/FileReading.h"

class QLabel;
class QPlainTextEdit;
class QTableView;
class QTabWidget;

namespace host {

class CsvTableModel;

// Below its pages a line tells what a text does not show: encoding, line ends, size and rows.
class FilePreview : public QWidget {
 public:
  static constexpr qint64 kMaxShownBytes = qint64{8} * 1024 * 1024;

  explicit FilePreview(QWidget* parent);

  // Shows the bytes: of more than kMaxShownBytes the beginning, and says so. `size` is the whole file's when
  // `bytes` are its beginning only. Keeps nothing of them.
  void Show(const QByteArray& bytes, const FileReading& reading, qint64 size = -1);

  // Shows nothing, and the text in place of the line.
  void ShowNothing(const QString& why);

  // The tabs, whose last two are the table and the text. Other pages may be put in front of them.
  QTabWidget* Pages() const { return m_pages; }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Retranslate();
  void MakeTable();
  void MakeText();
  void ShowTable(const std::string& text);
  QString Facts() const;

  QTabWidget* m_pages;
  CsvTableModel* m_model;
  QTableView* m_table;
  QPlainTextEdit* m_text;
  QLabel* m_cut;
  QLabel* m_factsText;
  FileReading m_reading;
  LineEnds m_lineEnds = LineEnds::kNone;
  qint64 m_size = -1;  // -1: no file is shown
  bool m_isCut = false;
  QString m_whyNot;
};

// The beginning of the file as far as a preview shows it; empty when it cannot be read.
QByteArray BeginningOf(const QString& path);

}  // namespace host

#endif  // GRADIX_FILEPREVIEW_H
