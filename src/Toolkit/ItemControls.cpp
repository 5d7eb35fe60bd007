#include "Toolkit/ItemControls.h"

#include <algorithm>

#include "Platform/Core/BigEndian.h"
#include "Platform/Ui/Events.h"
#include "Toolkit/DLGManager.h"

bool IsPressingSpace(DLGKeyPress key) {
  return key.character == ' ' && (key.modifiers & ~shiftKey) == 0;
}

DLGItem* FindItemOfLiveDialog(DLGRecord* dialog, int32_t item) {
  return DialogIsValid(dialog) ? DLGFindItem(dialog, item) : nullptr;
}

bool ItemReacts(const DLGItem& item) {
  constexpr uint32_t kReacts = kDLGEnabled | kDLGVisible;
  return (item.flags & kReacts) == kReacts;
}

bool ReadItemWord(const DLGRecord* dialog, intptr_t data, uint16_t* word) {
  const auto* const bytes = reinterpret_cast<const char*>(data);
  return BigEndianReader({bytes, DLGDataLeft(dialog, bytes)}).Read16(word);
}

void StoreItemText(const std::string& text, intptr_t buffer, intptr_t capacity) {
  auto* const out = reinterpret_cast<char*>(buffer);
  if (out == nullptr || capacity < 0) return;
  out[text.copy(out, std::min(text.size(), static_cast<size_t>(capacity)))] = '\0';
}

intptr_t ControlItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2) {
  const DLGItem* const found = DLGFindItem(dialog, item);
  if (found == nullptr) return 0;
  const ControlRef control = found->control;
  switch (message) {
    case kDLGGetControl: return reinterpret_cast<intptr_t>(control);
    case kDLGGetText: StoreItemText(GetControlText(control), param1, param2); return 0;
    case kDLGSetText:
      SetControlText(control, TextOrEmpty(reinterpret_cast<const char*>(param1)));
      if (param2 != 0) Draw1Control(control);
      return 0;
    case kDLGFocusLeaves: return 1;
    case kDLGFocus:
      if (param1 != 0) SetKeyboardFocus(dialog->window, control);
      return 0;
    case kDLGHitTest: return TestControl(control, DLGUnpackPoint(param1)) ? 1 : 0;
    case kDLGMouseDown:
      return ItemReacts(*found) && HandleControlPress(control, DLGUnpackPoint(param1)) ? kPressTrack
                                                                                       : kPressNothing;
    case kDLGMouseUp: return HandleControlRelease(control, DLGUnpackPoint(param1)) ? 1 : 0;
    default: return 0;
  }
}
