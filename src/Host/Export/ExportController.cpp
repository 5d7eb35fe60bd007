#include "Host/Export/ExportController.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>
#include <utility>

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
          [this](RunOutcome outcome, const QString& path) { RunFinished(outcome, path); }) {}

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
  m_extension = format.extension;
  m_proposedName = ProposedFileName(LineFromRoman(row.name), format.name, format.extension);
  ExportRequest request;
  request.formatIndex = format.index;
  request.assignmentID = row.id;
  request.classPath = openClass.path;
  request.spanish = CurrentLanguage() == Language::kSpanish;
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
  return ChooseSaveFile(dialog != nullptr ? dialog : m_window, m_proposedName, m_extension);
}

void ExportController::RunFinished(RunOutcome outcome, const QString& path) {
  switch (outcome) {
    case RunOutcome::kCanceled: m_stateChanged(Text(TextID::kExportCanceled)); break;
    case RunOutcome::kNotWritten:
      m_stateChanged(Text(TextID::kExportCanceled));
      ShowMessage(m_window, Text(TextID::kNotWritten).arg(QDir::toNativeSeparators(path)),
                  Text(TextID::kNotWrittenAdvice));
      break;
    case RunOutcome::kWritten: {
      m_stateChanged(Text(TextID::kExported).arg(QDir::toNativeSeparators(path)));
      auto* const result = new ResultWindow(m_window, path);
      m_results.append(result);
      result->show();
      break;
    }
  }
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
