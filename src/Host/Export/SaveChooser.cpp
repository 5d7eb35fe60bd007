#include "Host/Export/SaveChooser.h"

#include <QDir>
#include <QFile>
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

namespace host {

namespace {

constexpr const char* kFolderKey = "export/folder";
constexpr qsizetype kMaxNameBytes = 255;  // of the name alone, on any file system

QString _StartFolder(const SaveRequest& request) {
  QStringList folders(QSettings().value(QLatin1String(kFolderKey)).toString());
  for (const QString& path : request.classPaths) {
    if (!path.isEmpty()) folders.append(QFileInfo(path).absolutePath());
  }
  for (const QString& folder : folders) {
    if (!folder.isEmpty() && QFileInfo(folder).isDir()) return folder;
  }
  return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

// Also through a link, whichever kind.
bool _IsSameFile(const QString& path, const QString& other) {
  std::error_code error;
  return std::filesystem::equivalent(QFileInfo(path).filesystemAbsoluteFilePath(),
                                     QFileInfo(other).filesystemAbsoluteFilePath(), error);
}

struct Refusal {
  QString what;  // empty: the file can be written, as far as can be known
  QString advice;
};

Refusal _CheckLength(const QFileInfo& file, const SaveRequest& request) {
  const qsizetype most = request.maxPathBytes;
  if (QFile::encodeName(file.absoluteFilePath()).size() > most) {
    return {Texts::tr("The name of the file with all its folders is too long."),
            Texts::tr("It may have at most %1 bytes. Choose a shorter name or another folder.").arg(most)};
  }
  if (QFile::encodeName(file.fileName()).size() <= kMaxNameBytes) return {};
  return {Texts::tr("The name of the file is too long."), Texts::tr("Choose a shorter name.")};
}

Refusal _CheckSources(const QFileInfo& file, const SaveRequest& request) {
  const QString path = file.absoluteFilePath();
  const auto isPath = [&path](const QString& classPath) { return _IsSameFile(path, classPath); };
  const QString advice = Texts::tr("Choose another name or another folder.");
  if (std::ranges::any_of(request.classPaths, isPath)) {
    return {
        Texts::tr("“%1” is the open class. Exporting to it would destroy the class.").arg(file.fileName()),
        advice};
  }
  if (!request.downloadPath.isEmpty() && isPath(request.downloadPath)) {
    return {
        Texts::tr("“%1” is the gradebook that you downloaded. It has to stay as it is.").arg(file.fileName()),
        advice};
  }
  return {};
}

Refusal _CheckAccess(const QFileInfo& file) {
  const QFileInfo folder(file.absolutePath());
  const QString folderName = QDir::toNativeSeparators(folder.filePath());
  const QString advice = Texts::tr("Choose another folder.");
  if (!folder.exists()) return {Texts::tr("The folder “%1” is not there.").arg(folderName), advice};
  if (!folder.isDir()) return {Texts::tr("“%1” is a file, not a folder.").arg(folderName), advice};
  if (file.isDir()) {
    return {Texts::tr("“%1” is a folder.").arg(file.fileName()), Texts::tr("Choose another name.")};
  }
  if (file.exists() && !file.isWritable()) {
    return {Texts::tr("You may not change the file “%1”: it is protected.").arg(file.fileName()),
            Texts::tr("Choose another name or another folder.")};
  }
  if (!file.exists() && !folder.isWritable())
    return {Texts::tr("You may not save in the folder “%1”.").arg(folderName), advice};
  return {};
}

Refusal _Check(const QFileInfo& file, const SaveRequest& request) {
  for (const Refusal& refusal : {_CheckLength(file, request), _CheckSources(file, request)}) {
    if (!refusal.what.isEmpty()) return refusal;
  }
  return _CheckAccess(file);
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

bool _MayWrite(QWidget* parent, const QString& path, const SaveRequest& request) {
  const Refusal refusal = _Check(QFileInfo(path), request);
  if (refusal.what.isEmpty()) return true;
  AskToConfirm(parent, refusal.what, refusal.advice);
  return false;
}

class SaveDialog : public QFileDialog {
 public:
  SaveDialog(QWidget* parent, const SaveRequest& request)
      : QFileDialog(parent, Texts::tr("Export To"), _StartFolder(request)), m_request(request) {
    SetUpFileDialog(this, QStringLiteral("saveChooser"), AcceptSave);
    m_isDesktops = IsDesktopDialog(*this);
    setNameFilters({Texts::tr("Gradebook files (*.%1)").arg(request.extension), Texts::tr("All files (*)")});
    setOption(DontConfirmOverwrite, !m_isDesktops);  // asked here, in the host's language
    if (!m_isDesktops) setDefaultSuffix(request.extension);
    selectFile(request.proposedName);
  }

  // The path that was accepted and can be written; nothing to ask once more.
  std::optional<QString> Path() {
    const QString chosen = ChosenPath();
    if (!m_isDesktops) return chosen;
    // The desktop asked before replacing the file that was named, not the one that is meant.
    const bool hasSuffix = !QFileInfo(chosen).suffix().isEmpty();
    const QString path = hasSuffix ? chosen : chosen + u'.' + m_request.extension;
    if (!_MayWrite(parentWidget(), path, m_request)) return std::nullopt;
    return hasSuffix || _MayReplace(parentWidget(), path) ? std::optional(path) : std::nullopt;
  }

 protected:
  void accept() override {
    const QString path = ChosenPath();
    const bool isComplete = !m_isDesktops && !path.isEmpty() && !QFileInfo(path).isDir();
    if (isComplete && !(_MayWrite(this, path, m_request) && _MayReplace(this, path))) return;
    QFileDialog::accept();
  }

 private:
  QString ChosenPath() const {
    const QString chosen = selectedFiles().value(0);
    return chosen.isEmpty() ? chosen : QFileInfo(chosen).absoluteFilePath();
  }

  const SaveRequest& m_request;
  bool m_isDesktops;
};

}  // namespace

std::optional<QString> ChooseSaveFile(QWidget* parent, const SaveRequest& request) {
  SaveDialog dialog(parent, request);
  while (dialog.exec() == QDialog::Accepted) {
    std::optional<QString> path = dialog.Path();
    if (!path) continue;
    QSettings().setValue(QLatin1String(kFolderKey), QFileInfo(*path).absolutePath());
    return path;
  }
  return std::nullopt;
}

}  // namespace host
