#include "Host/Export/SaveChooser.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "Host/App/FileDialogs.h"
#include "Host/App/Messages.h"
#include "Host/App/Texts.h"
#include "Host/Export/FileNames.h"

namespace host {

namespace {

constexpr const char* kFolderKey = "export/folder";

QString _LastFolder() {
  QString folder = QSettings().value(QLatin1String(kFolderKey)).toString();
  if (!folder.isEmpty() && QFileInfo(folder).isDir()) return folder;
  return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void _SetUp(QFileDialog* dialog, const QString& extension) {
  SetUpFileDialog(dialog, QStringLiteral("saveChooser"), QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(extension);
  dialog->setNameFilters({Texts::tr("Gradebook files (*.%1)").arg(extension), Texts::tr("All files (*)")});
  dialog->setOption(QFileDialog::DontConfirmOverwrite);  // asked here, in the host's language
}

bool _MayReplace(QWidget* parent, const QString& path) {
  if (!QFileInfo::exists(path)) return true;
  QMessageBox question(
      QMessageBox::Warning, Texts::tr("Replace File"),
      Texts::tr("“%1” already exists. Do you want to replace it?").arg(QFileInfo(path).fileName()),
      QMessageBox::NoButton, parent);
  question.setObjectName(QStringLiteral("replaceQuestion"));
  QPushButton* const replace = question.addButton(Texts::tr("Replace"), QMessageBox::AcceptRole);
  QPushButton* const keep = question.addButton(Texts::tr("Cancel"), QMessageBox::RejectRole);
  question.setDefaultButton(keep);
  question.setEscapeButton(keep);
  question.exec();
  return question.clickedButton() == replace;
}

// Also through a link, whichever kind.
bool _IsSameFile(const QString& path, const QString& other) {
  std::error_code error;
  return std::filesystem::equivalent(QFileInfo(path).filesystemAbsoluteFilePath(),
                                     QFileInfo(other).filesystemAbsoluteFilePath(), error);
}

bool _MayWrite(QWidget* parent, const QString& path, const QStringList& classPaths) {
  if (!FitsIntoPath(path)) {
    AskToConfirm(parent, Texts::tr("The name of the file with all its folders is too long."),
                 Texts::tr("It may have at most %1 bytes. Choose a shorter name or another folder.")
                     .arg(kMaxPathBytes));
    return false;
  }
  const auto isPath = [&path](const QString& classPath) { return _IsSameFile(path, classPath); };
  if (std::any_of(classPaths.begin(), classPaths.end(), isPath)) {
    AskToConfirm(parent,
                 Texts::tr("“%1” is the open class. Exporting to it would destroy the class.")
                     .arg(QFileInfo(path).fileName()),
                 Texts::tr("Choose another name or another folder."));
    return false;
  }
  return _MayReplace(parent, path);
}

}  // namespace

std::optional<QString> ChooseSaveFile(QWidget* parent, const QString& proposedName, const QString& extension,
                                      const QStringList& classPaths) {
  QFileDialog dialog(parent, Texts::tr("Export To"), _LastFolder());
  _SetUp(&dialog, extension);
  dialog.selectFile(proposedName);
  while (dialog.exec() == QDialog::Accepted) {
    const QString path = QFileInfo(dialog.selectedFiles().value(0)).absoluteFilePath();
    if (!_MayWrite(parent, path, classPaths)) continue;
    QSettings().setValue(QLatin1String(kFolderKey), QFileInfo(path).absolutePath());
    return path;
  }
  return std::nullopt;
}

}  // namespace host
