// One item of a dialog: flags, text, focus. A dialog that is not live and an item number outside of
// 1..itemCount are ignored; the result is then null, 0, false or "".
#ifndef GRADIX_DLGITEMS_H
#define GRADIX_DLGITEMS_H

#include "Toolkit/DLGRecord.h"

void EnableDLGItem(DLGRecord* dialog, int32_t item, bool on);
void ShowDLGItem(DLGRecord* dialog, int32_t item, bool redraw);
void HideDLGItem(DLGRecord* dialog, int32_t item, bool redraw);
bool IsItemEnabled(DLGRecord* dialog, int32_t item);
bool IsItemVisible(DLGRecord* dialog, int32_t item);  // with a control that shows

uint32_t GetItemFlags(DLGRecord* dialog, int32_t item);
void AddItemFlags(DLGRecord* dialog, int32_t item, uint32_t bits);
void RemoveItemFlags(DLGRecord* dialog, int32_t item, uint32_t bits);
int32_t GetItemType(DLGRecord* dialog, int32_t item);
void SetItemType(DLGRecord* dialog, int32_t item, int32_t type);
void SetItemProc(DLGRecord* dialog, int32_t item, DLGItemProc procedure);
intptr_t GetIRefCon(DLGRecord* dialog, int32_t item);
void SetIRefCon(DLGRecord* dialog, int32_t item, intptr_t value);
ControlRef DLGGetChildControl(DLGRecord* dialog, int32_t item);

// Sends the item's procedure a message; 0 for an item without one.
intptr_t SendDLGItemMessage(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1 = 0,
                            intptr_t param2 = 0);

// Marks the item for redrawing: at once with kDLGInvalidateAtOnce, else with ShowDLG.
void InvalDLGItem(DLGRecord* dialog, int32_t item);
// Gives the item a new rectangle and tells its procedure.
void SizeDLGItem(DLGRecord* dialog, int32_t item, const Rect& bounds);

// Texts are Mac OS Roman. Null is the empty text; a text the item shows already changes nothing.
void SetText(DLGRecord* dialog, int32_t item, const char* text, bool redraw);
// At most 1,000 characters, in one buffer that the next call overwrites.
const char* GetText(DLGRecord* dialog, int32_t item);

enum TruncWhere : int32_t { kTruncMiddle = 1, kTruncEnd = 2, kTruncStart = 3 };
// Sets the first 250 characters of the text, shortened with an ellipsis until they are narrower than the
// item. kTruncMiddle keeps both ends, kTruncEnd the beginning, any other value the end.
void TruncDLGItem(DLGRecord* dialog, int32_t item, const char* text, int32_t where, bool redraw);
// Size of a text (null: the item's own) in the item's font: (height << 16) + width.
int32_t DLGMeasureItem(DLGRecord* dialog, int32_t item, const char* text);

// Calls the dialog's item-hit procedure and gives its answer; false for an item that is disabled or does not
// notify. The dialog may be gone afterwards.
bool DLGNotifyChange(DLGRecord* dialog, int32_t item);

#endif  // GRADIX_DLGITEMS_H
