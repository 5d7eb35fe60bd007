#include "Host/App/FileDialogs.h"

#include <QLabel>
#include <QLineEdit>

#include "Host/App/Texts.h"

namespace host {

namespace {

// Qt's dialog leaves some of its labels alone.
void _JoinLabel(const QFileDialog& dialog, const QString& label, const QString& field) {
  auto* const found = dialog.findChild<QLabel*>(label);
  if (found != nullptr) found->setBuddy(dialog.findChild<QWidget*>(field));
}

}  // namespace

void SetUpFileDialog(QFileDialog* dialog, const QString& objectName, QFileDialog::AcceptMode mode) {
  const bool saves = mode == QFileDialog::AcceptSave;
  dialog->setObjectName(objectName);
  dialog->setAccessibleName(dialog->windowTitle());
  dialog->setOption(QFileDialog::DontUseNativeDialog, qEnvironmentVariableIsSet("GXHOST_QT_DIALOGS"));
  dialog->setAcceptMode(mode);
  dialog->setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // After the modes, which make new buttons.
  dialog->setLabelText(QFileDialog::Accept, saves ? Texts::tr("Save") : Texts::tr("Open"));
  dialog->setLabelText(QFileDialog::Reject, Texts::tr("Cancel"));
  dialog->setLabelText(QFileDialog::FileName, Texts::tr("File &name:"));
  dialog->setLabelText(QFileDialog::FileType, Texts::tr("Files of type:"));
  dialog->setLabelText(QFileDialog::LookIn, Texts::tr("Look in:"));
  _JoinLabel(*dialog, QStringLiteral("lookInLabel"), QStringLiteral("lookInCombo"));
  _JoinLabel(*dialog, QStringLiteral("fileTypeLabel"), QStringLiteral("fileTypeCombo"));
}

// Only Qt's has widgets.
bool IsDesktopDialog(const QFileDialog& dialog) {
  return dialog.findChild<QLineEdit*>() == nullptr;
}

}  // namespace host
