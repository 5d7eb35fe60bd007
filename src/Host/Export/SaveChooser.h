// The dialog that asks for an export's output file.
#ifndef GRADIX_SAVECHOOSER_H
#define GRADIX_SAVECHOOSER_H

#include <QString>
#include <QStringList>
#include <optional>

#include "Host/Export/FileNames.h"

class QWidget;

namespace host {

struct SaveRequest {
  QString proposedName;
  QString extension;  // added to a name without one
  // These must not be replaced, under whatever name.
  QStringList classPaths = {};  // the first that is not empty is the class that is exported
  QString downloadPath = {};    // of the gradebook that is filled in
  qsizetype maxPathBytes = kMaxPathBytes;
};

// Asks for a file, and before replacing one: at first in the class's folder, from then on in the one that was
// chosen last. A file that cannot be written is refused while the dialog is open. Returns when a path is
// chosen, or nothing when the user cancels.
std::optional<QString> ChooseSaveFile(QWidget* parent, const SaveRequest& request);

}  // namespace host

#endif  // GRADIX_SAVECHOOSER_H
