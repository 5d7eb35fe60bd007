#include "Toolkit/LBList.h"

#include <algorithm>
#include <string_view>

#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/LBInternal.h"

LBView LBView::OfItem(DLGRecord* dialog, int32_t item) {
  const DLGItem* const found = DLGFindItem(dialog, item);
  if (found == nullptr || found->data == 0) return {};
  // Only a list that was made by LBItemProc holds its item's data.
  const ListRef list = GetControlList(found->control);
  if (list == nullptr || GetListRefCon(list) != found->data) return {};
  return {list, reinterpret_cast<Handle>(found->data)};
}

LBView LBView::OfLiveItem(DLGRecord* dialog, int32_t item) {
  return DialogIsValid(dialog) ? OfItem(dialog, item) : LBView();
}

LBView LBView::OfList(ListRef list) {
  const intptr_t data = GetListRefCon(list);
  if (data == 0) return {};
  const LBRecord* const record = Record(reinterpret_cast<Handle>(data));
  return OfLiveItem(record->dialog, record->item);
}

bool LBView::Reacts() const {
  const LBRecord* const record = Record(m_block);
  const DLGItem* const item = DLGFindItem(record->dialog, record->item);
  return item != nullptr && ItemReacts(*item);
}

int32_t LBView::StateCount() const {
  return static_cast<int32_t>((GetHandleSize(m_block) - sizeof(LBRecord)) / sizeof(int32_t));
}

int32_t* LBView::State(int32_t row) const {
  if (row < 0 || row >= StateCount()) return nullptr;
  return reinterpret_cast<int32_t*>(*m_block + sizeof(LBRecord)) + row;
}

LBRange LBView::Selection() const {
  LBRange range{LNextSelected(m_list, 0), -1};
  for (int32_t row = range.first; row >= 0; row = LNextSelected(m_list, row + 1)) range.last = row;
  return range;
}

void LBView::Select(LBRange range) const {
  LSelectRange(m_list, range.first, range.first < 0 ? -1 : range.last);
}

void LBView::ToggleCheck(int32_t row) const {
  const LBRecord* const record = Record(m_block);
  LBSetCheck(record->dialog, record->item, row, LBGetCheck(record->dialog, record->item, row) == 0);
}

namespace {

uint16_t _Swapped(uint16_t word) {
  return static_cast<uint16_t>((word << 8) | (word >> 8));
}

// The mode word may be in either byte order.
uint8_t _FlagsOfMode(uint16_t bigEndian) {
  const uint16_t littleEndian = _Swapped(bigEndian);
  switch (littleEndian <= 2 ? littleEndian : bigEndian) {
    case 1: return kLBMultiple;
    case 2: return kLBChecks;
    default: return 0;
  }
}

// The capacity word as existing dialogs have always been read: little-endian unless that is negative.
int32_t _StoredCapacity(uint16_t bigEndian) {
  const auto littleEndian = static_cast<int16_t>(_Swapped(bigEndian));
  return littleEndian < 0 ? static_cast<int16_t>(bigEndian) : littleEndian;
}

void _StoreGeometry(LBRecord* record, ControlRef control) {
  record->bounds = GetControlBounds(control);
  record->dialogBounds = GetWindowPortBounds(record->dialog->window);
  record->heightExcess = static_cast<int16_t>(RectHeight(record->dialogBounds) - RectHeight(record->bounds));
  record->scrollBarWidth = static_cast<int16_t>(record->dialogBounds.right - record->bounds.right);
  record->scrollBarHeight = static_cast<int16_t>(record->dialogBounds.bottom - record->bounds.bottom);
}

intptr_t _CreateList(DLGRecord* dialog, int32_t item, DLGItem* found, intptr_t data) {
  uint16_t mode = 0;
  uint16_t capacity = 0;
  if (!ReadItemWord(dialog, data, &mode) || !ReadItemWord(dialog, data + 2, &capacity)) return -1;
  const Handle block = NewHandleClear(sizeof(LBRecord) + sizeof(int32_t) * capacity);
  if (block == nullptr) return -1;
  LBRecord* const record = LBView::Record(block);
  record->flags = _FlagsOfMode(mode);
  record->checkCapacity = _StoredCapacity(capacity);
  record->dialog = dialog;
  record->item = item;
  _StoreGeometry(record, found->control);
  found->data = reinterpret_cast<intptr_t>(block);

  const ListRef list = GetControlList(found->control);
  SetListRefCon(list, found->data);
  LSetMultipleSelection(list, (record->flags & kLBMultiple) != 0);
  LSetDrawingMode(list, false);
  return sizeof mode + sizeof capacity;
}

void _DisposeList(DLGItem* item) {
  const ListRef list = GetControlList(item->control);
  const intptr_t data = list != nullptr ? GetListRefCon(list) : item->data;
  SetListRefCon(list, 0);
  DisposeHandle(reinterpret_cast<Handle>(data));
  item->data = 0;
}

// Three pixels inside of the lower right corner.
intptr_t _GrowPoint(const Rect* bounds) {
  if (bounds == nullptr) return 0;
  return DLGPackPoint({static_cast<int16_t>(bounds->bottom - 3), static_cast<int16_t>(bounds->right - 3)});
}

intptr_t _ListMessage(const LBView& view, int32_t message, intptr_t param1, intptr_t param2) {
  switch (message) {
    case kDLGAllCreated: LSetDrawingMode(view.list(), true); return 0;
    case kDLGGetText:
      StoreItemText(LGetCell(view.list(), LNextSelected(view.list(), 0)), param1, param2);
      return 0;
    case kDLGKey: return LBHandleKey(view, DLGUnpackKey(param1));
    case kDLGMouseDown: return LBHandleMouseDown(view, DLGUnpackPoint(param1), param2 != 0);
    case kDLGResize: _StoreGeometry(view.operator->(), view.control()); return 0;
    case kDLGShowScrollBars: LSetScrollBarVisible(view.list(), param1 != 0); return 0;
    default: return 0;
  }
}

}  // namespace

