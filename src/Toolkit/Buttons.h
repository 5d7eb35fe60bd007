// Push buttons, check boxes and radio buttons.
#ifndef GRADIX_BUTTONS_H
#define GRADIX_BUTTONS_H

#include "Toolkit/DLGRecord.h"

// Push button. Data: a big-endian 16-bit word, bit 0 the dialog's default button, bit 1 its cancel item.
intptr_t BTItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
// Moves the default-button marking from the old default button to the item (-1: none).
void BTSetDefButton(DLGRecord* dialog, int32_t item);
// Marks the button that Return presses at this moment: a push button with the focus, else the default button;
// none while the focus is in a list that has a use for Return. The dialog must be live.
void BTShowDefButton(DLGRecord* dialog);
void BTSetCancelItem(DLGRecord* dialog, int32_t item);

// Check box; no data. Every click of a double click counts, as for radio buttons.
intptr_t CKItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
// `unused` is not read. With `markChanged` the dialog counts as changed.
void CKSetCheck(DLGRecord* dialog, int32_t item, int16_t value, int32_t unused, bool markChanged);
int16_t CKGetCheck(DLGRecord* dialog, int32_t item);  // 0 without a control

// Radio button; no data. A press sets it; its companions are the dialog's to clear. Radio buttons that follow
// each other are a group: an arrow key sets the next one that reacts, around the ends, and gives it the
// focus.
intptr_t RBItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);

#endif  // GRADIX_BUTTONS_H
