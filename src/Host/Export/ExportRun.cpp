#include "Host/Export/ExportRun.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <cstring>
#include <utility>

namespace host {

namespace {

constexpr int kDialogTries = 20;
constexpr int kDialogWait = 50;  // milliseconds

bool _IsDialogLike(const QWidget& window) {
  const Qt::WindowType type = window.windowType();
  return window.isVisible() && (type == Qt::Window || type == Qt::Dialog || type == Qt::Tool);
}

RunOutcome _OutcomeOf(uint32_t state) {
  switch (state) {
    case QZFILTER_CANCELLED: return RunOutcome::kCanceled;
    case QZFILTER_WRITTEN: return RunOutcome::kWritten;
    case QZFILTER_NOT_WRITTEN: return RunOutcome::kNotWritten;
    default: return RunOutcome::kUnknown;
  }
}

}  // namespace

ExportRun::ExportRun(QObject* parent, Choose choose, Finished finished)
    : QObject(parent), m_choose(std::move(choose)), m_finished(std::move(finished)) {
  m_search.setInterval(kDialogWait);
  connect(&m_search, &QTimer::timeout, this, [this] { FindDialog(); });
  for (QTimer* const timer : {&m_hidden, &m_end}) timer->setSingleShot(true);
  connect(&m_hidden, &QTimer::timeout, this, [this] { FinishUnlessVisible(); });
  connect(&m_end, &QTimer::timeout, this, [this] {
    m_running = false;
    m_finished(Result());
  });
}

StartResult ExportRun::Start(const FilterModule& filter, const ExportRequest& request, QWidget* hostWindow) {
  if (m_running) return StartResult::kBusy;
  m_running = true;
  m_classPath = QFile::encodeName(request.classPath);
  m_chosenPath.clear();
  m_windowsBefore.clear();
  for (QWidget* const window : QApplication::topLevelWidgets()) m_windowsBefore.append(window);

  const StartResult result = Run(filter, request, hostWindow);
  if (result == StartResult::kStarted) {
    m_triesLeft = kDialogTries;
    m_search.start();
    FindDialog();
  } else {
    m_running = false;
  }
  return result;
}

StartResult ExportRun::Run(const FilterModule& filter, const ExportRequest& request, QWidget* hostWindow) {
  QZEXPORTBEGIN begin{};
  begin.formatIndex = request.formatIndex;
  begin.chooseFileValue = reinterpret_cast<uintptr_t>(this);
  begin.chooseFile = ChooseFile;
  m_filter = &filter;
  if (filter.ExportBegin(&begin, &m_session) != QZFILTER_SUCCESS) return StartResult::kBeginFailed;

  QZEXPORTFILE file{};
  file.assignmentID = request.assignmentID;
  file.classFile = QZFilter_MakeFSRef(m_classPath.constData());
  filter.SetSpanish(request.spanish);
  const uint32_t status = filter.ExportFile(reinterpret_cast<void*>(hostWindow->winId()), m_session, &file);
  filter.ExportEnd(m_session);
  if (status == 1) return StartResult::kStarted;
  return status == 0 ? StartResult::kFileFailed : StartResult::kSessionUnknown;
}

// The filter's dialog is the window that was not there before. A desktop may show it a little later.
void ExportRun::FindDialog() {
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (m_windowsBefore.contains(window) || !_IsDialogLike(*window)) continue;
    m_search.stop();
    m_dialog = window;
    window->installEventFilter(this);
    connect(window, &QObject::destroyed, this, [this] { Finish(); });
    return;
  }
  if (m_triesLeft-- == 0) Finish();
}

bool ExportRun::eventFilter(QObject* watched, QEvent* event) {
  // Minimizing hides the window, too, but spontaneously.
  if (watched == m_dialog && event->type() == QEvent::Hide && !event->spontaneous()) {
    m_hidden.start();
  }
  return QObject::eventFilter(watched, event);
}

void ExportRun::FinishUnlessVisible() {
  if (m_dialog != nullptr && !m_dialog->isVisible()) Finish();
}

void ExportRun::Finish() {
  if (!m_running || m_end.isActive()) return;
  m_search.stop();
  if (m_dialog != nullptr) {
    m_dialog->removeEventFilter(this);
    disconnect(m_dialog, &QObject::destroyed, this, nullptr);
  }
  m_dialog = nullptr;
  // The dialog may still be in the middle of its closing.
  m_end.start();
}

// Without a chosen file nothing can have been written.
RunResult ExportRun::Result() const {
  RunResult result;
  result.path = m_chosenPath;
  if (m_chosenPath.isEmpty()) return result;
  const std::optional<QZEXPORTOUTCOME> told = m_filter->Outcome(m_session);
  result.outcome = told ? _OutcomeOf(told->state) : RunOutcome::kUnknown;
  if (!told) return result;
  result.error = told->error;
  result.incomplete = told->incomplete != 0;
  result.replacedCharacters = told->replacedCharacters;
  result.studentsWithoutIdentifier = told->studentsWithoutIdentifier;
  result.assignmentCount = told->assignments;
  result.userIDField = told->userIDField;
  if (told->chosenAssignments == nullptr) return result;
  result.assignments.assign(told->chosenAssignments, told->chosenAssignments + told->assignments);
  result.useQuotes = told->useQuotes != 0;
  result.studentCount = told->students;
  return result;
}

int32_t ExportRun::ChooseFile(void* dialog, int32_t /*reserved*/, char* path, int32_t size, uintptr_t value) {
  auto* const run = reinterpret_cast<ExportRun*>(value);
  if (run == nullptr || path == nullptr || size <= 0) return 1;
  return run->StorePath(QWidget::find(reinterpret_cast<WId>(dialog)), path, size) ? 0 : 1;
}

bool ExportRun::StorePath(QWidget* dialog, char* path, int32_t size) {
  const std::optional<QString> chosen = m_choose(dialog);
  if (!chosen) return false;
  const QByteArray bytes = QFile::encodeName(*chosen);
  if (bytes.isEmpty() || bytes.size() >= size) return false;
  std::memcpy(path, bytes.constData(), static_cast<size_t>(bytes.size()) + 1);
  m_chosenPath = *chosen;
  return true;
}

}  // namespace host
