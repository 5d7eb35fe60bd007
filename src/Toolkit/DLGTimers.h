// The dialogs' timers.
#ifndef GRADIX_DLGTIMERS_H
#define GRADIX_DLGTIMERS_H

#include "Toolkit/DLGRecord.h"

// Notifies the items of the dialog's timers that are due, unless an item is being tracked. True when there
// was one; the dialog may be gone.
bool DLGServeTimers(DLGRecord* dialog);

#endif  // GRADIX_DLGTIMERS_H
