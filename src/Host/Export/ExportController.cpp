#include "Host/Export/ExportController.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "Host/App/Language.h"
#include "Host/App/Messages.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Export/FileNames.h"
#include "Host/Export/NotWritten.h"
#include "Host/Export/SaveChooser.h"

namespace host {

namespace {

constexpr int kPaintTime = 50;  // milliseconds

// Whether the class is the one that the filter has read.
bool _IsSameClass(const OpenClass& openClass, const RunResult& result) {
  const size_t count = openClass.record.assignments.size();
  const auto isThere = [count](size_t position) { return position < count; };
  return openClass.record.students.size() == result.studentCount &&
         std::ranges::all_of(result.assignments, isThere);
}

}  // namespace

ExportController::ExportController(QWidget* window, Handlers handlers)
    : QObject(window),
      m_window(window),
      m_handlers(std::move(handlers)),
      m_run(
          this, [this](QWidget* dialog) { return ChooseFile(dialog); },
          [this](const RunResult& result) { RunFinished(result); }) {
  m_preparing.setSingleShot(true);
  m_preparing.setInterval(kPaintTime);
  connect(&m_preparing, &QTimer::timeout, this, &ExportController::Begin);
  m_calledOff.setSingleShot(true);
  connect(&m_calledOff, &QTimer::timeout, this,
          [this] { m_handlers.stateChanged(Texts::tr("Nothing was exported")); });
}

ExportController::~ExportController() {
  if (m_preparing.isActive()) EndPreparing();
}

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
    ShowMessage(
        m_window, Texts::tr("The export filter offers no formats, so there is no export window."),
        Texts::tr(
            "Its resource file is probably missing. Install Gradix again. Current files can be saved, and "
            "downloaded gradebooks filled in, all the same."));
  }
}

void ExportController::ShowLoadError(const QString& path, const FilterLoadError& error) {
  if (error.fault == FilterFault::kNotFound) {
    ShowMessage(
        m_window, Texts::tr("The export filter was not found, so there is no export window."),
        Texts::tr(
            "It was looked for here:\n%1\n\nInstall Gradix again. Current files can be saved, and downloaded "
            "gradebooks filled in, all the same.")
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

void ExportController::Export(const ExportFormat& format, std::shared_ptr<const OpenClass> openClass,
                              size_t assignment) {
  if (m_filter == nullptr || IsRunning()) return;
  m_format = format;
  m_class = std::move(openClass);
  m_assignment = assignment;
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  m_preparing.start();
  m_handlers.stateChanged(Texts::tr("Preparing the export…"));
}

void ExportController::EndPreparing() {
  m_preparing.stop();
  QGuiApplication::restoreOverrideCursor();
}

void ExportController::Begin() {
  ExportRequest request;
  request.formatIndex = m_format.index;
  request.assignmentID = m_class->record.assignments[m_assignment].id;
  request.classPath = m_class->path;
  request.spanish = CurrentLanguage() == HostLanguage::kSpanish;
  const StartResult result = m_run.Start(*m_filter, request, m_window);
  EndPreparing();
  if (result == StartResult::kStarted) {
    m_handlers.stateChanged(Texts::tr("An export is under way"));
  } else {
    m_handlers.stateChanged(Texts::tr("Nothing was exported"));
    ShowStartError(result);
  }
}

void ExportController::ShowStartError(StartResult result) {
  switch (result) {
    case StartResult::kBeginFailed:
      ShowMessage(m_window,
                  Texts::tr("The export could not be started: the filter does not know the format “%1”.")
                      .arg(m_format.name),
                  Texts::tr("Try again. If it fails again, quit Gradix and open the class again."));
      break;
    case StartResult::kFileFailed:
      ShowMessage(
          m_window, Texts::tr("The filter could not read the class file or its own resource file."),
          Texts::tr("Check that “%1” is still there and open it again. If it opens, install Gradix again.")
              .arg(QFileInfo(m_class->path).fileName()));
      break;
    case StartResult::kSessionUnknown:
      ShowMessage(m_window, Texts::tr("The export failed: the filter has lost its session."),
                  Texts::tr("Try again. If it fails again, quit Gradix and open the class again."));
      break;
    case StartResult::kStarted:
    case StartResult::kBusy: break;
  }
}

// Which assignments are checked in the dialog, it does not tell yet.
std::optional<QString> ExportController::ChooseFile(QWidget* dialog) {
  const bool hasOne = m_class->record.assignments.size() == 1;
  const QString what = hasOne ? LineFromUtf8(m_class->Texts().AssignmentName(0)) : m_class->name;
  return ChooseSaveFile(dialog != nullptr ? dialog : m_window,
                        {ProposedFileName(what, m_format.name, m_format.extension),
                         m_format.extension,
                         {m_class->path, m_openClassPath}});
}

void ExportController::RunFinished(const RunResult& result) {
  const QString path = QDir::toNativeSeparators(result.path);
  switch (result.outcome) {
    case RunOutcome::kCanceled: m_handlers.stateChanged(Texts::tr("Nothing was exported")); break;
    case RunOutcome::kNotWritten:
      m_handlers.stateChanged(Texts::tr("The export failed"));
      ShowNotWritten(m_window, result.path, result.error, result.incomplete);
      break;
    case RunOutcome::kUnknown:
      m_handlers.stateChanged(Texts::tr("The export has ended"));
      ShowMessage(m_window, Texts::tr("The export filter does not tell whether “%1” was written.").arg(path),
                  Texts::tr("It is older than this program. Open the file and check that it is complete "
                            "before you use it."));
      break;
    case RunOutcome::kWritten:
      m_handlers.stateChanged(Texts::tr("Exported to %1").arg(path));
      m_handlers.written(FileOf(result));
      break;
  }
}

ExportedFile ExportController::FileOf(const RunResult& result) const {
  ExportedFile file;
  file.path = result.path;
  file.format = RowOf(m_format);
  file.throughDialog = true;
  file.useQuotes = result.useQuotes;
  if (result.userIDField != 0) file.identifier = static_cast<qz::UserIDField>(result.userIDField);
  file.replacedCharacters = result.replacedCharacters;
  file.studentsWithoutIdentifier = result.studentsWithoutIdentifier;
  file.assignmentCount = result.assignmentCount;
  file.studentCount = result.studentCount;
  if (!_IsSameClass(*m_class, result)) return file;
  file.openClass = m_class;
  file.assignments = result.assignments;
  return file;
}

void ExportController::CloseDialog() {
  if (m_preparing.isActive()) {
    EndPreparing();
    m_calledOff.start();
    return;
  }
  const QPointer<QWidget> dialog = m_run.Dialog();
  if (dialog == nullptr) return;
  dialog->close();
  if (dialog == nullptr || !dialog->isVisible()) return;
  dialog->raise();
  dialog->activateWindow();
}

}  // namespace host
