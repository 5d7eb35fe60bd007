// Showing dialogs: order, activation, and what a modal dialog takes from the other windows.
#ifndef GRADIX_DLGSHOW_H
#define GRADIX_DLGSHOW_H

#include "Toolkit/DLGRecord.h"

// Whether the window holds a modal dialog.
bool DLGIsModalWindow(WindowRef window);

// Gives the other windows back what a modal dialog took, when none is left.
void DLGEndModality();

// The process is in front again: shows the floating dialogs that wait for that.
void DLGShowPending();

#endif  // GRADIX_DLGSHOW_H
