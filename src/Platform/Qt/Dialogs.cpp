#include "Platform/Ui/Dialogs.h"

#include <QApplication>
#include <QFont>
#include <QPushButton>
#include <algorithm>

#include "Platform/Core/CFString.h"
#include "Platform/Qt/QtControl.h"
#include "Platform/Qt/QtRegistry.h"
#include "Platform/Qt/QtScale.h"
#include "Platform/Qt/QtText.h"
#include "Platform/Ui/DialogResources.h"
#include "Platform/Ui/Events.h"
#include "Platform/Ui/Lists.h"

using ui::DialogItem;
using ui::ItemTemplate;
using ui::WindowRecord;

namespace {

// A dialog's reference is that of its window.
WindowRecord* _RecordOf(DialogRef dialog) {
  WindowRecord* const window = ui::FindWindow(reinterpret_cast<WindowRef>(dialog));
  return window != nullptr && window->isDialog ? window : nullptr;
}

DialogItem* _ItemOf(DialogRef dialog, int16_t item) {
  WindowRecord* const window = _RecordOf(dialog);
  if (window == nullptr || item < 1 || static_cast<size_t>(item) > window->items.size()) return nullptr;
  return &window->items[static_cast<size_t>(item - 1)];
}

ControlRef _AddControl(WindowRecord* window, const ItemTemplate& item, const Rect& bounds, int number) {
  ui::ControlRecord* const control = ui::CreateControl(window, item.kind, bounds, number);
  const ControlRef ref = control->ref;
  control->maximum = item.maximum;
  control->reference = item.refCon;
  control->listDefinition = item.listDefinition;
  SetControlText(ref, item.text);
  SetControlValue(ref, item.value);
  if (item.kind == kControlKindListBox) LSetScrollBarVisible(GetControlList(ref), item.hasScrollBar);
  if (!item.visible) HideControl(ref);
  return ref;
}

void _AddItems(WindowRecord* window, const std::vector<ItemTemplate>& items) {
  for (const ItemTemplate& item : items) {
    const int number = static_cast<int>(window->items.size()) + 1;
    const Rect bounds = ui::Scaled(item.bounds, window->scale);
    const bool hasControl = item.kind != kControlKindNone;
    window->items.push_back({bounds, hasControl ? _AddControl(window, item, bounds, number) : nullptr});
  }
}

WindowClass _ClassOfProcID(int16_t procID) {
  constexpr int16_t kMovableModal = 5;
  constexpr int16_t kFloating = 1985;
  switch (procID) {
    case kMovableModal: return kMovableModalWindowClass;
    case kFloating: return kFloatingWindowClass;
    default: return kDocumentWindowClass;
  }
}

// The template's place on the screen, as large as the scale wants it.
Rect _WindowBounds(const Rect& drawn, const ui::Scale& scale) {
  const Rect size = ui::Scaled({0, 0, RectHeight(drawn), RectWidth(drawn)}, scale);
  return {drawn.top, drawn.left, ui::ToInt16(drawn.top + size.bottom), ui::ToInt16(drawn.left + size.right)};
}

// The font for which the dialog is scaled stays its font when the application gets another.
void _KeepFont(QWidget* window) {
  QFont font = QApplication::font();
  font.setResolveMask(QFont::AllPropertiesResolved);
  window->setFont(font);
}

}  // namespace

DialogRef GetNewDialog(int16_t id) {
  const std::optional<ui::DialogTemplate> dialog = ui::ReadDialogTemplate(id);
  if (!dialog) return nullptr;
  const std::optional<std::vector<ItemTemplate>> items = ui::ReadItemList(dialog->itemList);
  if (!items) return nullptr;
  const uint32_t attributes = dialog->goAway ? uint32_t{kWindowCloseBoxAttribute} : 0;
  if (!InitApplication()) return nullptr;
  const ui::Scale scale = ui::ScaleOfApplicationFont();
  const WindowRef ref =
      CreateNewWindow(_ClassOfProcID(dialog->procID), attributes, _WindowBounds(dialog->bounds, scale));
  WindowRecord* const window = ui::FindWindow(ref);
  if (window == nullptr) return nullptr;
  window->isDialog = true;
  window->scale = scale;
  _KeepFont(window->widget);
  if (dialog->isCentred) CenterWindowOnMainScreen(ref);
  SetWTitle(ref, MacRomanToUTF8(dialog->title));
  SetWRefCon(ref, dialog->refCon);
  _AddItems(window, *items);
  return reinterpret_cast<DialogRef>(ref);
}

