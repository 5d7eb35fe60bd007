// A window that tells what was exported and what to do with the file, and shows it.
#ifndef GRADIX_RESULTWINDOW_H
#define GRADIX_RESULTWINDOW_H

#include <QWidget>
#include <functional>
#include <vector>

#include "Host/Result/ExportedFile.h"
#include "Systems/Finding.h"

class QPushButton;

namespace host {

class FilePreview;
class FindingsView;
class ResultPage;

struct ResultHandlers {
  // The user wants to see these places of the class, which is the file's.
  std::function<void(const std::vector<FindingPlace>& places)> placesChosen;
  // The user wants the current file as well. Without a handler it is not offered.
  std::function<void(const ExportedFile& classic)> saveCurrent;
};

// A window of its own that goes with its parent and destroys itself when it is closed.
class ResultWindow : public QWidget {
 public:
  // Reads the file, a very large one in part.
  ResultWindow(QWidget* parent, const ExportedFile& file, ResultHandlers handlers);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Retranslate();
  void AddPages();
  void AddButtons();
  void ShowFindings();
  void OpenFolder();
  void CopyPath();

  ExportedFile m_file;
  ResultHandlers m_handlers;
  FilePreview* m_preview;
  ResultPage* m_page;
  FindingsView* m_findings = nullptr;  // null where nothing is known
  QPushButton* m_openFolder;
  QPushButton* m_copyPath;
  QPushButton* m_saveCurrent;
  QPushButton* m_help;
  QPushButton* m_close;
};

// Shows the window of a file that was just written, complete.
void ShowResult(QWidget* parent, const ExportedFile& file, ResultHandlers handlers);

}  // namespace host

#endif  // GRADIX_RESULTWINDOW_H
