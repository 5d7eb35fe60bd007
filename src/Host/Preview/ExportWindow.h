// The program's own export: what goes into the file, what the system will do with it, and the file itself,
// before it is saved.
#ifndef GRADIX_EXPORTWINDOW_H
#define GRADIX_EXPORTWINDOW_H

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "Host/ClassView/ClassReader.h"
#include "Host/Result/ExportedFile.h"
#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

namespace host {

// What the user chose before.
struct ExportStart {
  const FormatRow* format = nullptr;
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
  };

  ExportWindow(QWidget* parent, std::shared_ptr<const OpenClass> openClass, const ExportStart& start,
               Handlers handlers);

  // Another class, or the same one read again. Never null.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Retranslate();
};

}  // namespace host

#endif  // GRADIX_EXPORTWINDOW_H