intptr_t LBItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2) {
  DLGItem* const found = DLGFindItem(dialog, item);
  if (found == nullptr) return 0;
  switch (message) {
    case kDLGCreate: return _CreateList(dialog, item, found, param1);
    case kDLGDispose: _DisposeList(found); return 0;
    case kDLGDoubleClick: return kDLGTakesDoubleClicks;
    case kDLGGrowPoint: return _GrowPoint(reinterpret_cast<const Rect*>(param1));
    case kDLGFocus: LBClearTypeAhead(); return ControlItemProc(dialog, item, message, param1, param2);
    case kDLGAllCreated:
    case kDLGGetText:
    case kDLGSetText:
    case kDLGKey:
    case kDLGMouseDown:
    case kDLGResize:
    case kDLGShowScrollBars: {
      const LBView view = LBView::OfItem(dialog, item);
      return view ? _ListMessage(view, message, param1, param2) : 0;
    }
    default: return ControlItemProc(dialog, item, message, param1, param2);
  }
}

namespace {

std::string _RowText(void* list, int32_t row) {
  return LGetCell(static_cast<ListRef>(list), row);
}

// Makes room for the check state of a new row among those of `count` rows. The last state falls off a full
// block.
void _InsertCheckState(const LBView& view, int32_t row, int32_t count) {
  int32_t* const state = view.State(row);
  if (state == nullptr) return;
  const int32_t moved = std::max(std::min(count, view.StateCount() - 1) - row, 0);
  std::copy_backward(state, state + moved, state + moved + 1);
  *state = 0;
}

}  // namespace

int32_t LBInsertItem(DLGRecord* dialog, int32_t item, const char* text, int32_t position) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  if (!view) return 0;
  const int32_t count = view.count();
  const int32_t row = ResolveRowPosition(position, text, count, _RowText, view.list());
  ++view->rowCount;
  if (count < view->checkCapacity) _InsertCheckState(view, row, count);
  LAddRow(view.list(), row);
  LSetCell(view.list(), row, text != nullptr ? std::string_view(text) : std::string_view());
  return row;
}

int32_t LBGetCount(DLGRecord* dialog, int32_t item) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  return view ? view.count() : 0;
}

void LBSelectItem(DLGRecord* dialog, int32_t item, int16_t row, bool on) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  if (!view || !view.HasRow(row)) return;
  if (on && !view.IsMultiple()) {
    view.SelectOnly(row);
  } else {
    LSetSelect(view.list(), row, on);
  }
}

void LBSetRedraw(DLGRecord* dialog, int32_t item, bool on) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  if (!view) return;
  LSetDrawingMode(view.list(), on);
  if (on) InvalDLGItem(dialog, item);
}

void LBSetTabs(DLGRecord* dialog, int32_t item, int32_t count, const int32_t* stops) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  if (!view) return;
  if (stops != nullptr && count > 0) std::copy_n(stops, std::min(count, kLBMaxTabs), view->tabs);
  if (view->draw == nullptr) view->draw = LBDrawColumns;
}

int32_t LBGetCheck(DLGRecord* dialog, int32_t item, int32_t row) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  if (!view || !view.HasChecks() || view->checkCapacity == 0) return 0;
  const int32_t* const state = view.State(row);
  return state != nullptr ? *state & 0xFF : 0;
}

void LBSetCheck(DLGRecord* dialog, int32_t item, int32_t row, bool on) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  if (!view || !view.HasChecks()) return;
  int32_t* const state = row < view->checkCapacity ? view.State(row) : nullptr;
  if (state != nullptr) *state = on ? 1 : 0;
  InvalDLGItem(dialog, item);
  if (view.HasRow(row)) LDraw(view.list(), row);
}

int32_t LBGetSelect(DLGRecord* dialog, int32_t item) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  return view ? LNextSelected(view.list(), 0) : 0;
}

void LBSetSelect(DLGRecord* dialog, int32_t item, int32_t row) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  if (!view || row >= view.count()) return;
  view.SelectOnly(row);
  if (row >= 0) LScrollTo(view.list(), row);
}

bool LBGetSelectionRange(DLGRecord* dialog, int32_t item, int32_t* first, int32_t* last) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  const LBRange range = view ? view.Selection() : LBRange();
  if (first != nullptr) *first = range.first;
  if (last != nullptr) *last = range.last;
  return range.first >= 0;
}

void LBSetSelectionRange(DLGRecord* dialog, int32_t item, int32_t first, int32_t last) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  if (!view) return;
  const int32_t begin = std::max(first, 0);
  view.Select({begin, view.IsMultiple() ? last : std::min(begin, last)});
}

std::string LBGetListText(DLGRecord* dialog, int32_t item, int32_t row) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  return view ? LGetCell(view.list(), row) : std::string();
}

void LBSetDrawProc(DLGRecord* dialog, int32_t item, LBDrawProc draw) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  if (!view) return;
  view->draw = draw;
  LDraw(view.list(), -1);
}
