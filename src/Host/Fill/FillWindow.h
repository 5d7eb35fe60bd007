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
#include "Host/Result/ExportedFile.h"
#include "Systems/Finding.h"
#include "Systems/LearningSystem.h"

namespace host {

// A window of its own that goes with its parent and destroys itself when it is closed.
class FillWindow : public QWidget {
 public:
  struct Handlers {
    std::function<void(const std::vector<FindingPlace>& places)> placesChosen;
    std::function<void(const ExportedFile& file)> saved;  // the file is there, complete
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

 private:
  void Retranslate();
};

}  // namespace host

#endif  // GRADIX_FILLWINDOW_H