void DisposeDialog(DialogRef dialog) {
  DisposeWindow(GetDialogWindow(dialog));
}

WindowRef GetDialogWindow(DialogRef dialog) {
  const WindowRecord* const window = _RecordOf(dialog);
  return window == nullptr ? nullptr : window->ref;
}

DialogRef GetDialogFromWindow(WindowRef window) {
  const auto dialog = reinterpret_cast<DialogRef>(window);
  return _RecordOf(dialog) == nullptr ? nullptr : dialog;
}

int16_t CountDITL(DialogRef dialog) {
  const WindowRecord* const window = _RecordOf(dialog);
  return window == nullptr ? int16_t{0} : static_cast<int16_t>(window->items.size());
}

bool AppendDialogItemList(DialogRef dialog, int16_t id) {
  WindowRecord* const window = _RecordOf(dialog);
  if (window == nullptr) return false;
  const std::optional<std::vector<ItemTemplate>> items = ui::ReadItemList(id);
  if (!items || window->items.size() + items->size() > ui::kMostDialogItems) return false;
  _AddItems(window, *items);
  return true;
}

void ShortenDITL(DialogRef dialog, int16_t itemCount) {
  WindowRecord* const window = _RecordOf(dialog);
  if (window == nullptr) return;
  for (; itemCount > 0 && !window->items.empty(); --itemCount) {
    const ControlRef control = window->items.back().control;
    window->items.pop_back();
    ui::RemoveControlRecord(control);
  }
  if (window->defaultItem > CountDITL(dialog)) window->defaultItem = 0;
}

ControlRef GetDialogItemAsControl(DialogRef dialog, int16_t item) {
  const DialogItem* const found = _ItemOf(dialog, item);
  return found == nullptr ? nullptr : found->control;
}

bool GetDialogItemBounds(DialogRef dialog, int16_t item, Rect* bounds) {
  const DialogItem* const found = _ItemOf(dialog, item);
  if (found == nullptr || bounds == nullptr) return false;
  *bounds = found->control == nullptr ? found->bounds : GetControlBounds(found->control);
  return true;
}

void SetDialogItemBounds(DialogRef dialog, int16_t item, const Rect& bounds) {
  DialogItem* const found = _ItemOf(dialog, item);
  if (found == nullptr) return;
  found->bounds = bounds;
  SetControlBounds(found->control, bounds);
}

int32_t GetDialogWidth(DialogRef dialog, int32_t drawn) {
  const WindowRecord* const window = _RecordOf(dialog);
  return window == nullptr ? drawn : ui::ScaledWidth(drawn, window->scale);
}

int16_t FindDialogItemOfControl(DialogRef dialog, ControlRef control) {
  const WindowRecord* const window = _RecordOf(dialog);
  if (window == nullptr || control == nullptr) return 0;
  const auto found = std::find_if(window->items.begin(), window->items.end(),
                                  [control](const DialogItem& item) { return item.control == control; });
  return found == window->items.end() ? int16_t{0} : static_cast<int16_t>(found - window->items.begin() + 1);
}

namespace {

void _DrawAsDefault(DialogRef dialog, int16_t item, bool on) {
  const ui::ControlRecord* const control = ui::FindControl(GetDialogItemAsControl(dialog, item));
  if (control == nullptr) return;
  if (auto* const button = qobject_cast<QPushButton*>(control->widget.data())) button->setDefault(on);
}

}  // namespace

void SetDialogDefaultItem(DialogRef dialog, int16_t item) {
  WindowRecord* const window = _RecordOf(dialog);
  if (window == nullptr) return;
  _DrawAsDefault(dialog, window->defaultItem, false);
  window->defaultItem = item;
  _DrawAsDefault(dialog, item, true);
}
