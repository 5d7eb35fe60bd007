// What items that consist of one control answer alike, and how item procedures read their parameters.
#ifndef GRADIX_ITEMCONTROLS_H
#define GRADIX_ITEMCONTROLS_H

#include <string>

#include "Toolkit/DLGRecord.h"

// A key as kDLGHotKey and kDLGKey carry it.
struct DLGKeyPress {
  uint16_t character;
  uint16_t modifiers;
};
inline DLGKeyPress DLGUnpackKey(intptr_t packed) {
  const auto bits = static_cast<uint32_t>(packed);
  return {static_cast<uint16_t>(bits), static_cast<uint16_t>(bits >> 16)};
}

// What kDLGKey answers.
enum : intptr_t { kKeyNotUsed = 0, kKeyChanged = 1, kKeyUsed = 2 };
// What kDLGMouseDown answers.
enum : intptr_t { kPressNothing = 0, kPressChanged = 1, kPressTrack = 2 };

// The space bar, alone or with Shift, as it presses a button.
bool IsPressingSpace(DLGKeyPress key);

// The item of a live dialog, or null. For functions that callers outside of the toolkit use.
DLGItem* FindItemOfLiveDialog(DLGRecord* dialog, int32_t item);

bool ItemReacts(const DLGItem& item);  // enabled and visible

// During kDLGCreate: the big-endian word at the item's data; false when less than a word is left.
bool ReadItemWord(const DLGRecord* dialog, intptr_t data, uint16_t* word);

// kDLGGetText: at most `capacity` characters and a closing zero.
void StoreItemText(const std::string& text, intptr_t buffer, intptr_t capacity);

inline std::string TextOrEmpty(const char* text) {
  return text != nullptr ? std::string(text) : std::string();
}

// The procedure of a plain control; 0 for messages that need more than the control.
intptr_t ControlItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);

#endif  // GRADIX_ITEMCONTROLS_H
