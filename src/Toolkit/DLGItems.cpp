#include "Toolkit/DLGItems.h"

#include <algorithm>
#include <cstring>

#include "Toolkit/Buttons.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/ItemControls.h"

intptr_t SendDLGItemMessage(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1,
                            intptr_t param2) {
  const DLGItem* row = DLGFindItem(dialog, item);
  if (row == nullptr || row->procedure == nullptr) return 0;
  return row->procedure(dialog, item, message, param1, param2);
}

uint32_t GetItemFlags(DLGRecord* dialog, int32_t item) {
  const DLGItem* row = DLGFindItem(dialog, item);
  return row == nullptr ? 0 : row->flags;
}

void AddItemFlags(DLGRecord* dialog, int32_t item, uint32_t bits) {
  if (DLGItem* row = DLGFindItem(dialog, item)) row->flags |= bits;
}

void RemoveItemFlags(DLGRecord* dialog, int32_t item, uint32_t bits) {
  if (DLGItem* row = DLGFindItem(dialog, item)) row->flags &= ~bits;
}

int32_t GetItemType(DLGRecord* dialog, int32_t item) {
  const DLGItem* row = DLGFindItem(dialog, item);
  return row == nullptr ? 0 : row->type;
}

void SetItemType(DLGRecord* dialog, int32_t item, int32_t type) {
  if (DLGItem* row = DLGFindItem(dialog, item)) row->type = type;
}

void SetItemProc(DLGRecord* dialog, int32_t item, DLGItemProc procedure) {
  if (DLGItem* row = DLGFindItem(dialog, item)) row->procedure = procedure;
}

intptr_t GetIRefCon(DLGRecord* dialog, int32_t item) {
  const DLGItem* row = DLGFindItem(dialog, item);
  return row == nullptr ? 0 : row->data;
}

void SetIRefCon(DLGRecord* dialog, int32_t item, intptr_t value) {
  if (DLGItem* row = DLGFindItem(dialog, item)) row->data = value;
}

ControlRef DLGGetChildControl(DLGRecord* dialog, int32_t item) {
  const DLGItem* row = DLGFindItem(dialog, item);
  return row == nullptr ? nullptr : row->control;
}

bool IsItemEnabled(DLGRecord* dialog, int32_t item) {
  return (GetItemFlags(dialog, item) & kDLGEnabled) != 0;
}

bool IsItemVisible(DLGRecord* dialog, int32_t item) {
  const DLGItem* row = DLGFindItem(dialog, item);
  return row != nullptr && row->control != nullptr && IsControlVisible(row->control) &&
         (row->flags & kDLGVisible) != 0;
}

namespace {

// The focus item has the keyboard whenever it can have it.
void _ReactsAgain(DLGRecord* dialog, int32_t item) {
  const DLGItem* row = DLGFindItem(dialog, item);
  if (item == dialog->focusItem && ItemReacts(*row) && row->control != nullptr) {
    SetKeyboardFocus(dialog->window, row->control);
  }
}

}  // namespace

void EnableDLGItem(DLGRecord* dialog, int32_t item, bool on) {
  DLGItem* row = DLGFindItem(dialog, item);
  if (row == nullptr || ((row->flags & kDLGEnabled) != 0) == on) return;
  row->flags ^= kDLGEnabled;
  BTShowDefButton(dialog);
  if (row->control == nullptr) return;
  if (on) {
    ActivateControl(row->control);
    _ReactsAgain(dialog, item);
  } else {
    DeactivateControl(row->control);
  }
  InvalDLGItem(dialog, item);
}

namespace {

void _SetVisible(DLGRecord* dialog, int32_t item, bool on, bool redraw) {
  DLGItem* row = DLGFindItem(dialog, item);
  if (row == nullptr) return;
  row->flags = on ? row->flags | kDLGVisible : row->flags & ~static_cast<uint32_t>(kDLGVisible);
  BTShowDefButton(dialog);
  if (row->control != nullptr) {
    if (on) {
      ShowControl(row->control);
      _ReactsAgain(dialog, item);
    } else {
      HideControl(row->control);
    }
  }
  if (redraw) InvalDLGItem(dialog, item);
}

}  // namespace

void ShowDLGItem(DLGRecord* dialog, int32_t item, bool redraw) {
  _SetVisible(dialog, item, true, redraw);
}

void HideDLGItem(DLGRecord* dialog, int32_t item, bool redraw) {
  _SetVisible(dialog, item, false, redraw);
}

void InvalDLGItem(DLGRecord* dialog, int32_t item) {
  DLGItem* row = DLGFindItem(dialog, item);
  if (row == nullptr) return;
  if ((dialog->flags & kDLGInvalidateAtOnce) == 0) {
    row->flags |= kDLGRedrawPending;
    dialog->flags |= kDLGRedrawPending;
    return;
  }
  Rect bounds;
  if (GetDialogItemBounds(dialog->dialog, static_cast<int16_t>(item), &bounds)) {
    InvalWindowRect(dialog->window, bounds);
  }
}

void SizeDLGItem(DLGRecord* dialog, int32_t item, const Rect& bounds) {
  if (DLGFindItem(dialog, item) == nullptr) return;
  InvalDLGItem(dialog, item);  // where it was
  SetDialogItemBounds(dialog->dialog, static_cast<int16_t>(item), bounds);
  SendDLGItemMessage(dialog, item, kDLGResize, DLGPackPoint({RectHeight(bounds), RectWidth(bounds)}));
  InvalDLGItem(dialog, item);
}

bool DLGNotifyChange(DLGRecord* dialog, int32_t item) {
  constexpr uint32_t kNeeded = kDLGNotify | kDLGEnabled;
  if ((GetItemFlags(dialog, item) & kNeeded) != kNeeded || dialog->itemHit == nullptr) return false;
  return dialog->itemHit(dialog, item) != 0;
}
