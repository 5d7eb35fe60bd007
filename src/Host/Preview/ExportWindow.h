// The program's own export: what goes into the file, what the system will do with it, and the file itself,
// before it is saved.
#ifndef GRADIX_EXPORTWINDOW_H
#define GRADIX_EXPORTWINDOW_H

#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "Host/ClassView/ClassReader.h"
#include "Host/Preview/PreparedExport.h"
#include "Host/Result/ExportedFile.h"
#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

class QLabel;
class QPushButton;

namespace host {

class AssignmentPicker;
class ExportPicker;
class FilePreview;
class FindingsView;

// What the user chose before.
struct ExportStart {
  const FormatRow* format = nullptr;  // null: the one used last
  qz::UserIDField identifier = qz::kUserIDAlias;
  Dialect dialect = Dialect::kCurrent;   // classic where the format has no current file
  std::vector<size_t> assignments = {};  // positions; empty: all
};

// A window of its own that goes with its parent and destroys itself when it is closed.
class ExportWindow : public QWidget {
 public:
  struct Handlers {
    std::function<void(const std::vector<FindingPlace>& places)> placesChosen;
    std::function<void(const ExportedFile& file)> saved;  // the file is there, complete
    PresentClassAsker withPresentClass = {};              // before saving; without one, saves at once
  };

  ExportWindow(QWidget* parent, std::shared_ptr<const OpenClass> openClass, const ExportStart& start,
               Handlers handlers);

  // Another class, or the same one read again. Never null.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QWidget* MakeChoices();
  QLayout* MakeButtons();
  void Begin(const ExportStart& start);
  void Retranslate();

  OwnExportChoices Choices() const;
  void Changed();
  void Prepare();
  void ShowFindings();
  void ShowObstacle();
  void ShowPreview();

  void AskToSave();
  void Save();
  bool MayShareIdentifiers();

  std::shared_ptr<const OpenClass> m_class;
  Handlers m_handlers;
  QTimer m_prepareSoon;                        // several changes of one event are one
  QTimer m_previewSoon;                        // after the findings are painted
  std::shared_ptr<PreparedExport> m_prepared;  // null: not yet, or without memory

  ExportPicker* m_picker;
  AssignmentPicker* m_assignments;
  QLabel* m_reportHint;
  FilePreview* m_preview;
  FindingsView* m_findings;
  QWidget* m_obstacle;
  QLabel* m_obstacleText;
  QPushButton* m_help;
  QPushButton* m_save;
  QPushButton* m_close;
};

}  // namespace host

#endif  // GRADIX_EXPORTWINDOW_H
