// Dialog Manager: windows and their items from resources 'DLOG', 'DITL', 'CNTL', 'ldes' (Inside Macintosh:
// Macintosh Toolbox Essentials, "Dialog Manager Resources"). Items are numbered from 1.
#ifndef GRADIX_DIALOGS_H
#define GRADIX_DIALOGS_H

#include "Platform/Ui/Controls.h"
#include "Platform/Ui/Windows.h"

struct OpaqueDialog;
using DialogRef = OpaqueDialog*;

// The dialog of that 'DLOG', hidden and in front; null, with nothing left behind, when a resource is missing,
// cut short or names an item that does not exist. The caller disposes it.
//
// Where the application's font is larger than the one that resources are drawn for, the window and its items
// are made larger than their resources say, and keep that font.
DialogRef GetNewDialog(int16_t id);
void DisposeDialog(DialogRef dialog);  // with its window and controls; null is ignored

WindowRef GetDialogWindow(DialogRef dialog);
DialogRef GetDialogFromWindow(WindowRef window);  // null when the window is no dialog's

int16_t CountDITL(DialogRef dialog);
// Appends the items of the 'DITL' where its rectangles say; false, with nothing appended, when it is missing
// or damaged.
bool AppendDialogItemList(DialogRef dialog, int16_t id);
void ShortenDITL(DialogRef dialog, int16_t itemCount);  // removes that many items from the end

// Null for an item that does not exist or has no control. Every item but a picture or a user item has one; a
// user item's is a pane that draws nothing.
ControlRef GetDialogItemAsControl(DialogRef dialog, int16_t item);
bool GetDialogItemBounds(DialogRef dialog, int16_t item, Rect* bounds);
void SetDialogItemBounds(DialogRef dialog, int16_t item, const Rect& bounds);
int32_t GetDialogWidth(DialogRef dialog, int32_t drawn);  // what a width of its resources is in the dialog
int16_t FindDialogItemOfControl(DialogRef dialog, ControlRef control);  // 0 when it is none of its items

// The item drawn as the one that Return presses; 0 or -1: none.
void SetDialogDefaultItem(DialogRef dialog, int16_t item);

#endif  // GRADIX_DIALOGS_H
