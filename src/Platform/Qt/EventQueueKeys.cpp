// The keyboard's part of the event queue.
#include <QComboBox>
#include <utility>

#include "Platform/Qt/EventQueue.h"
#include "Platform/Qt/QtControl.h"
#include "Platform/Qt/QtHelpTags.h"

namespace ui {

namespace {

bool _IsEditText(const QWidget* widget) {
  const ControlRecord* const control = FindControlOf(widget);
  return control != nullptr && control->kind == kControlKindEditText;
}

// Keys whose effect must not come again while they are held.
bool _IsUnwantedRepeat(const QKeyEvent& event, const QWidget* widget) {
  if (!event.isAutoRepeat()) return false;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape: return true;
    case Qt::Key_Space: return !_IsEditText(widget);
    default: return false;
  }
}

}  // namespace

// Always takes the event. While a press is followed, keys have no effect.
bool EventQueue::OnKeyPress(WindowRecord& window, QWidget* widget, const QKeyEvent& event) {
  HelpTags::Get().Cancel();
  const WindowRef ref = window.ref;
  const std::optional<KeyStroke> stroke = KeyStrokeOf(event);
  if (!stroke || _IsUnwantedRepeat(event, widget)) return true;
  if (!CanHandle(ref)) return true;
  HandlePresses();
  const WindowRecord* const record = FindWindow(ref);
  if (record == nullptr || record->blocked > 0) return true;
  const Innermost key(&m_keys, {std::unique_ptr<QKeyEvent>(event.clone()), *stroke});
  CallHandler(ref, m_handlers.key, ref, stroke->character, stroke->modifiers);
  return true;
}

bool EventQueue::OnKeyRelease(QWidget* widget, const QKeyEvent& event) {
  const auto down = m_keysDown.find(event.key());
  if (down == m_keysDown.end()) return true;
  const bool passes = down->second == widget;
  if (!event.isAutoRepeat()) m_keysDown.erase(down);
  return !passes || event.isAutoRepeat();
}

namespace {

bool _TakesKey(const ControlRecord& control, uint16_t character) {
  if (control.widget->isHidden() || !control.widget->isEnabled()) return false;
  switch (character) {
    case kTabChar:
    case kReturnChar:
    case kEnterChar:
    case kEscapeChar: return false;
    default: break;
  }
  return IsInteractive(control.kind);
}

}  // namespace

bool EventQueue::SendKey(ControlRef ref, KeyStroke stroke) {
  const ControlRecord* const control = FindControl(ref);
  if (control == nullptr || !_TakesKey(*control, stroke.character)) return false;
  const QPointer<QWidget> widget = control->widget;
  const auto* const combo = qobject_cast<const QComboBox*>(widget);
  const int row = combo != nullptr ? combo->currentIndex() : 0;
  const Innermost receiver(&m_keyReceivers, {ref, false});
  if (!m_keys.empty() && m_keys.back().stroke == stroke) {
    const std::unique_ptr<QKeyEvent> event(m_keys.back().event->clone());
    m_keysDown[event->key()] = widget;
    Send(widget, event.get());
  } else {
    QKeyEvent press = MakeKeyEvent(QEvent::KeyPress, stroke);
    QKeyEvent release = MakeKeyEvent(QEvent::KeyRelease, stroke);
    Send(widget, &press);
    if (!widget.isNull()) Send(widget, &release);
  }
  return combo != nullptr ? !widget.isNull() && combo->currentIndex() != row : m_keyReceivers.back().acted;
}

}  // namespace ui
