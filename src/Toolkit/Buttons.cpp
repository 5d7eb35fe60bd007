#include "Toolkit/Buttons.h"

#include "Common/asciicase.h"
#include "Platform/Ui/Events.h"
#include "Toolkit/DLGFocus.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/ItemControls.h"
#include "Toolkit/LBInternal.h"

namespace {

// The high byte is the shortcut, a letter or digit that presses the button together with Alt; 0: none.
enum ButtonBits : uint16_t { kButtonDefault = 0x01, kButtonCancel = 0x02 };

bool _IsPushButton(DLGRecord* dialog, int32_t item) {
  const DLGItem* const found = DLGFindItem(dialog, item);
  return found != nullptr && found->procedure == BTItemProc && ItemReacts(*found);
}

// 0 for none.
int32_t _ReturnButton(DLGRecord* dialog) {
  if (LBUsesReturn(dialog, dialog->focusItem)) return 0;
  for (const int32_t item : {dialog->focusItem, dialog->defaultButton}) {
    if (_IsPushButton(dialog, item)) return item;
  }
  return 0;
}

void _MarkDefault(DLGRecord* dialog, int32_t item) {
  dialog->defaultButton = item;
  BTShowDefButton(dialog);
}

bool _IsItemOrNone(DLGRecord* dialog, int32_t item) {
  return item == -1 || DLGFindItem(dialog, item) != nullptr;
}

intptr_t _CreateButton(DLGRecord* dialog, int32_t item, intptr_t data) {
  uint16_t bits = 0;
  if (!ReadItemWord(dialog, data, &bits)) return -1;
  if ((bits & kButtonDefault) != 0) _MarkDefault(dialog, item);
  if ((bits & kButtonCancel) != 0) dialog->cancelItem = item;
  SetControlShortcut(DLGGetChildControl(dialog, item), static_cast<char>(bits >> 8));
  return sizeof bits;
}

// Alt and the letter, whatever Shift and Caps Lock make of it.
bool _IsShortcut(char letter, DLGKeyPress key) {
  if (letter == '\0' || (key.modifiers & ~shiftKey) != optionKey) return false;
  return key.character <= 0x7F && AsciiLower(static_cast<char>(key.character)) == letter;
}

// Return belongs to the focus item if that has a use for it, Enter never does.
bool _ClaimsKey(DLGRecord* dialog, int32_t item, DLGKeyPress key) {
  if (item == dialog->defaultButton && key.modifiers == 0) {
    if (key.character == kEnterChar) return true;
    if (key.character == kReturnChar && item == _ReturnButton(dialog)) return true;
  }
  if (item == dialog->cancelItem) {
    if (key.character == kEscapeChar && key.modifiers == 0) return true;
    if (key.character == '.' && key.modifiers == cmdKey) return true;
  }
  return _IsShortcut(GetControlShortcut(DLGGetChildControl(dialog, item)), key);
}

bool _IsPressing(DLGKeyPress key) {
  return IsPressingSpace(key) || (key.character == kReturnChar && key.modifiers == 0);
}

}  // namespace

intptr_t BTItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2) {
  const DLGItem* const found = DLGFindItem(dialog, item);
  if (found == nullptr) return 0;
  switch (message) {
    case kDLGCreate: return _CreateButton(dialog, item, param1);
    case kDLGHotKey: return ItemReacts(*found) && _ClaimsKey(dialog, item, DLGUnpackKey(param1)) ? 1 : 0;
    case kDLGKey: return ItemReacts(*found) && _IsPressing(DLGUnpackKey(param1)) ? kKeyChanged : kKeyNotUsed;
    default: return ControlItemProc(dialog, item, message, param1, param2);
  }
}

void BTSetDefButton(DLGRecord* dialog, int32_t item) {
  if (DialogIsValid(dialog) && _IsItemOrNone(dialog, item)) _MarkDefault(dialog, item);
}

void BTShowDefButton(DLGRecord* dialog) {
  SetDialogDefaultItem(dialog->dialog, static_cast<int16_t>(_ReturnButton(dialog)));
}

void BTSetCancelItem(DLGRecord* dialog, int32_t item) {
  if (DialogIsValid(dialog) && _IsItemOrNone(dialog, item)) dialog->cancelItem = item;
}

