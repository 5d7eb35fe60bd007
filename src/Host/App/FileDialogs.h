// What the host's file dialogs have in common.
#ifndef GRADIX_FILEDIALOGS_H
#define GRADIX_FILEDIALOGS_H

#include <QFileDialog>
#include <QString>

namespace host {

// Names the dialog and gives it labels in the current language. The desktop's own dialog takes its place only
// where the environment variable GXHOST_NATIVE_DIALOGS is set.
void SetUpFileDialog(QFileDialog* dialog, const QString& objectName, QFileDialog::AcceptMode mode);

}  // namespace host

#endif  // GRADIX_FILEDIALOGS_H
