#include "Toolkit/DLGFocus.h"

#include "Toolkit/Buttons.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGLive.h"
#include "Toolkit/DLGManager.h"

int32_t focusType = 0;

namespace {

bool _TakesFocus(const DLGItem& item) {
  constexpr uint32_t kNeeded = kDLGTabStop | kDLGEnabled;
  return (item.flags & kNeeded) == kNeeded;
}

// Tells the old and the new focus item and the dialog, one after the other, as long as the dialog is there.
void _AnnounceFocus(DLGRecord* dialog, int32_t oldItem, int32_t newItem) {
  const DLGWatch watch(dialog);
  SendDLGItemMessage(dialog, oldItem, kDLGFocus, 0);
  if (watch.IsLive()) SendDLGItemMessage(dialog, newItem, kDLGFocus, 1, focusType);
  if (watch.IsLive() && dialog->event != nullptr) {
    const auto items = (static_cast<uint32_t>(newItem) << 16) | static_cast<uint16_t>(oldItem);
    dialog->event(dialog, kDLGFocusChanged, static_cast<int32_t>(items), 0);
  }
}

}  // namespace

bool SetFocusDLG(DLGRecord* dialog, int32_t item) {
  if (!DialogIsValid(dialog)) return false;
  if (item < 0) item = 0;
  const DLGItem* row = DLGFindItem(dialog, item);
  if (item != 0 && (row == nullptr || !_TakesFocus(*row))) return false;

  const int32_t oldItem = dialog->focusItem;
  const DLGWatch watch(dialog);
  if (DLGFindItem(dialog, oldItem) != nullptr && SendDLGItemMessage(dialog, oldItem, kDLGFocusLeaves) == 0) {
    return false;
  }
  if (!watch.IsLive()) return false;
  dialog->focusItem = item;
  if (item == oldItem) return true;
  BTShowDefButton(dialog);
  if (item == 0) SetKeyboardFocus(dialog->window, nullptr);
  _AnnounceFocus(dialog, oldItem, item);
  return true;
}

bool DLGMoveFocus(DLGRecord* dialog, int32_t item, int32_t type) {
  struct FocusType {
    explicit FocusType(int32_t how) { focusType = how; }
    ~FocusType() { focusType = 0; }
  };
  const DLGWatch watch(dialog);
  const FocusType scope(type);
  return SetFocusDLG(dialog, item) && watch.IsLive();
}

int32_t DLGNextTabStop(const DLGItem* items, int32_t count, int32_t from, int32_t direction) {
  const bool forward = direction == 1;
  int32_t item = from;
  for (int32_t step = 0; step < count; ++step) {
    item += forward ? 1 : -1;
    if (item > count) item = 1;
    if (item < 1) item = count;
    if (item == from) break;
    if (_TakesFocus(items[item])) return item;
  }
  return from;
}

bool DoTabKey(DLGRecord* dialog, int32_t from, int32_t direction) {
  if (!DialogIsValid(dialog)) return false;
  if (from < 0) from = 0;  // no item: the walk begins at either end
  const int32_t before = dialog->focusItem;
  const int32_t next = DLGNextTabStop(DLGItemRow(dialog, 0), dialog->itemCount, from, direction);
  if (next == from) return false;
  return DLGMoveFocus(dialog, next, direction == 1 ? kFocusForward : kFocusBackward) &&
         dialog->focusItem != before;
}
