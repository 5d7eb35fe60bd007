// Push buttons, check boxes and radio buttons.
#ifndef GRADIX_BUTTONS_H
#define GRADIX_BUTTONS_H

#include "Toolkit/DLGRecord.h"

// Push button. Data: a big-endian 16-bit word, bit 0 the dialog's default button, bit 1 its cancel item.
intptr_t BTItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
// Moves the default-button marking from the old default button to the item (-1: none).
void BTSetDefButton(DLGRecord* dialog, int32_t item);
void BTSetCancelItem(DLGRecord* dialog, int32_t item);

// Check box; no data.
intptr_t CKItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
// `unused` is not read. With `markChanged` the dialog counts as changed.
void CKSetCheck(DLGRecord* dialog, int32_t item, int16_t value, int32_t unused, bool markChanged);
int16_t CKGetCheck(DLGRecord* dialog, int32_t item);  // 0 without a control

// Radio button; no data. A press sets it; its companions are the dialog's to clear.
intptr_t RBItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);

#endif  // GRADIX_BUTTONS_H
