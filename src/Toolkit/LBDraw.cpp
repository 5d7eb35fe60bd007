#include <algorithm>
#include <limits>
#include <string>
#include <string_view>

#include "Toolkit/DLGEvents.h"
#include "Toolkit/LBInternal.h"

namespace {

constexpr int32_t kRowInset = 4;        // before the check mark or the text
constexpr int32_t kCheckGap = 6;        // between them
constexpr int32_t kColumnGap = 8;       // at the end of a column
constexpr int32_t kDefaultColumn = 80;  // without a tab stop

int16_t _ToCoordinate(int32_t value) {
  return static_cast<int16_t>(
      std::clamp<int32_t>(value, std::numeric_limits<int16_t>::min(), std::numeric_limits<int16_t>::max()));
}

DrawState _StateOf(ListRef list, bool selected, bool hasFocus) {
  return {selected, hasFocus, IsControlActive(GetListControl(list))};
}

// A tab stop in the dialog's scale; 0 for none.
int32_t _TabStop(const LBView& view, int32_t number) {
  return number < kLBMaxTabs ? GetDialogWidth(view->dialog->dialog, view->tabs[number]) : 0;
}

// What the widest text of the last column leaves of a row. The first column gets it.
int32_t _FreeRoom(const LBView& view, int32_t width) {
  int32_t stops = 0;
  while (_TabStop(view, stops) > 0) ++stops;
  const int32_t widest = stops > 0 ? LGetColumnWidth(view.list(), stops) : 0;
  if (widest == 0) return 0;
  return std::max(width - kRowInset - widest - _TabStop(view, stops - 1), 0);
}

// The left edges of a row's columns, from its second one on.
class TabStops {
 public:
  TabStops(const LBView& view, int32_t width) : m_view(view), m_freeRoom(_FreeRoom(view, width)) {}

  int32_t Next() {
    const int32_t stop = _TabStop(m_view, m_used++);
    m_position = stop > 0 ? stop + m_freeRoom : m_position + kDefaultColumn;
    return m_position;
  }

 private:
  LBView m_view;
  int32_t m_freeRoom;
  int32_t m_used = 0;
  int32_t m_position = 0;
};

}  // namespace

Rect LBCheckBoxBounds(const Rect& row) {
  const Point size = GetThemeCheckBoxSize();
  const int32_t left = row.left + kRowInset;
  const int32_t top = row.top + (RectHeight(row) - size.v) / 2;
  return {_ToCoordinate(top), _ToCoordinate(left), _ToCoordinate(top + size.v), _ToCoordinate(left + size.h)};
}

int16_t LBTextLeft(const Rect& row, bool withChecks) {
  return _ToCoordinate(withChecks ? LBCheckBoxBounds(row).right + kCheckGap : row.left + kRowInset);
}

void LBDrawColumns(DrawContext* context, DLGRecord* dialog, int32_t item, int32_t row, const Rect& bounds,
                   bool selected, bool hasFocus) {
  const LBView view = LBView::OfLiveItem(dialog, item);
  if (!view) return;
  const DrawState state = _StateOf(view.list(), selected, hasFocus);
  const std::string text = LGetCell(view.list(), row);
  std::string_view rest = text;
  TabStops stops(view, RectWidth(bounds));
  int32_t left = LBTextLeft(bounds, view.HasChecks());
  while (left < bounds.right) {
    const size_t end = std::min(rest.find('\t'), rest.size());
    const bool isLast = end == rest.size();
    const int32_t next = isLast ? bounds.right : bounds.left + std::min<int32_t>(stops.Next(), bounds.right);
    const int32_t right = std::min<int32_t>(isLast ? next : next - kColumnGap, bounds.right);
    if (end > 0) {
      const Rect column = {bounds.top, _ToCoordinate(left), bounds.bottom, _ToCoordinate(right)};
      DrawThemeText(context, rest.substr(0, end), column, state);
    }
    if (isLast) return;
    rest.remove_prefix(end + 1);
    left = next;
  }
}

namespace {

void _DrawRow(DrawContext* context, ListRef list, int32_t row, const Rect& bounds, bool selected,
              bool hasFocus) {
  const DrawState state = _StateOf(list, selected, hasFocus);
  DrawThemeRow(context, bounds, state);
  const LBView view = LBView::OfList(list);
  if (!view) {
    DrawThemeText(context, LGetCell(list, row), bounds, state);
    return;
  }
  DLGRecord* const dialog = view->dialog;
  const int32_t item = view->item;
  if (view.HasChecks()) {
    DrawThemeCheckBox(context, LBCheckBoxBounds(bounds), LBGetCheck(dialog, item, row) != 0, state);
  }
  const LBDrawProc draw = view->draw != nullptr ? view->draw : LBDrawColumns;
  draw(context, dialog, item, row, bounds, selected, hasFocus);
}

bool _IsChecked(ListRef list, int32_t row) {
  const LBView view = LBView::OfList(list);
  return view && LBGetCheck(view->dialog, view->item, row) != 0;
}

// The same as a click on the check mark.
void _SetChecked(ListRef list, int32_t row, bool on) {
  const LBView view = LBView::OfList(list);
  if (!view || !view.HasChecks() || !view.HasRow(row) || !view.Reacts()) return;
  if (_IsChecked(list, row) == on) return;
  view.ToggleCheck(row);
  DLGHandleAction(view->dialog->window, view.control());
}

}  // namespace

void LBRegisterListDefinition(int16_t id, bool withChecks) {
  ListDefinition definition;
  definition.draw = _DrawRow;
  definition.hasChecks = withChecks;
  if (withChecks) {
    definition.isChecked = _IsChecked;
    definition.setChecked = _SetChecked;
  }
  RegisterListDefinition(id, definition);
}
