// Fills the open class's results into a gradebook that the teacher downloaded: what will happen, cell by
// cell, then the file for upload.
#ifndef GRADIX_FILLWINDOW_H
#define GRADIX_FILLWINDOW_H

#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "Host/ClassView/ClassReader.h"
#include "Host/Fill/GradebookLoader.h"
#include "Host/Result/ExportedFile.h"
#include "Systems/Finding.h"
#include "Systems/LearningSystem.h"

class QPushButton;
class QStackedWidget;

namespace host {

class FillStartPage;
class FillWorkPage;

// A window of its own that goes with its parent and destroys itself when it is closed.
class FillWindow : public QWidget {
 public:
  struct Handlers {
    std::function<void(const std::vector<FindingPlace>& places)> placesChosen;
    std::function<void(const ExportedFile& file)> saved;  // the file is there, complete
    PresentClassAsker withPresentClass = {};              // before saving; without one, saves at once
  };

  // `system` null: the headings of the download tell. The field is the one proposed at first.
  FillWindow(QWidget* parent, std::shared_ptr<const OpenClass> openClass, const LearningSystem* system,
             qz::UserIDField identifier, Handlers handlers);

  // Another class, or the same one read again. Never null.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

  // Reads a download; a fault is shown in the window.
  void OpenGradebook(const QString& path);

 protected:
  void changeEvent(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  QWidget* MakeScrolling(QWidget* pages);
  void Retranslate();
  void ChooseGradebook();
  void ReadEnded(const GradebookRead& read);
  void ShowPage(QWidget* page);
  void UpdateSave();
  void AskToSave();
  void Save();
  ExportedFile SavedFile(const QString& path) const;
  int32_t HelpTopic() const;

  Handlers m_handlers;
  const LearningSystem* m_system;  // of which downloads are taken; null: any
  qz::UserIDField m_identifier;
  QString m_name;  // the class's
  GradebookLoader m_loader;
  QStackedWidget* m_pages;
  FillStartPage* m_start;
  FillWorkPage* m_work;
  QPushButton* m_save;
  QPushButton* m_close;
};

}  // namespace host

#endif  // GRADIX_FILLWINDOW_H
