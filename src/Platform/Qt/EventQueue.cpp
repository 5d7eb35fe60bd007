#include "Platform/Qt/EventQueue.h"

#include <QApplication>
#include <QChildEvent>
#include <QWindow>
#include <new>
#include <utility>

#include "Platform/Qt/QtHelpTags.h"

namespace ui {

namespace {

int _WakeUpType() {
  static const int type = QEvent::registerEventType();
  return type;
}

// Counts while it exists.
class Counted {
 public:
  explicit Counted(int* count) : m_count(count) { ++*m_count; }
  ~Counted() { --*m_count; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

 private:
  int* m_count;
};

}  // namespace

// Lives as long as the process.
EventQueue& EventQueue::Get() {
  static auto* const queue = new EventQueue;
  return *queue;
}

void EventQueue::Connect() {
  if (m_application == qApp) return;
  m_application = qApp;
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget* /*old*/, QWidget* now) { OnFocusChanged(now); });
}

void EventQueue::Watch(QWidget* widget) {
  widget->removeEventFilter(this);
  widget->installEventFilter(this);
  for (QObject* const child : widget->children()) {
    if (child->isWidgetType()) Watch(static_cast<QWidget*>(child));
  }
}

void EventQueue::WakeUp() noexcept {
  if (m_wakeUpPosted || QCoreApplication::instance() == nullptr) return;
  try {
    QCoreApplication::postEvent(this, new QEvent(static_cast<QEvent::Type>(_WakeUpType())));
    m_wakeUpPosted = true;
  } catch (const std::bad_alloc&) {
    return;
  }
}

void EventQueue::customEvent(QEvent* event) noexcept {
  if (event->type() != _WakeUpType()) return;
  m_wakeUpPosted = false;
  try {
    HandlePresses();
  } catch (...) {
    WakeUp();  // for the presses behind the one that is lost
  }
  FreeRemovedWidgets();
}

void EventQueue::Send(QWidget* widget, QEvent* event) {
  const Counted sending(&m_sending);
  QCoreApplication::sendEvent(widget, event);
}

void EventQueue::Acted(ControlRef ref) {
  if (Quiet::IsOn()) return;
  const ControlRecord* const control = FindControl(ref);
  if (control == nullptr) return;
  if (Press* const press = TrackedPress(ref)) {
    press->acted = true;
    return;
  }
  for (KeyReceiver& receiver : m_keyReceivers) {
    if (receiver.control == ref) {
      receiver.acted = true;
      return;
    }
  }
  const WindowRef window = control->window;
  CallHandler(window, m_handlers.action, window, ref);
}

// Without memory, a press or key is lost: no exception may go to Qt.
bool EventQueue::eventFilter(QObject* object, QEvent* event) noexcept {
  try {
    return Filter(object, event);
  } catch (...) {
    WakeUp();  // for what waits behind it
    return event->isInputEvent();
  }
}

bool EventQueue::Filter(QObject* object, QEvent* event) {
  if (object->isWindowType()) {
    m_windowHasPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    return false;
  }
  if (!object->isWidgetType()) return false;
  if (event->type() == QEvent::ChildAdded) {
    QObject* const child = static_cast<QChildEvent*>(event)->child();
    if (child->isWidgetType()) Watch(static_cast<QWidget*>(child));
    return false;
  }
  if (m_sending > 0 && !event->spontaneous()) return false;
  auto* const widget = static_cast<QWidget*>(object);
  WindowRecord* const window = FindWindowOf(widget);
  if (window != nullptr) return FilterInput(*window, widget, event);
  OnPopupEvent(widget, *event);
  return false;
}

namespace {

bool _IsOfKind(const QWidget* widget, ControlKind kind) {
  const ControlRecord* const control = FindControlOf(widget);
  return control != nullptr && control->kind == kind;
}

}  // namespace

// Not every window system has a popup take the keyboard from the window that it belongs to: a key may come
// there although the popup is open, or was when the key was announced to it.
bool EventQueue::GiveToPopup(const QWidget* widget, const QKeyEvent& event) {
  const int popupKey = std::exchange(m_popupKey, 0);
  if (popupKey != 0 && popupKey == event.key()) return true;
  QWidget* const popup = QApplication::activePopupWidget();
  if (popup == nullptr || popup == widget->window()) return false;
  QWidget* const focus = popup->focusWidget();
  const std::unique_ptr<QKeyEvent> copy(event.clone());
  Send(focus != nullptr ? focus : popup, copy.get());
  return true;
}

