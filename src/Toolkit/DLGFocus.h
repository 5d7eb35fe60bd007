// The keyboard focus among a dialog's items.
#ifndef GRADIX_DLGFOCUS_H
#define GRADIX_DLGFOCUS_H

#include "Toolkit/DLGRecord.h"

// How the focus moves, while it does: 1 backward, 2 by mouse, 3 forward; 0 otherwise.
extern int32_t focusType;
enum { kFocusBackward = 1, kFocusByMouse = 2, kFocusForward = 3 };

// Moves the focus with that focusType. False when it stays or the dialog goes.
bool DLGMoveFocus(DLGRecord* dialog, int32_t item, int32_t type);

// Moves the focus; a negative item means 0, none. False when the item cannot take it or the one that has it
// does not let go.
bool SetFocusDLG(DLGRecord* dialog, int32_t item);

// Moves the focus from `from` to the next enabled tab stop, forward with direction 1, else backward, around
// the ends. True when the focus item changed.
bool DoTabKey(DLGRecord* dialog, int32_t from, int32_t direction);

// The item that a walk in Tab order reaches first; `from` when there is no other. Flags are those of
// items[1] .. items[count]. A walk from 0 begins at either end.
int32_t DLGNextTabStop(const DLGItem* items, int32_t count, int32_t from, int32_t direction);

#endif  // GRADIX_DLGFOCUS_H
