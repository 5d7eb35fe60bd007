// The dialog that asks for an export's output file.
#ifndef GRADIX_SAVECHOOSER_H
#define GRADIX_SAVECHOOSER_H

#include <QString>
#include <QStringList>
#include <optional>

class QWidget;

namespace host {

// Asks for a file, at first with the proposed name in the folder used last, and before replacing one; refuses
// the class files, under whatever name. Gives a path that an export can take, or nothing when the user
// cancels. The desktop's own dialog is shown only where the environment variable GXHOST_NATIVE_DIALOGS is
// set.
std::optional<QString> ChooseSaveFile(QWidget* parent, const QString& proposedName, const QString& extension,
                                      const QStringList& classPaths);

}  // namespace host

#endif  // GRADIX_SAVECHOOSER_H
