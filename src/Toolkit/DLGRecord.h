// A dialog and its items as the toolkit keeps them.
#ifndef GRADIX_DLGRECORD_H
#define GRADIX_DLGRECORD_H

#include <cstdint>

#include "Platform/Core/MacTypes.h"
#include "Platform/Ui/Controls.h"
#include "Platform/Ui/Dialogs.h"
#include "Platform/Ui/Windows.h"

struct DLGRecord;

// What an item does. Items count from 1; the meaning of the parameters and of the result depends on the
// message. Pointers and controls pass through the pointer-wide parameters and result.
using DLGItemProc = intptr_t (*)(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1,
                                 intptr_t param2);

using DLGHitProc = intptr_t (*)(DLGRecord* dialog, int32_t item);
using DLGCloseProc = bool (*)(DLGRecord* dialog);  // false: the dialog stays open
using DLGEventProc = intptr_t (*)(DLGRecord* dialog, int32_t event, intptr_t param1, intptr_t param2);

enum DLGItemFlags : uint32_t {
  kDLGNotify = 0x10,   // changes are reported to the dialog's item-hit procedure
  kDLGTabStop = 0x20,  // can take the keyboard focus
  kDLGEnabled = 0x40,
  kDLGVisible = 0x80,
  kDLGHelpTag = 0x100,
  kDLGRedrawPending = 0x10000000,
};

enum DLGFlags : uint32_t {
  kDLGInvalidateAtOnce = 0x02,
  kDLGPlaceholder = 0x08,  // the front window when floating windows rest: opens the placeholder dialog
  kDLGNew = 0x20,          // on every new dialog
};

enum DLGKind : int32_t {
  kDLGModeless = 0,
  kDLGModal = 1,
  kDLGOwned = 2,  // the record belongs to another structure
  kDLGPane = 3,   // its items were appended to an existing dialog
  kDLGFloating = 4,
};

enum DLGMessage : int32_t {
  kDLGCreate = 1,  // param1: the item's data; gives the bytes consumed, negative on failure
  kDLGDispose = 2,
  kDLGAllCreated = 3,
  kDLGGetControl = 6,    // gives the ControlRef
  kDLGDoubleClick = 7,   // gives kDLGTakesDoubleClicks or 0
  kDLGGetText = 8,       // param1: buffer, param2: the characters it holds before the closing zero
  kDLGSetText = 9,       // param1: text, param2: redraw
  kDLGFocusLeaves = 14,  // 0 keeps the focus
  kDLGFocus = 15,        // param1: 1 gained, 0 lost; param2: focusType when gained
  kDLGHotKey = 17,       // param1: character + (modifiers << 16); nonzero claims the key
  kDLGKey = 18,          // the same; 0 not handled, 1 handled and changed, other handled
  kDLGHitTest = 20,      // param1: (v << 16) + h; nonzero when inside
  kDLGMouseDown = 21,    // param1: point, param2: double click; 0 nothing, 1 changed, 2 track
  kDLGMouseStillDown = 22,
  kDLGMouseUp = 23,         // 1: changed
  kDLGResize = 25,          // param1: (height << 16) + width
  kDLGShowScrollBars = 43,  // param1: 1 show, 0 hide
  kDLGGrowPoint = 47,       // param1: const Rect*; gives (v << 16) + h
};

inline constexpr intptr_t kDLGTakesDoubleClicks = 0x10;

// Dialog events, for DLGEventProc.
inline constexpr int32_t kDLGFocusChanged = 2;  // param1: (new item << 16) + old item

struct DLGItem {
  int32_t type = 0;
  uint32_t flags = 0;  // DLGItemFlags
  intptr_t data = 0;   // the item procedure's own
  DLGItemProc procedure = nullptr;
  ControlRef control = nullptr;
};

struct DLGTimerEntry {
  int32_t item;  // notified when the time has come
  uint32_t due;  // in ticks
};

// The header of a dialog's block; the table of capacity + 1 items follows it, slot 0 unused.
struct DLGRecord {
  static constexpr int32_t kMarker = 165;
  static constexpr int32_t kFocusTextSize = 1024;
  static constexpr int32_t kMaxTimers = 10;
  static constexpr int32_t kPaneCapacity = 150;

  WindowRef window;
  WindowRef parent;  // modal dialogs only
  DialogRef dialog;
  DLGHitProc itemHit;
  DLGCloseProc close;
  DLGEventProc event;
  RGBColor foreColor;
  RGBColor backColor;
  Rect growBounds;
  Rect initialBounds;
  char focusText[kFocusTextSize + 1];
  DLGTimerEntry* timers;  // kMaxTimers of them, made on first use
  int32_t timerCount;
  uint32_t flags;  // DLGFlags
  int32_t kind;    // DLGKind
  int32_t resourceID;
  int32_t userValue;
  int32_t marker;  // kMarker while the record is live
  int32_t itemCount;
  int32_t itemCapacity;
  int32_t focusItem;      // -1: none
  int32_t defaultButton;  // -1: none
  int32_t cancelItem;     // -1: none
  int32_t trackingItem;   // -1: none
  uint8_t changed;
  uint8_t showPending;

  // The manager's own.
  uint64_t serial;       // no two records of a process share one
  int32_t ownItemCount;  // without the items of appended panes
  bool disposing;
  const char* dataEnd;  // end of the item descriptions, while items are created
};

// The item, or null when its number is not within 1..itemCount. The record must be live.
DLGItem* DLGFindItem(DLGRecord* dialog, int32_t item);

// During kDLGCreate: the bytes from `data` to the end of the item descriptions. A procedure reads no further.
size_t DLGDataLeft(const DLGRecord* dialog, const char* data);

// Points and keys as they travel in param1.
inline intptr_t DLGPackPoint(Point p) {
  return static_cast<int32_t>((static_cast<uint32_t>(static_cast<uint16_t>(p.v)) << 16) |
                              static_cast<uint16_t>(p.h));
}
inline Point DLGUnpackPoint(intptr_t packed) {
  const auto bits = static_cast<uint32_t>(packed);
  return {static_cast<int16_t>(bits >> 16), static_cast<int16_t>(bits)};
}
inline intptr_t DLGPackKey(uint16_t character, uint16_t modifiers) {
  return static_cast<intptr_t>((static_cast<uint32_t>(modifiers) << 16) | character);
}

#endif  // GRADIX_DLGRECORD_H
