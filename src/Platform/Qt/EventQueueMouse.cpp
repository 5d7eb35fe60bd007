// The mouse's part of the event queue.
#include <QGuiApplication>
#include <QScrollBar>
#include <utility>

#include "Platform/Qt/EventQueue.h"
#include "Platform/Qt/QtControl.h"
#include "Platform/Qt/QtHelpTags.h"
#include "Platform/Qt/QtText.h"

namespace ui {

namespace {

std::unique_ptr<QMouseEvent> _Copy(const QMouseEvent& event) {
  return std::unique_ptr<QMouseEvent>(event.clone());
}

std::unique_ptr<QMouseEvent> _MakeEvent(QEvent::Type type, QPointF local, QPointF global) {
  const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  return std::make_unique<QMouseEvent>(type, local, global, Qt::LeftButton, buttons, Qt::NoModifier);
}

// The same event as the other widget sees it.
std::unique_ptr<QMouseEvent> _MapTo(const QWidget& widget, const QMouseEvent& event) {
  return std::make_unique<QMouseEvent>(event.type(), widget.mapFromGlobal(event.globalPosition()),
                                       event.globalPosition(), event.button(), event.buttons(),
                                       event.modifiers());
}

bool _IsWithin(const QWidget* outer, const QWidget* inner) {
  return outer != nullptr && inner != nullptr && (outer == inner || outer->isAncestorOf(inner));
}

}  // namespace

bool EventQueue::OnPress(WindowRecord& window, QWidget* widget, const QMouseEvent& event) {
  HelpTags::Get().Cancel();
  if (window.blocked > 0) return true;
  if (event.button() != Qt::LeftButton) {
    const ControlRecord* const control = FindControlOf(widget);
    return control == nullptr || control->kind != kControlKindEditText;
  }
  if (m_activated == window.ref) m_activated = nullptr;
  m_lastPosition = event.globalPosition().toPoint();
  m_openPress.clear();
  for (const std::unique_ptr<Press>& earlier : m_handling) earlier->released = true;

  auto press = std::make_unique<Press>();
  press->window = window.ref;
  press->target = widget;
  press->event = _Copy(event);
  press->isKnown = QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
  // A second press that did not come through the window system has no release.
  press->released = !std::exchange(m_windowHasPress, false) && event.type() == QEvent::MouseButtonDblClick;
  m_queue.push_back(std::move(press));
  WakeUp();
  return true;
}

bool EventQueue::OnMove(QWidget* widget, const QMouseEvent& event) {
  m_lastPosition = event.globalPosition().toPoint();
  if (!event.buttons().testFlag(Qt::LeftButton)) {
    HelpTags::Get().MouseMoved(widget, m_lastPosition);
    return false;
  }
  Press* const press = !m_queue.empty()      ? m_queue.back().get()
                       : !m_handling.empty() ? m_handling.back().get()
                                             : nullptr;
  if (press == nullptr) return !_IsWithin(m_openPress, widget);
  if (press->released) return true;
  if (press->tracking) return DeliverNatively(*press, widget, event);
  if (press->control == nullptr) press->trailing.push_back(_Copy(event));
  return true;
}

bool EventQueue::OnRelease(QWidget* widget, const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) {
    const ControlRecord* const control = FindControlOf(widget);
    return control == nullptr || control->kind != kControlKindEditText;
  }
  m_lastPosition = event.globalPosition().toPoint();
  if (!m_queue.empty()) {
    Press& press = *m_queue.back();
    if (!std::exchange(press.released, true)) press.trailing.push_back(_Copy(event));
    HandlePresses();
    return true;
  }
  if (m_handling.empty()) {
    const bool isOpen = _IsWithin(m_openPress, widget);
    m_openPress.clear();
    return !isOpen;
  }
  Press& press = *m_handling.back();
  if (press.released) return true;
  press.released = true;
  if (press.tracking) return DeliverNatively(press, widget, event);
  if (press.control == nullptr) press.trailing.push_back(_Copy(event));
  return true;
}

// To the widget that has the press. True when that took another event than the one under way.
bool EventQueue::DeliverNatively(Press& press, QWidget* widget, const QMouseEvent& event) {
  if (event.type() == QEvent::MouseButtonRelease) press.releaseDelivered = true;
  if (press.receiver == widget) return false;
  if (!press.receiver.isNull()) Send(press.receiver, _MapTo(*press.receiver, event).get());
  return true;
}

// Not while a handler follows an earlier press, nor before it could see that press released in that window.
bool EventQueue::CanHandle(WindowRef window) const {
  if (m_handling.empty()) return true;
  const Press& press = *m_handling.back();
  const bool tracking = press.tracking && FindControl(press.control) != nullptr;
  return !tracking && (!press.polled || press.toldReleased || press.window != window);
}

void EventQueue::HandlePresses() {
  while (!m_queue.empty() && CanHandle(m_queue.front()->window)) {
    std::unique_ptr<Press> press = std::move(m_queue.front());
    m_queue.pop_front();
    HandlePress(std::move(press));
  }
}

