#include "Host/App/FileDialogs.h"

#include "Host/App/HostTexts.h"

namespace host {

void SetUpFileDialog(QFileDialog* dialog, const QString& objectName, QFileDialog::AcceptMode mode) {
  const bool saves = mode == QFileDialog::AcceptSave;
  dialog->setObjectName(objectName);
  dialog->setAccessibleName(dialog->windowTitle());
  dialog->setOption(QFileDialog::DontUseNativeDialog, !qEnvironmentVariableIsSet("GXHOST_NATIVE_DIALOGS"));
  dialog->setAcceptMode(mode);
  dialog->setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // After the modes, which make new buttons.
  dialog->setLabelText(QFileDialog::Accept, Text(saves ? TextID::kSave : TextID::kOpenButton));
  dialog->setLabelText(QFileDialog::Reject, Text(TextID::kCancel));
  dialog->setLabelText(QFileDialog::FileName, Text(TextID::kFileNameLabel));
  dialog->setLabelText(QFileDialog::FileType, Text(TextID::kFileTypeLabel));
  dialog->setLabelText(QFileDialog::LookIn, Text(TextID::kLookInLabel));
}

}  // namespace host
