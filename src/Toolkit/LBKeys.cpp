#include <algorithm>
#include <string>
#include <string_view>

#include "Common/asciicase.h"
#include "Platform/Ui/Events.h"
#include "Toolkit/LBInternal.h"

namespace {

constexpr uint32_t kTypeAheadTicks = 40;  // a longer pause begins a new search
constexpr size_t kTypeAheadSize = 14;

// There is one keyboard, so these serve all lists.
std::string gTypeAhead;
uint32_t gLastKeyTicks = 0;

}  // namespace

void LBClearTypeAhead() {
  gTypeAhead.clear();
}

namespace {

void _ForgetOldTypeAhead() {
  const uint32_t now = TickCount();
  if (now - gLastKeyTicks > kTypeAheadTicks) LBClearTypeAhead();
  gLastKeyTicks = now;
}

bool _IsTyped(DLGKeyPress key) {
  return key.character >= ' ' && key.character != kDeleteChar && (key.modifiers & (cmdKey | controlKey)) == 0;
}

bool _BeginsWithTypeAhead(std::string_view text) {
  return text.size() >= gTypeAhead.size() && AsciiEqualNoCase(text.substr(0, gTypeAhead.size()), gTypeAhead);
}

int32_t _FindTypeAhead(const LBView& view) {
  const int32_t count = view.count();
  for (int32_t row = 0; row < count; ++row) {
    if (_BeginsWithTypeAhead(LGetCell(view.list(), row))) return row;
  }
  return -1;
}

// Selects the range and shows the row.
intptr_t _ChangeSelection(const LBView& view, LBRange range, int32_t shown) {
  const int32_t count = view.count();
  const LBRange before = view.Selection();
  bool isWhole = before.first == range.first && before.last == range.last;
  for (int32_t row = range.first; isWhole && row <= range.last && row < count; ++row) {
    isWhole = LIsSelected(view.list(), row);
  }
  if (!isWhole) view.Select(range);
  LScrollTo(view.list(), shown);
  return isWhole ? kKeyUsed : kKeyChanged;
}

intptr_t _TypeAhead(const LBView& view, uint16_t character) {
  if (gTypeAhead.size() < kTypeAheadSize) gTypeAhead += static_cast<char>(character);
  const int32_t row = _FindTypeAhead(view);
  return row < 0 ? kKeyUsed : _ChangeSelection(view, {row, row}, row);
}

intptr_t _ToggleSelected(const LBView& view) {
  const int32_t row = LNextSelected(view.list(), 0);
  if (row < 0) return kKeyUsed;
  view.ToggleCheck(row);
  return kKeyChanged;
}

intptr_t _Return(const LBView& view) {
  if (view.IsMultiple()) return kKeyNotUsed;
  if (view.HasChecks()) return _ToggleSelected(view);
  view->activated = 1;
  return kKeyChanged;
}

bool _IsNavigation(uint16_t character) {
  switch (character) {
    case kUpArrowChar:
    case kDownArrowChar:
    case kPageUpChar:
    case kPageDownChar:
    case kHomeChar:
    case kEndChar: return true;
    default: return false;
  }
}

// The row that a navigation key leads to from a row, or from -1, none.
int32_t _Destination(const LBView& view, uint16_t character, int32_t from) {
  const int32_t last = view.count() - 1;
  if (character == kEndChar) return last;
  if (character == kHomeChar || from < 0) return 0;
  const int32_t page = LGetVisibleRowCount(view.list());
  int32_t row = from;
  switch (character) {
    case kUpArrowChar: row -= 1; break;
    case kDownArrowChar: row += 1; break;
    case kPageUpChar: row -= page; break;
    default: row += page; break;
  }
  return std::clamp(row, 0, last);
}

// In a multiple-selection list, Option has the first instead of the last selected row move, and Shift leaves
// the other one where it is.
intptr_t _Navigate(const LBView& view, DLGKeyPress key) {
  if (view.count() == 0) return kKeyUsed;
  LBRange range = view.Selection();
  const bool movesFirst = view.IsMultiple() && (key.modifiers & optionKey) != 0;
  const bool extends = view.IsMultiple() && (key.modifiers & shiftKey) != 0 && range.first >= 0;
  int32_t row = _Destination(view, key.character, movesFirst ? range.first : range.last);
  if (!extends) {
    range = {row, row};
  } else if (movesFirst) {
    range.first = row = std::min(row, range.last);
  } else {
    range.last = row = std::max(row, range.first);
  }
  return _ChangeSelection(view, range, row);
}

}  // namespace

intptr_t LBHandleKey(const LBView& view, DLGKeyPress key) {
  _ForgetOldTypeAhead();
  view->activated = 0;
  if (!view.Reacts()) return kKeyNotUsed;
  if (key.character == kReturnChar) {
    LBClearTypeAhead();
    return _Return(view);
  }
  if (_IsNavigation(key.character)) {
    LBClearTypeAhead();
    return _Navigate(view, key);
  }
  if (!_IsTyped(key)) return kKeyNotUsed;
  if (key.character == ' ' && gTypeAhead.empty() && view.HasChecks()) return _ToggleSelected(view);
  return _TypeAhead(view, key.character);
}

bool LBUsesReturn(DLGRecord* dialog, int32_t item) {
  const LBView view = LBView::OfItem(dialog, item);
  return view && !view.IsMultiple() && view.Reacts();
}
