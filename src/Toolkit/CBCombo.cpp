#include "Toolkit/CBCombo.h"

#include <algorithm>
#include <new>
#include <string>

#include "Platform/Ui/Events.h"
#include "Platform/Ui/Menus.h"
#include "Toolkit/ItemControls.h"
#include "Toolkit/RowPosition.h"

namespace {

constexpr size_t kLongestRowText = 255;

// The callers' values of a combo's rows: its item's data.
struct RowValues {
  RowValues* next;
  int32_t values[kCBMaxRows];
};

// Those of all live combos, so that another item's data is never taken for them.
RowValues* gRowValues = nullptr;

RowValues* _FindValues(const DLGItem& item) {
  RowValues* found = gRowValues;
  while (found != nullptr && reinterpret_cast<intptr_t>(found) != item.data) found = found->next;
  return found;
}

struct Combo {
  ControlRef control = nullptr;
  MenuRef menu = nullptr;
  RowValues* values = nullptr;
};

// Without a menu when the item is no combo of a live dialog.
Combo _FindCombo(DLGRecord* dialog, int32_t item) {
  const DLGItem* const found = FindItemOfLiveDialog(dialog, item);
  if (found == nullptr) return {};
  RowValues* const values = _FindValues(*found);
  if (values == nullptr) return {};
  return {found->control, GetControlPopupMenuHandle(found->control), values};
}

int32_t* _FindRowValue(DLGRecord* dialog, int32_t item, int32_t row) {
  const Combo combo = _FindCombo(dialog, item);
  if (combo.menu == nullptr || row < 0) return nullptr;
  return row < std::min(CountMenuItems(combo.menu), kCBMaxRows) ? &combo.values->values[row] : nullptr;
}

intptr_t _CreateCombo(DLGItem* item) {
  auto* const values = new (std::nothrow) RowValues{gRowValues, {}};
  if (values == nullptr) return -1;
  gRowValues = values;
  item->data = reinterpret_cast<intptr_t>(values);
  return 0;
}

void _DisposeCombo(DLGItem* item) {
  RowValues* const values = _FindValues(*item);
  if (values == nullptr) return;
  RowValues** link = &gRowValues;
  while (*link != values) link = &(*link)->next;
  *link = values->next;
  delete values;
  item->data = 0;
}

std::string _RowText(void* menu, int32_t row) {
  return GetMenuItemText(static_cast<MenuRef>(menu), row + 1);
}

void _SelectText(ControlRef control, const char* text) {
  const MenuRef menu = GetControlPopupMenuHandle(control);
  const std::string wanted = TextOrEmpty(text).substr(0, kLongestRowText);
  const int32_t count = CountMenuItems(menu);
  for (int32_t row = 1; row <= count; ++row) {
    if (GetMenuItemText(menu, row) != wanted) continue;
    SetControlValue(control, row);
    return;
  }
}

bool _IsChoosingKey(uint16_t character) {
  switch (character) {
    case kUpArrowChar:
    case kDownArrowChar:
    case kLeftArrowChar:
    case kRightArrowChar:
    case kHomeChar:
    case kEndChar:
    case kPageUpChar:
    case kPageDownChar: return true;
    default: return character >= ' ' && character != kDeleteChar;
  }
}

intptr_t _ComboKey(const DLGItem& combo, DLGKeyPress key) {
  if (!ItemReacts(combo) || !_IsChoosingKey(key.character) || (key.modifiers & (cmdKey | controlKey)) != 0) {
    return kKeyNotUsed;
  }
  if (key.character == ' ' || (key.character == kDownArrowChar && (key.modifiers & optionKey) != 0)) {
    OpenPopup(combo.control);
    return kKeyUsed;
  }
  const int32_t before = GetControlValue(combo.control);
  HandleControlKey(combo.control, key.character, key.modifiers);
  return GetControlValue(combo.control) != before ? kKeyChanged : kKeyUsed;
}

}  // namespace

intptr_t CBItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2) {
  DLGItem* const found = DLGFindItem(dialog, item);
  if (found == nullptr) return 0;
  switch (message) {
    case kDLGCreate: return _CreateCombo(found);
    case kDLGDispose: _DisposeCombo(found); return 0;
    case kDLGGetText:
      StoreItemText(
          GetMenuItemText(GetControlPopupMenuHandle(found->control), GetControlValue(found->control)), param1,
          param2);
      return 0;
    case kDLGSetText:
      _SelectText(found->control, reinterpret_cast<const char*>(param1));
      if (param2 != 0) Draw1Control(found->control);
      return 0;
    case kDLGKey: return _ComboKey(*found, DLGUnpackKey(param1));
    case kDLGMouseDown:  // opens the menu; the choice comes later
      ControlItemProc(dialog, item, message, param1, param2);
      return kPressNothing;
    default: return ControlItemProc(dialog, item, message, param1, param2);
  }
}

int32_t CBInsertItem(DLGRecord* dialog, int32_t item, const char* text, int32_t position) {
  const Combo combo = _FindCombo(dialog, item);
  if (combo.menu == nullptr) return -1;
  const int32_t count = CountMenuItems(combo.menu);
  if (count >= kCBMaxRows) return -1;
  const int32_t row = ResolveRowPosition(position, text, count, _RowText, combo.menu);

  int32_t* const value = combo.values->values + row;
  std::copy_backward(value, combo.values->values + count, combo.values->values + count + 1);
  *value = 0;

  // Only a row's text is shown literally, a new row's is a definition.
  const int32_t selected = GetControlValue(combo.control);
  InsertMenuItem(combo.menu, "Temp", row);
  SetMenuItemText(combo.menu, row + 1, TextOrEmpty(text).substr(0, kLongestRowText));
  SetControlMaximum(combo.control, count + 1);
  if (selected > row) SetControlValue(combo.control, selected + 1);
  return row;
}

int32_t CBGetSelect(DLGRecord* dialog, int32_t item) {
  const Combo combo = _FindCombo(dialog, item);
  return combo.menu != nullptr ? GetControlValue(combo.control) - 1 : -1;
}

void CBSetSelect(DLGRecord* dialog, int32_t item, int32_t row) {
  const Combo combo = _FindCombo(dialog, item);
  if (combo.menu == nullptr || row >= CountMenuItems(combo.menu)) return;
  const int32_t value = std::max(row, -1) + 1;
  if (GetControlValue(combo.control) != value) SetControlValue(combo.control, value);
}

int32_t CBGetCount(DLGRecord* dialog, int32_t item) {
  return CountMenuItems(_FindCombo(dialog, item).menu);
}

intptr_t CBGetItemData(DLGRecord* dialog, int32_t item, int32_t row) {
  const int32_t* const value = _FindRowValue(dialog, item, row);
  return value != nullptr ? *value : 0;
}

void CBSetItemData(DLGRecord* dialog, int32_t item, int32_t row, int32_t value) {
  int32_t* const stored = _FindRowValue(dialog, item, row);
  if (stored != nullptr) *stored = value;
}
