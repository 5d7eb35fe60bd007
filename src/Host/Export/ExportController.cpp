#include "Host/Export/ExportController.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>
#include <cerrno>
#include <cstring>
#include <utility>

#include "Host/App/Language.h"
#include "Host/App/Messages.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Export/FileNames.h"
#include "Host/Export/SaveChooser.h"

namespace host {

ExportController::ExportController(QWidget* window, std::function<void(const QString&)> stateChanged)
    : QObject(window),
      m_window(window),
      m_stateChanged(std::move(stateChanged)),
      m_run(
          this, [this](QWidget* dialog) { return ChooseFile(dialog); },
          [this](const RunResult& result) { RunFinished(result); }) {}

void ExportController::LoadFilter() {
  const QString path = FilterModule::DefaultPath();
  FilterLoadError error;
  m_filter = FilterModule::Load(path, &error);
  if (m_filter == nullptr) {
    ShowLoadError(path, error);
    return;
  }
  m_formats = m_filter->Formats();
  if (m_formats.empty()) {
    ShowMessage(m_window,
                Texts::tr("The export filter offers no formats. Classes can be viewed, but not exported."),
                Texts::tr("Its resource file is probably missing. Install Gradix again."));
  }
}

void ExportController::ShowLoadError(const QString& path, const FilterLoadError& error) {
  if (error.fault == FilterFault::kNotFound) {
    ShowMessage(m_window,
                Texts::tr("The export filter was not found. Classes can be viewed, but not exported."),
                Texts::tr("It was looked for here:\n%1\n\nInstall Gradix again.")
                    .arg(QDir::toNativeSeparators(path)));
    return;
  }
  const QString what = error.fault == FilterFault::kMissingSymbol
                           ? Texts::tr("The export filter does not fit this program.")
                           : Texts::tr("The export filter could not be loaded.");
  ShowMessage(
      m_window, what,
      Texts::tr("%1\n\nInstall Gradix again, so that both come from the same version.").arg(error.detail));
}

void ExportController::Export(const ExportFormat& format, const OpenClass& openClass, size_t assignment) {
  if (m_filter == nullptr || IsRunning()) return;
  const qz::AssignmentRecord& row = openClass.record.assignments[assignment];
  m_exportedClassPath = openClass.path;
  m_extension = format.extension;
  m_proposedName = ProposedFileName(LineFromUtf8(openClass.Texts().AssignmentName(assignment)), format.name,
                                    format.extension);
  ExportRequest request;
  request.formatIndex = format.index;
  request.assignmentID = row.id;
  request.classPath = openClass.path;
  request.spanish = CurrentLanguage() == HostLanguage::kSpanish;
  const StartResult result = m_run.Start(*m_filter, request, m_window);
  if (result == StartResult::kStarted) {
    m_stateChanged(Texts::tr("An export is under way"));
  } else {
    ShowStartError(result, format, openClass.path);
  }
}

void ExportController::ShowStartError(StartResult result, const ExportFormat& format,
                                      const QString& classPath) {
  switch (result) {
    case StartResult::kBeginFailed:
      ShowMessage(m_window,
                  Texts::tr("The export could not be started: the filter does not know the format “%1”.")
                      .arg(format.name),
                  Texts::tr("Try again. If it fails again, quit Gradix and open the class again."));
      break;
    case StartResult::kFileFailed:
      ShowMessage(
          m_window, Texts::tr("The filter could not read the class file or its own resource file."),
          Texts::tr("Check that “%1” is still there and open it again. If it opens, install Gradix again.")
              .arg(QFileInfo(classPath).fileName()));
      break;
    case StartResult::kSessionUnknown:
      ShowMessage(m_window, Texts::tr("The export failed: the filter has lost its session."),
                  Texts::tr("Try again. If it fails again, quit Gradix and open the class again."));
      break;
    case StartResult::kStarted:
    case StartResult::kBusy: break;
  }
}

std::optional<QString> ExportController::ChooseFile(QWidget* dialog) {
  return ChooseSaveFile(dialog != nullptr ? dialog : m_window, m_proposedName, m_extension,
                        {m_openClassPath, m_exportedClassPath});
}

void ExportController::RunFinished(const RunResult& result) {
  const QString path = QDir::toNativeSeparators(result.path);
  switch (result.outcome) {
    case RunOutcome::kCanceled: m_stateChanged(Texts::tr("Nothing was exported")); break;
    case RunOutcome::kNotWritten: ShowNotWritten(result); break;
    case RunOutcome::kUnknown:
      m_stateChanged(Texts::tr("The export has ended"));
      ShowMessage(m_window, Texts::tr("The export filter does not tell whether “%1” was written.").arg(path),
                  Texts::tr("It is older than this program. Open the file and check that it is complete "
                            "before you use it."));
      break;
    case RunOutcome::kWritten: {
      m_stateChanged(Texts::tr("Exported to %1").arg(path));
      auto* const window = new ResultWindow(
          m_window, {result.path, result.replacedCharacters, result.studentsWithoutIdentifier});
      window->show();
      break;
    }
  }
}

void ExportController::ShowNotWritten(const RunResult& result) {
  m_stateChanged(Texts::tr("The export failed"));
  const bool isFull = result.error == ENOSPC || result.error == EDQUOT;
  const QString reason = result.error == 0 ? QString() : QString::fromLocal8Bit(std::strerror(result.error));
  const QString what = result.incomplete ? Texts::tr(
                                               "Only a part of the file “%1” could be written. It took the "
                                               "place of the earlier one; do not use it.")
                                         : Texts::tr("The file “%1” could not be written.");
  const QString advice = isFull ? Texts::tr(
                                      "The disk is full (%1).\n\nMake room on it, or choose a folder on "
                                      "another disk, and export again.")
                                : Texts::tr(
                                      "%1\n\nCheck that the folder exists, that you may write to it and that "
                                      "the disk is not full. Then export again, perhaps to another folder.");
  ShowMessage(m_window, what.arg(QDir::toNativeSeparators(result.path)), advice.arg(reason).trimmed());
}

void ExportController::CloseDialog() {
  const QPointer<QWidget> dialog = m_run.Dialog();
  if (dialog == nullptr) return;
  dialog->close();
  if (dialog == nullptr || !dialog->isVisible()) return;
  dialog->raise();
  dialog->activateWindow();
}

}  // namespace host
