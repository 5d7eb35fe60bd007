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
#include "Host/App/HostTexts.h"
#include "Host/App/Messages.h"
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
  dialog->setNameFilters({Text(TextID::kCsvFiles).arg(extension), Text(TextID::kAllFiles)});
  dialog->setOption(QFileDialog::DontConfirmOverwrite);  // asked here, in the host's language
}

bool _MayReplace(QWidget* parent, const QString& path) {
  if (!QFileInfo::exists(path)) return true;
  QMessageBox question(QMessageBox::Warning, Text(TextID::kReplaceTitle),
                       Text(TextID::kReplaceQuestion).arg(QFileInfo(path).fileName()), QMessageBox::NoButton,
                       parent);
  question.setObjectName(QStringLiteral("replaceQuestion"));
  QPushButton* const replace = question.addButton(Text(TextID::kReplace), QMessageBox::AcceptRole);
  QPushButton* const keep = question.addButton(Text(TextID::kCancel), QMessageBox::RejectRole);
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
    AskToConfirm(parent, Text(TextID::kPathTooLong), Text(TextID::kPathTooLongAdvice).arg(kMaxPathBytes));
    return false;
  }
  const auto isPath = [&path](const QString& classPath) { return _IsSameFile(path, classPath); };
  if (std::any_of(classPaths.begin(), classPaths.end(), isPath)) {
    AskToConfirm(parent, Text(TextID::kIsTheClass).arg(QFileInfo(path).fileName()),
                 Text(TextID::kIsTheClassAdvice));
    return false;
  }
  return _MayReplace(parent, path);
}

}  // namespace

std::optional<QString> ChooseSaveFile(QWidget* parent, const QString& proposedName, const QString& extension,
                                      const QStringList& classPaths) {
  QFileDialog dialog(parent, Text(TextID::kSaveTitle), _LastFolder());
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
