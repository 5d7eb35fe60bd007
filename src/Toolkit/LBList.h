// List boxes: rows of tab-separated text, with check marks or without. Rows count from 0, -1 is none. An item
// without a list does nothing and gives 0.
#ifndef GRADIX_LBLIST_H
#define GRADIX_LBLIST_H

#include <cstdint>
#include <string>

#include "Platform/Core/Memory.h"
#include "Platform/Ui/Lists.h"
#include "Toolkit/DLGRecord.h"
#include "Toolkit/RowPosition.h"

enum LBFlags : uint8_t { kLBMultiple = 0x01, kLBChecks = 0x02 };

// Draws one row on its background, beside its check mark if there is one. `bounds` is the whole row.
using LBDrawProc = void (*)(DrawContext* context, DLGRecord* dialog, int32_t item, int32_t row,
                            const Rect& bounds, bool selected, bool hasFocus);

inline constexpr int32_t kLBMaxTabs = 10;

// The head of a list's block, 100 bytes in every process; a 32-bit check state for each row follows.
#pragma pack(push, 4)
struct LBRecord {
  uint8_t flags;             // LBFlags
  int32_t tabs[kLBMaxTabs];  // pixels
  int32_t checkCapacity;     // as read; the block's size says how many states there are
  int32_t rowCount;
  uint8_t activated;  // Return was the last key
  Rect bounds;
  Rect dialogBounds;
  int16_t heightExcess;     // of the dialog over the list
  int16_t scrollBarWidth;   // from the vertical scroll bar to the dialog's right edge
  int16_t scrollBarHeight;  // and to its bottom edge
  DLGRecord* dialog;
  int32_t item;
  LBDrawProc draw;  // null: the toolkit's own
#if UINTPTR_MAX > 0xFFFFFFFF
  uint8_t reserved[4];
#else
  uint8_t reserved[12];
#endif
};
#pragma pack(pop)
static_assert(sizeof(LBRecord) == 100);

// Data: two words, the selection mode (0 single, 1 multiple, 2 single with check marks) and the check
// capacity.
intptr_t LBItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2);

// Lists of that definition id draw their rows as the toolkit does. `withChecks` shows their check marks to
// assistive technology.
void LBRegisterListDefinition(int16_t id, bool withChecks);

// `position` is a RowPosition or a row index. The new row's index.
int32_t LBInsertItem(DLGRecord* dialog, int32_t item, const char* text, int32_t position);
int32_t LBGetCount(DLGRecord* dialog, int32_t item);
void LBSelectItem(DLGRecord* dialog, int32_t item, int16_t row, bool on);
void LBSetRedraw(DLGRecord* dialog, int32_t item, bool on);
void LBSetTabs(DLGRecord* dialog, int32_t item, int32_t count, const int32_t* stops);
// The row is not checked against the count; a row without a check state gives 0.
int32_t LBGetCheck(DLGRecord* dialog, int32_t item, int32_t row);
void LBSetCheck(DLGRecord* dialog, int32_t item, int32_t row, bool on);

int32_t LBGetSelect(DLGRecord* dialog, int32_t item);            // the first selected row, or -1
void LBSetSelect(DLGRecord* dialog, int32_t item, int32_t row);  // only that row; -1: none
bool LBGetSelectionRange(DLGRecord* dialog, int32_t item, int32_t* first, int32_t* last);
void LBSetSelectionRange(DLGRecord* dialog, int32_t item, int32_t first, int32_t last);
std::string LBGetListText(DLGRecord* dialog, int32_t item, int32_t row);
void LBSetDrawProc(DLGRecord* dialog, int32_t item, LBDrawProc draw);

#endif  // GRADIX_LBLIST_H
