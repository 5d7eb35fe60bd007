#include "Platform/Ui/Controls.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>

#include "Platform/Qt/EventQueue.h"
#include "Platform/Qt/QtControl.h"
#include "Platform/Qt/QtListView.h"
#include "Platform/Qt/QtRegistry.h"
#include "Platform/Qt/QtText.h"

using ui::ControlRecord;
using ui::FindControl;

namespace {

template <typename Widget>
Widget* _WidgetOf(ControlRef control) {
  const ControlRecord* const record = FindControl(control);
  return record == nullptr ? nullptr : qobject_cast<Widget*>(record->widget.data());
}

}  // namespace

bool IsValidControl(ControlRef control) {
  return FindControl(control) != nullptr;
}

ControlKind GetControlKind(ControlRef control) {
  const ControlRecord* const record = FindControl(control);
  return record == nullptr ? kControlKindNone : record->kind;
}

WindowRef GetControlOwner(ControlRef control) {
  const ControlRecord* const record = FindControl(control);
  return record == nullptr ? nullptr : record->window;
}

void SetControlReference(ControlRef control, intptr_t value) {
  if (ControlRecord* const record = FindControl(control)) record->reference = value;
}

intptr_t GetControlReference(ControlRef control) {
  const ControlRecord* const record = FindControl(control);
  return record == nullptr ? 0 : record->reference;
}

int32_t GetControlValue(ControlRef control) {
  if (const auto* const button = _WidgetOf<QAbstractButton>(control)) return button->isChecked() ? 1 : 0;
  if (const auto* const combo = _WidgetOf<QComboBox>(control)) return combo->currentIndex() + 1;
  return 0;
}

void SetControlValue(ControlRef control, int32_t value) {
  const ui::Quiet quiet;
  if (auto* const button = _WidgetOf<QAbstractButton>(control)) {
    button->setChecked(value != 0);
  } else if (auto* const combo = _WidgetOf<QComboBox>(control)) {
    combo->setCurrentIndex(value >= 1 && value <= combo->count() ? value - 1 : -1);
  }
}

int32_t GetControlMaximum(ControlRef control) {
  if (const auto* const combo = _WidgetOf<QComboBox>(control)) return combo->count();
  const ControlRecord* const record = FindControl(control);
  return record == nullptr ? 0 : record->maximum;
}

void SetControlMaximum(ControlRef control, int32_t maximum) {
  if (ControlRecord* const record = FindControl(control)) record->maximum = maximum;
}

namespace {

// A control that can no longer have the keyboard gives it up.
void _ReleaseFocus(const ControlRecord& control) {
  ui::WindowRecord* const window = ui::FindWindow(control.window);
  if (window != nullptr && window->focus == control.ref) ui::EventQueue::Get().SetFocus(*window, nullptr);
}

}  // namespace

void ActivateControl(ControlRef control) {
  if (const ControlRecord* const record = FindControl(control)) record->widget->setEnabled(true);
}

void DeactivateControl(ControlRef control) {
  const ControlRecord* const record = FindControl(control);
  if (record == nullptr) return;
  _ReleaseFocus(*record);
  record->widget->setEnabled(false);
}

bool IsControlActive(ControlRef control) {
  const ControlRecord* const record = FindControl(control);
  return record != nullptr && record->widget->isEnabled();
}

void ShowControl(ControlRef control) {
  const ControlRecord* const record = FindControl(control);
  if (record != nullptr && record->kind != kControlKindRoot) record->widget->show();
}

void HideControl(ControlRef control) {
  const ControlRecord* const record = FindControl(control);
  if (record == nullptr || record->kind == kControlKindRoot) return;
  _ReleaseFocus(*record);
  record->widget->hide();
}

bool IsControlVisible(ControlRef control) {
  const ControlRecord* const record = FindControl(control);
  return record != nullptr && (record->kind == kControlKindRoot || !record->widget->isHidden());
}

void Draw1Control(ControlRef control) {
  const ControlRecord* const record = FindControl(control);
  if (record == nullptr) return;
  if (auto* const area = qobject_cast<QAbstractScrollArea*>(record->widget.data()))
    area->viewport()->update();
  record->widget->update();
}

Rect GetControlBounds(ControlRef control) {
  const ControlRecord* const record = FindControl(control);
  if (record == nullptr) return {};
  return record->kind == kControlKindRoot ? GetWindowPortBounds(record->window) : record->bounds;
}

void SetControlBounds(ControlRef control, const Rect& bounds) {
  ControlRecord* const record = FindControl(control);
  if (record != nullptr && record->kind != kControlKindRoot) ui::PlaceControl(*record, bounds);
}