intptr_t CKItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2) {
  if (message == kDLGDoubleClick) return kDLGTakesDoubleClicks;
  if (message != kDLGKey) return ControlItemProc(dialog, item, message, param1, param2);
  const DLGItem* const found = DLGFindItem(dialog, item);
  if (found == nullptr || !ItemReacts(*found) || !IsPressingSpace(DLGUnpackKey(param1))) return kKeyNotUsed;
  SetControlValue(found->control, GetControlValue(found->control) == 0 ? 1 : 0);
  return kKeyChanged;
}

void CKSetCheck(DLGRecord* dialog, int32_t item, int16_t value, int32_t /*unused*/, bool markChanged) {
  const DLGItem* const found = FindItemOfLiveDialog(dialog, item);
  if (found == nullptr) return;
  SetControlValue(found->control, value);
  if (markChanged) dialog->changed = 1;
}

int16_t CKGetCheck(DLGRecord* dialog, int32_t item) {
  const DLGItem* const found = FindItemOfLiveDialog(dialog, item);
  return found != nullptr ? static_cast<int16_t>(GetControlValue(found->control)) : int16_t{0};
}

namespace {

// Where an arrow key leads among radio buttons; 0 for other keys.
int32_t _StepOf(DLGKeyPress key) {
  if (key.modifiers != 0) return 0;
  switch (key.character) {
    case kLeftArrowChar:
    case kUpArrowChar: return -1;
    case kRightArrowChar:
    case kDownArrowChar: return 1;
    default: return 0;
  }
}

bool _IsRadio(DLGRecord* dialog, int32_t item) {
  const DLGItem* const found = DLGFindItem(dialog, item);
  return found != nullptr && found->procedure == RBItemProc;
}

// The next one of the item's group that reacts; the item itself when there is no other.
int32_t _NextRadio(DLGRecord* dialog, int32_t item, int32_t step) {
  const auto isInGroup = [=](int32_t other) { return other == item || _IsRadio(dialog, other); };
  int32_t next = item;
  do {
    next += step;
    if (!isInGroup(next)) {  // on from the group's other end
      next -= step;
      while (isInGroup(next - step)) next -= step;
    }
  } while (next != item && !ItemReacts(*DLGFindItem(dialog, next)));
  return next;
}

void _ChooseRadio(DLGRecord* dialog, int32_t item, int32_t focus) {
  if (!DLGMoveFocus(dialog, item, focus) || dialog->focusItem != item) return;
  const ControlRef control = DLGGetChildControl(dialog, item);
  if (GetControlValue(control) != 0) return;
  SetControlValue(control, 1);
  DLGNotifyChange(dialog, item);
}

intptr_t _RadioKey(DLGRecord* dialog, int32_t item, DLGKeyPress key) {
  const DLGItem* const radio = DLGFindItem(dialog, item);
  if (!ItemReacts(*radio)) return kKeyNotUsed;
  if (IsPressingSpace(key)) {
    const bool wasOn = GetControlValue(radio->control) != 0;
    SetControlValue(radio->control, 1);
    return wasOn ? kKeyUsed : kKeyChanged;
  }
  const int32_t step = _StepOf(key);
  if (step == 0) return kKeyNotUsed;
  const int32_t next = _NextRadio(dialog, item, step);
  if (next != item) _ChooseRadio(dialog, next, step > 0 ? kFocusForward : kFocusBackward);
  return kKeyUsed;
}

}  // namespace

intptr_t RBItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2) {
  static bool gWasOn = false;  // when the press under way began
  const DLGItem* const found = DLGFindItem(dialog, item);
  if (found == nullptr) return 0;
  const bool isOn = GetControlValue(found->control) != 0;
  switch (message) {
    case kDLGKey: return _RadioKey(dialog, item, DLGUnpackKey(param1));
    case kDLGDoubleClick: return kDLGTakesDoubleClicks;
    case kDLGMouseDown: gWasOn = isOn; break;
    case kDLGMouseUp:
      if (!gWasOn) break;
      ControlItemProc(dialog, item, message, param1, param2);
      SetControlValue(found->control, 1);
      return 0;
    default: break;
  }
  return ControlItemProc(dialog, item, message, param1, param2);
}