void EventQueue::OnPopupEvent(QWidget* widget, const QEvent& event) {
  switch (event.type()) {
    case QEvent::Show:
      if (widget->isWindow()) Watch(widget);  // before the popup's own filters
      break;
    case QEvent::ShortcutOverride: m_popupKey = static_cast<const QKeyEvent&>(event).key(); break;
    case QEvent::KeyPress: m_popupKey = 0; break;
    default: break;
  }
}

bool EventQueue::FilterInput(WindowRecord& window, QWidget* widget, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      event->accept();
      return OnPress(window, widget, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove: return OnMove(widget, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease: return OnRelease(widget, *static_cast<QMouseEvent*>(event));
    case QEvent::KeyPress:
      event->accept();
      return GiveToPopup(widget, *static_cast<QKeyEvent*>(event)) ||
             OnKeyPress(window, widget, *static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease: return OnKeyRelease(widget, *static_cast<QKeyEvent*>(event));
    case QEvent::ShortcutOverride:
      m_popupKey = 0;
      event->accept();
      return true;
    case QEvent::ContextMenu: return window.blocked > 0 || !_IsOfKind(widget, kControlKindEditText);
    case QEvent::Wheel: return window.blocked > 0 || _IsOfKind(widget, kControlKindPopupButton);
    case QEvent::ToolTip: return true;
    case QEvent::Leave: HelpTags::Get().Cancel(); return false;
    case QEvent::WindowActivate:
      if (widget->isWindow()) OnWindowActivated(window);
      return false;
    case QEvent::WinIdChange:
      if (widget->isWindow() && widget->windowHandle() != nullptr)
        widget->windowHandle()->installEventFilter(this);
      return false;
    case QEvent::UngrabMouse:
      if (!m_handling.empty() && m_handling.back()->receiver == widget) m_handling.back()->released = true;
      return false;
    default: return false;
  }
}

EventQueue::EventQueue() {
  constexpr int kWaitForPress = 100;  // milliseconds
  m_activation.setSingleShot(true);
  m_activation.setInterval(kWaitForPress);
  connect(&m_activation, &QTimer::timeout, this, [this] { TellActivated(); });
}

// A press into the window may be on its way: then it decides what becomes of the window.
void EventQueue::OnWindowActivated(const WindowRecord& window) {
  if (FrontWindow() == window.ref || window.blocked > 0) return;
  m_activated = window.ref;
  m_activation.start();
}

void EventQueue::TellActivated() {
  const WindowRef ref = std::exchange(m_activated, nullptr);
  const WindowRecord* const window = FindWindow(ref);
  if (window == nullptr || window->blocked > 0 || FrontWindow() == ref) return;
  if (window->widget->isActiveWindow()) CallHandler(ref, m_handlers.activate, ref);
}

void EventQueue::OnFocusChanged(QWidget* now) {
  WindowRecord* const window = FindWindowOf(now);
  const ControlRecord* const control = FindControlOf(now);
  if (window == nullptr || control == nullptr || window->focus == control->ref) return;
  window->focus = control->ref;
  if (m_settingFocus > 0) return;
  const WindowRef windowRef = window->ref;
  CallHandler(windowRef, m_handlers.focus, windowRef, control->ref);
}

void EventQueue::SetFocus(WindowRecord& window, ControlRecord* control) {
  const bool byTab = !m_keys.empty() && m_keys.back().stroke.character == kTabChar;
  const Qt::FocusReason reason = byTab ? Qt::TabFocusReason : Qt::OtherFocusReason;
  QWidget* const widget = control != nullptr ? control->widget.data() : window.widget.data();
  window.focus = control != nullptr ? control->ref : nullptr;
  window.widget->setAttribute(Qt::WA_KeyboardFocusChange);
  const Counted setting(&m_settingFocus);
  if (!widget->hasFocus()) widget->setFocus(reason);
}

}  // namespace ui
