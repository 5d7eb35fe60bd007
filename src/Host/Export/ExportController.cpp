#include "Host/Export/ExportController.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>
#include <cerrno>
#include <cstring>
#include <utility>

#include "Host/App/HostTexts.h"
#include "Host/App/Messages.h"
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
    ShowMessage(m_window, Text(TextID::kFilterWithoutFormats), Text(TextID::kFilterWithoutFormatsAdvice));
  }
}

void ExportController::ShowLoadError(const QString& path, const FilterLoadError& error) {
  if (error.fault == FilterFault::kNotFound) {
    ShowMessage(m_window, Text(TextID::kFilterNotFound),
                Text(TextID::kFilterNotFoundAdvice).arg(QDir::toNativeSeparators(path)));
    return;
  }
  const TextID what =
      error.fault == FilterFault::kMissingSymbol ? TextID::kFilterMissingSymbol : TextID::kFilterNotLoadable;
  ShowMessage(m_window, Text(what), Text(TextID::kFilterReinstall).arg(error.detail));
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
    m_stateChanged(Text(TextID::kExportUnderWay));
  } else {
    ShowStartError(result, format, openClass.path);
  }
}

void ExportController::ShowStartError(StartResult result, const ExportFormat& format,
                                      const QString& classPath) {
  switch (result) {
    case StartResult::kBeginFailed:
      ShowMessage(m_window, Text(TextID::kBeginFailed).arg(format.name), Text(TextID::kTryAgain));
      break;
    case StartResult::kFileFailed:
      ShowMessage(m_window, Text(TextID::kExportFileFailed),
                  Text(TextID::kExportFileFailedAdvice).arg(QFileInfo(classPath).fileName()));
      break;
    case StartResult::kSessionUnknown:
      ShowMessage(m_window, Text(TextID::kSessionUnknown), Text(TextID::kTryAgain));
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
    case RunOutcome::kCanceled: m_stateChanged(Text(TextID::kExportCanceled)); break;
    case RunOutcome::kNotWritten: ShowNotWritten(result); break;
    case RunOutcome::kUnknown:
      m_stateChanged(Text(TextID::kExportEnded));
      ShowMessage(m_window, Text(TextID::kOutcomeUnknown).arg(path), Text(TextID::kOutcomeUnknownAdvice));
      break;
    case RunOutcome::kWritten: {
      m_stateChanged(Text(TextID::kExported).arg(path));
      auto* const window = new ResultWindow(
          m_window, {result.path, result.replacedCharacters, result.studentsWithoutIdentifier});
      m_results.append(window);
      window->show();
      break;
    }
  }
}

void ExportController::ShowNotWritten(const RunResult& result) {
  m_stateChanged(Text(TextID::kExportFailed));
  const bool isFull = result.error == ENOSPC || result.error == EDQUOT;
  const QString reason = result.error == 0 ? QString() : QString::fromLocal8Bit(std::strerror(result.error));
  ShowMessage(m_window,
              Text(result.incomplete ? TextID::kIncomplete : TextID::kNotWritten)
                  .arg(QDir::toNativeSeparators(result.path)),
              Text(isFull ? TextID::kDiskFullAdvice : TextID::kNotWrittenAdvice).arg(reason).trimmed());
}

void ExportController::CloseDialog() {
  const QPointer<QWidget> dialog = m_run.Dialog();
  if (dialog == nullptr) return;
  dialog->close();
  if (dialog == nullptr || !dialog->isVisible()) return;
  dialog->raise();
  dialog->activateWindow();
}

void ExportController::Retranslate() {
  m_results.removeAll(nullptr);
  for (const QPointer<ResultWindow>& window : m_results) window->Retranslate();
}

}  // namespace host
