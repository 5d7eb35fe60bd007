// What the sources of the list box share.
#ifndef GRADIX_LBINTERNAL_H
#define GRADIX_LBINTERNAL_H

#include "Toolkit/ItemControls.h"
#include "Toolkit/LBList.h"

// The first and the last selected row, -1 for none.
struct LBRange {
  int32_t first = -1;
  int32_t last = -1;
};

// A list box of a live dialog: its item, its control and its block. One that was not found has no list.
class LBView {
 public:
  LBView() = default;

  // The dialog must be live.
  static LBView OfItem(DLGRecord* dialog, int32_t item);
  // For callers outside of the toolkit: of any dialog.
  static LBView OfLiveItem(DLGRecord* dialog, int32_t item);
  // For the list's callbacks.
  static LBView OfList(ListRef list);

  explicit operator bool() const { return m_list != nullptr; }
  ListRef list() const { return m_list; }
  ControlRef control() const { return GetListControl(m_list); }
  LBRecord* operator->() const { return Record(m_block); }
  int32_t count() const { return Record(m_block)->rowCount; }
  bool HasRow(int32_t row) const { return row >= 0 && row < count(); }
  bool IsMultiple() const { return (Record(m_block)->flags & kLBMultiple) != 0; }
  bool HasChecks() const { return (Record(m_block)->flags & kLBChecks) != 0; }
  bool Reacts() const;

  // The check states that the block has room for.
  int32_t StateCount() const;
  // A row's check state, or null when it has none.
  int32_t* State(int32_t row) const;

  LBRange Selection() const;
  void Select(LBRange range) const;  // those rows and no others
  void SelectOnly(int32_t row) const { Select({row, row}); }
  void ToggleCheck(int32_t row) const;

  static LBRecord* Record(Handle block) { return reinterpret_cast<LBRecord*>(*block); }

 private:
  LBView(ListRef list, Handle block) : m_list(list), m_block(block) {}

  ListRef m_list = nullptr;
  Handle m_block = nullptr;
};

// Answers kDLGKey.
intptr_t LBHandleKey(const LBView& view, DLGKeyPress key);
// Forgets what was typed to find a row.
void LBClearTypeAhead();
// True when Return does something in the item because it is a list.
bool LBUsesReturn(DLGRecord* dialog, int32_t item);

// Answers kDLGMouseDown.
intptr_t LBHandleMouseDown(const LBView& view, Point where, bool doubleClick);

// The check mark within a row, and the left edge of the text beside it.
Rect LBCheckBoxBounds(const Rect& row);
int16_t LBTextLeft(const Rect& row, bool withChecks);

// A row's tab-separated text in columns at the list's tab stops.
void LBDrawColumns(DrawContext* context, DLGRecord* dialog, int32_t item, int32_t row, const Rect& bounds,
                   bool selected, bool hasFocus);

#endif  // GRADIX_LBINTERNAL_H