bool TestControl(ControlRef control, Point where) {
  return IsControlVisible(control) && PtInRect(where, GetControlBounds(control));
}

void SetControlText(ControlRef control, const std::string& text) {
  ControlRecord* const record = FindControl(control);
  if (record == nullptr || record->kind == kControlKindRoot) return;
  auto* const edit = _WidgetOf<QLineEdit>(control);
  if (edit == nullptr) {
    record->text = text;
    ui::ShowControlText(*record);
    return;
  }
  const QString shown = ui::FromMacRoman(text);
  if (edit->text() == shown) return;
  const ui::Quiet quiet;
  const int start = edit->selectionStart();
  const int length = edit->selectionLength();
  const int cursor = edit->cursorPosition();
  edit->setText(shown);
  edit->setCursorPosition(cursor);
  if (start >= 0) edit->setSelection(start, length);
}

std::string GetControlText(ControlRef control) {
  if (const auto* const edit = _WidgetOf<QLineEdit>(control)) return ui::ToMacRoman(edit->text());
  const ControlRecord* const record = FindControl(control);
  return record == nullptr ? std::string() : record->text;
}

void SetEditTextLimit(ControlRef control, int32_t characters) {
  constexpr int kNoLimit = 32767;
  const ui::Quiet quiet;
  if (auto* const edit = _WidgetOf<QLineEdit>(control))
    edit->setMaxLength(characters > 0 ? characters : kNoLimit);
}

void SelectEditText(ControlRef control, int32_t start, int32_t end) {
  auto* const edit = _WidgetOf<QLineEdit>(control);
  if (edit == nullptr) return;
  const int length = static_cast<int>(edit->text().size());
  start = std::clamp(start, 0, length);
  end = std::clamp(end, start, length);
  edit->setCursorPosition(start);
  if (end > start) edit->setSelection(start, end - start);
}

ControlFontStyle GetControlFontStyle(ControlRef control) {
  const ControlRecord* const record = FindControl(control);
  return record == nullptr ? ControlFontStyle{} : record->fontStyle;
}

void SetControlFontStyle(ControlRef control, ControlFontStyle style) {
  ControlRecord* const record = FindControl(control);
  if (record == nullptr) return;
  record->fontStyle = style;
  record->widget->setFont(ui::FontOf(style.font, style.size));
}

void SetControlShortcut(ControlRef control, char letter) {
  ControlRecord* const record = FindControl(control);
  if (record == nullptr || _WidgetOf<QAbstractButton>(control) == nullptr) return;
  record->shortcut = letter;
  ui::ShowControlText(*record);
}

char GetControlShortcut(ControlRef control) {
  const ControlRecord* const record = FindControl(control);
  return record == nullptr ? '\0' : record->shortcut;
}

void SetControlLabel(ControlRef control, ControlRef text) {
  ControlRecord* const record = FindControl(control);
  ControlRecord* const labelRecord = FindControl(text);
  auto* const label = _WidgetOf<QLabel>(text);
  if (record == nullptr || record->kind == kControlKindRoot || (label == nullptr && text != nullptr)) return;
  record->label.clear();
  if (label != nullptr) {
    label->setBuddy(record->widget);
    ui::ShowControlText(*labelRecord);
    record->label = labelRecord->text;
    if (record->label.ends_with(':')) record->label.pop_back();
  }
  ui::ShowControlText(*record);
}

bool HandleControlPress(ControlRef control, Point where) {
  return ui::EventQueue::Get().BeginTracking(control, where);
}

bool HandleControlRelease(ControlRef control, Point where) {
  return ui::EventQueue::Get().EndTracking(control, where);
}

bool HandleControlKey(ControlRef control, uint16_t character, uint16_t modifiers) {
  return ui::EventQueue::Get().SendKey(control, {character, modifiers});
}

void SetKeyboardFocus(WindowRef window, ControlRef control) {
  ui::WindowRecord* const owner = ui::FindWindow(window);
  ControlRecord* const record = FindControl(control);
  if (owner == nullptr || (control != nullptr && (record == nullptr || record->window != window))) return;
  ui::EventQueue::Get().SetFocus(*owner, record);
}

ControlRef GetKeyboardFocus(WindowRef window) {
  const ui::WindowRecord* const record = ui::FindWindow(window);
  return record == nullptr ? nullptr : record->focus;
}

void OpenPopup(ControlRef control) {
  auto* const combo = _WidgetOf<QComboBox>(control);
  if (combo != nullptr && combo->isVisible() && combo->isEnabled()) combo->showPopup();
}