void EventQueue::HandlePress(std::unique_ptr<Press> pressUnderWay) {
  Press& press = *pressUnderWay;
  const WindowRecord* const window = FindWindow(press.window);
  if (window == nullptr || window->blocked > 0 || press.target.isNull()) return;
  const QPoint where = window->widget->mapFromGlobal(press.event->globalPosition().toPoint());
  MouseEvent event;
  event.where = {ToInt16(where.y()), ToInt16(where.x())};
  event.modifiers = ModifiersOf(press.event->modifiers());
  event.doubleClick = press.event->type() == QEvent::MouseButtonDblClick;
  const WindowRef ref = press.window;

  const Innermost handling(&m_handling, std::move(pressUnderWay));
  CallHandler(ref, m_handlers.mouseDown, ref, event);
  if (press.tracking) CancelTracking(press);
  if (!press.released && press.control != nullptr) m_openPress = press.receiver;
  if (!m_queue.empty()) WakeUp();
}

// The press that the control's widget has, while it is followed.
EventQueue::Press* EventQueue::TrackedPress(ControlRef control) {
  if (m_made != nullptr && m_made->tracking && m_made->control == control) return m_made.get();
  for (auto press = m_handling.rbegin(); press != m_handling.rend(); ++press) {
    if ((*press)->tracking && (*press)->control == control) return press->get();
  }
  return nullptr;
}

namespace {

bool _TakesPress(const ControlRecord& control) {
  return IsInteractive(control.kind) && !control.widget->isHidden() && control.widget->isEnabled();
}

}  // namespace

bool EventQueue::BeginTracking(ControlRef ref, Point where) {
  const ControlRecord* const control = FindControl(ref);
  if (control == nullptr || !_TakesPress(*control)) return false;
  const QPointer<QWidget> widget = control->widget;
  const bool opensPopup = control->kind == kControlKindPopupButton;

  Press* press = m_handling.empty() ? nullptr : m_handling.back().get();
  if (press == nullptr || press->window != control->window || press->control != nullptr) {
    m_made = std::make_unique<Press>();
    press = m_made.get();
    press->window = control->window;
    press->released = true;
  }
  press->control = ref;
  press->tracking = true;
  MouseCopy event;
  if (_IsWithin(widget, press->target)) {
    press->receiver = press->target;
    event = std::move(press->event);
  } else {
    const QWidget& content = *widget->window();
    const QPoint inWindow(where.h, where.v);
    QWidget* const child = widget->childAt(widget->mapFrom(&content, inWindow));
    press->receiver = child != nullptr ? child : widget.data();
    event = _MakeEvent(QEvent::MouseButtonPress, press->receiver->mapFrom(&content, inWindow),
                       content.mapToGlobal(inWindow));
  }
  Send(press->receiver, event.get());
  SendTrailing(*press, false);
  if (opensPopup) press->tracking = false;
  return !opensPopup;
}

// Hands over what came before the widget had its press.
void EventQueue::SendTrailing(Press& press, bool withRelease) {
  while (!press.trailing.empty() && !press.receiver.isNull()) {
    const bool isRelease = press.trailing.front()->type() == QEvent::MouseButtonRelease;
    if (isRelease && !withRelease) return;
    const MouseCopy event = std::move(press.trailing.front());
    press.trailing.pop_front();
    if (isRelease) press.releaseDelivered = true;
    const bool same = press.receiver == press.target;
    Send(press.receiver, same ? event.get() : _MapTo(*press.receiver, *event).get());
  }
}

// Lets the widget go without its effect: the button is released outside of it.
void EventQueue::CancelTracking(Press& press) {
  press.tracking = false;
  if (press.releaseDelivered || press.receiver.isNull()) return;
  press.releaseDelivered = true;
  constexpr int kFarAway = -10000;
  const QPoint outside(kFarAway, kFarAway);
  const Quiet quiet;
  Send(press.receiver,
       _MakeEvent(QEvent::MouseButtonRelease, outside, press.receiver->mapToGlobal(outside)).get());
}

bool EventQueue::EndTracking(ControlRef ref, Point where) {
  Press* const press = TrackedPress(ref);
  if (press == nullptr) return false;
  SendTrailing(*press, true);
  if (!press->releaseDelivered && press == m_made.get() && !press->receiver.isNull()) {
    press->releaseDelivered = true;
    const QWidget& content = *press->receiver->window();
    const QPoint inWindow(where.h, where.v);
    Send(press->receiver, _MakeEvent(QEvent::MouseButtonRelease, press->receiver->mapFrom(&content, inWindow),
                                     content.mapToGlobal(inWindow))
                              .get());
  }
  CancelTracking(*press);
  const bool acted = press->acted;
  if (press == m_made.get()) m_made.reset();
  if (!m_queue.empty()) WakeUp();
  return acted;
}

bool EventQueue::IsDown(const Press& press) const {
  const WindowRecord* const window = FindWindow(press.window);
  if (press.released || press.target.isNull() || window == nullptr || window->blocked > 0) return false;
  if (!window->widget->isVisible()) return false;
  return !press.isKnown || QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
}

bool EventQueue::StillDown() {
  if (m_handling.empty()) return false;
  Press& press = *m_handling.back();
  const bool down = IsDown(press);
  press.polled = true;
  press.toldReleased = !down;
  if (!down && !m_queue.empty()) WakeUp();
  return down;
}

QPoint EventQueue::LastMousePosition() const {
  return m_handling.empty() ? QCursor::pos() : m_lastPosition;
}

}  // namespace ui
