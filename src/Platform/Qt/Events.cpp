#include "Platform/Ui/Events.h"

#include <QApplication>
#include <QCursor>
#include <QPointer>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <limits>

#include "Platform/Qt/EventQueue.h"
#include "Platform/Qt/QtRegistry.h"
#include "Platform/Qt/QtText.h"

constexpr int kTicksPerSecond = 60;

namespace {

uint32_t gBeepCount = 0;

}  // namespace

void InstallDialogEventHandlers(const DialogEventHandlers& handlers) {
  ui::EventQueue::Get().SetHandlers(handlers);
}

namespace {

// Whether an application of our own would find something to show its windows on. Qt ends a process without.
bool _HasDisplay() {
  for (const char* variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
    if (qEnvironmentVariableIsSet(variable)) return true;
  }
  return false;
}

// Never freed: it must outlive every widget.
void _MakeApplication() {
  static int argumentCount = 1;
  static char name[] = "gradix";
  static char* arguments[] = {name, nullptr};
  static auto* const application = new QApplication(argumentCount, arguments);
  application->setQuitOnLastWindowClosed(false);
}

}  // namespace

bool InitApplication() {
  if (QCoreApplication::instance() == nullptr && _HasDisplay()) _MakeApplication();
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) return false;
  ui::EventQueue::Get().Connect();
  return true;
}

bool IsFrontProcess() {
  if (FrontWindow() == nullptr || QCoreApplication::instance() == nullptr) return true;
  if (QGuiApplication::platformName() == QLatin1String("offscreen")) return true;
  return QGuiApplication::applicationState() == Qt::ApplicationActive;
}

void RunEventPass(uint32_t ticks) {
  if (!InitApplication()) return;
  constexpr uint32_t kMostTicks = 60 * 60 * 60;
  QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents;
  QTimer limit;
  if (ticks > 0) {
    flags |= QEventLoop::WaitForMoreEvents;
    limit.setSingleShot(true);
    limit.setTimerType(Qt::PreciseTimer);
    limit.start(static_cast<int>(std::min(ticks, kMostTicks) * 1000 / kTicksPerSecond));
  }
  QCoreApplication::processEvents(flags);
  ui::FreeRemovedWidgets();
}

uint32_t TickCount() {
  using Ticks = std::chrono::duration<int64_t, std::ratio<1, kTicksPerSecond>>;
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<uint32_t>(std::chrono::duration_cast<Ticks>(now).count());
}

bool StillDown() {
  return ui::EventQueue::Get().StillDown();
}

Point GetMouse(WindowRef window) {
  const ui::WindowRecord* const record = ui::FindWindow(window);
  if (record == nullptr) return {};
  const QPoint position = record->widget->mapFromGlobal(ui::EventQueue::Get().LastMousePosition());
  return {ui::ToInt16(position.y()), ui::ToInt16(position.x())};
}

void SysBeep(int16_t /*duration*/) {
  ++gBeepCount;
  if (InitApplication()) QApplication::beep();
}

uint32_t GetBeepCount() {
  return gBeepCount;
}

void InitCursor() {
  if (!InitApplication()) return;
  while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
}

struct OpaqueEventLoopTimer : QTimer {
  int firing = 0;  // calls of the procedure under way
  bool removed = false;
};

namespace {

void _Fire(EventLoopTimerRef timer, void (*proc)(void* data), void* data) {
  if (timer == nullptr || timer->removed) return;
  ++timer->firing;
  try {
    proc(data);
  } catch (...) {
    // The procedure is called again when its time comes; nothing may unwind through the event loop.
  }
  if (--timer->firing == 0 && timer->removed) delete timer;
}

}  // namespace

EventLoopTimerRef InstallEventLoopTimer(uint32_t milliseconds, void (*proc)(void* data), void* data) {
  constexpr uint32_t kLongest = std::numeric_limits<int>::max();
  if (proc == nullptr || !InitApplication()) return nullptr;
  auto* const timer = new OpaqueEventLoopTimer;
  // Queued: Qt calls no timer whose call is under way, and the procedure may run the event loop.
  QObject::connect(
      timer, &QTimer::timeout, &ui::EventQueue::Get(),
      [guarded = QPointer(timer), proc, data] { _Fire(guarded, proc, data); }, Qt::QueuedConnection);
  timer->start(static_cast<int>(std::min(milliseconds, kLongest)));
  return timer;
}

void RemoveEventLoopTimer(EventLoopTimerRef timer) {
  if (timer == nullptr) return;
  timer->stop();
  if (timer->firing > 0) {
    timer->removed = true;  // freed when its procedure has returned
  } else {
    delete timer;
  }
}
