// Combo boxes: pop-up menus. Rows count from 0, -1 is none.
#ifndef GRADIX_CBCOMBO_H
#define GRADIX_CBCOMBO_H

#include "Toolkit/DLGRecord.h"

inline constexpr int32_t kCBMaxRows = 1000;

// No data.
intptr_t CBItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);

// Positions as for LBInsertItem. The row's index, or -1 without a menu and when the menu is full.
int32_t CBInsertItem(DLGRecord* dialog, int32_t item, const char* text, int32_t position);
int32_t CBGetSelect(DLGRecord* dialog, int32_t item);
void CBSetSelect(DLGRecord* dialog, int32_t item, int32_t row);
int32_t CBGetCount(DLGRecord* dialog, int32_t item);
intptr_t CBGetItemData(DLGRecord* dialog, int32_t item, int32_t row);
void CBSetItemData(DLGRecord* dialog, int32_t item, int32_t row, int32_t value);

#endif  // GRADIX_CBCOMBO_H
