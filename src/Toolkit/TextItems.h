// Static and edit text.
#ifndef GRADIX_TEXTITEMS_H
#define GRADIX_TEXTITEMS_H

#include "Toolkit/DLGRecord.h"

// Static text. Data: a big-endian 16-bit word, the number of the item that this text is the label of, or 0.
intptr_t STItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);

// Edit text of one line. Data: a big-endian 16-bit word, the greatest number of characters, or 0.
intptr_t ETItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);

#endif  // GRADIX_TEXTITEMS_H
