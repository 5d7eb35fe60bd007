// The item types that a dialog may hold but this library gives no behaviour: they are created, drawn by their
// control if they have one, and disposed.
#ifndef GRADIX_OTHERITEMS_H
#define GRADIX_OTHERITEMS_H

#include "Toolkit/DLGRecord.h"

// Answers kDLGGetControl only.
intptr_t DefItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);

intptr_t SBItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t ICItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t PIItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t UIItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t BBItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t SLItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t DIItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t PRItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t SPBItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t TAItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t HKItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t WP2ItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t TIItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t TVItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t BXItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t UBItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);
intptr_t DB2ItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);

#endif  // GRADIX_OTHERITEMS_H
