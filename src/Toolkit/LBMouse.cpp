#include "Toolkit/LBInternal.h"

namespace {

intptr_t _Track(const LBView& view, Point where) {
  return HandleControlPress(view.control(), where) ? kPressTrack : kPressNothing;
}

}  // namespace

intptr_t LBHandleMouseDown(const LBView& view, Point where, bool doubleClick) {
  if (!view.Reacts()) return kPressNothing;
  LBClearTypeAhead();
  view->activated = 0;
  const int32_t row = LIsInScrollBar(view.list(), where) ? -1 : LRowAt(view.list(), where);
  if (row < 0 || view.IsMultiple()) return _Track(view, where);
  if (view.HasChecks()) {
    const Rect bounds = LGetRowBounds(view.list(), row);
    if (!doubleClick && where.h >= LBTextLeft(bounds, true)) return _Track(view, where);
    view.SelectOnly(row);
    view.ToggleCheck(row);
    return kPressChanged;
  }
  if (!doubleClick) return _Track(view, where);
  view.SelectOnly(row);
  view->activated = 1;
  return kPressChanged;
}
