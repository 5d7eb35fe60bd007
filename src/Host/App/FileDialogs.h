// What the host's file dialogs have in common.
#ifndef GRADIX_FILEDIALOGS_H
#define GRADIX_FILEDIALOGS_H

#include <QFileDialog>
#include <QString>

namespace host {

// Names the dialog and gives it labels in the current language. It is the desktop's own, where there is one,
// but for Qt's where the environment variable GXHOST_QT_DIALOGS is set.
void SetUpFileDialog(QFileDialog* dialog, const QString& objectName, QFileDialog::AcceptMode mode);

// Whether the desktop's own dialog takes the place of this one, which was set up. It asks before a file is
// replaced, and has closed before a choice can be refused.
bool IsDesktopDialog(const QFileDialog& dialog);

}  // namespace host

#endif  // GRADIX_FILEDIALOGS_H
