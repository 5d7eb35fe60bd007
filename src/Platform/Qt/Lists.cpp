#include "Platform/Ui/Lists.h"

#include <QItemSelectionModel>
#include <QScrollBar>
#include <algorithm>
#include <unordered_map>
#include <vector>

#include "Platform/Qt/QtDrawing.h"
#include "Platform/Qt/QtListView.h"
#include "Platform/Qt/QtRegistry.h"

using ui::ListViewOf;
using ui::QtListView;

namespace {

std::unordered_map<int16_t, ListDefinition>& _Definitions() {
  static auto* const definitions = new std::unordered_map<int16_t, ListDefinition>;
  return *definitions;
}

}  // namespace

void RegisterListDefinition(int16_t id, const ListDefinition& definition) {
  _Definitions()[id] = definition;
}

const ListDefinition* FindListDefinition(int16_t id) {
  const auto found = _Definitions().find(id);
  return found == _Definitions().end() ? nullptr : &found->second;
}

// A list's reference is that of its control.
ControlRef GetListControl(ListRef list) {
  return ListViewOf(list) == nullptr ? nullptr : reinterpret_cast<ControlRef>(list);
}

ListRef GetControlList(ControlRef control) {
  const auto list = reinterpret_cast<ListRef>(control);
  return ListViewOf(list) == nullptr ? nullptr : list;
}

namespace {

ui::ControlRecord* _RecordOf(ListRef list) {
  return ui::FindControl(GetListControl(list));
}

}  // namespace

int16_t GetListDefinitionID(ListRef list) {
  const ui::ControlRecord* const control = _RecordOf(list);
  return control == nullptr ? int16_t{0} : control->listDefinition;
}

void SetListRefCon(ListRef list, intptr_t value) {
  if (ui::ControlRecord* const control = _RecordOf(list)) control->listRefCon = value;
}

intptr_t GetListRefCon(ListRef list) {
  const ui::ControlRecord* const control = _RecordOf(list);
  return control == nullptr ? 0 : control->listRefCon;
}

namespace {

// The view of a list that has that row.
QtListView* _ViewWithRow(ListRef list, int32_t row) {
  QtListView* const view = ListViewOf(list);
  return view != nullptr && row >= 0 && row < view->rows().Count() ? view : nullptr;
}

}  // namespace

int32_t LGetCount(ListRef list) {
  QtListView* const view = ListViewOf(list);
  return view == nullptr ? 0 : view->rows().Count();
}

int32_t LAddRow(ListRef list, int32_t row) {
  QtListView* const view = ListViewOf(list);
  if (view == nullptr) return -1;
  const ui::Quiet quiet;
  row = std::clamp(row, 0, view->rows().Count());
  view->rows().Insert(row);
  return row;
}

void LSetCell(ListRef list, int32_t row, std::string_view text) {
  if (QtListView* const view = _ViewWithRow(list, row)) view->rows().SetText(row, text);
}

std::string LGetCell(ListRef list, int32_t row) {
  QtListView* const view = _ViewWithRow(list, row);
  return view == nullptr ? std::string() : view->rows().Text(row);
}

void LSetMultipleSelection(ListRef list, bool on) {
  QtListView* const view = ListViewOf(list);
  if (view == nullptr) return;
  const int32_t first = LNextSelected(list, 0);
  view->setSelectionMode(on ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
  if (!on && first >= 0) LSetSelect(list, first, true);
}

void LSetSelect(ListRef list, int32_t row, bool on) {
  QtListView* const view = _ViewWithRow(list, row);
  if (view == nullptr) return;
  const ui::Quiet quiet;
  QItemSelectionModel& selection = *view->selectionModel();
  const QModelIndex index = view->rows().index(row);
  if (!on) {
    selection.select(index, QItemSelectionModel::Deselect);
    return;
  }
  view->Select(row);
  view->setAutoScroll(false);
  selection.setCurrentIndex(index, QItemSelectionModel::NoUpdate);
  view->setAutoScroll(true);
}

bool LIsSelected(ListRef list, int32_t row) {
  QtListView* const view = _ViewWithRow(list, row);
  return view != nullptr && view->Selected()[static_cast<size_t>(row)];
}

int32_t LNextSelected(ListRef list, int32_t from) {
  QtListView* const view = ListViewOf(list);
  if (view == nullptr) return -1;
  const std::vector<bool>& selected = view->Selected();
  for (size_t row = static_cast<size_t>(std::max(from, 0)); row < selected.size(); ++row) {
    if (selected[row]) return static_cast<int32_t>(row);
  }
  return -1;
}

void LSelectRange(ListRef list, int32_t first, int32_t last) {
  QtListView* const view = ListViewOf(list);
  if (view == nullptr) return;
  first = std::max(first, 0);
  last = std::min(last, view->rows().Count() - 1);
  if (last < first) {
    LClearSelection(list);
    return;
  }
  const ui::Quiet quiet;
  const QItemSelection range(view->rows().index(first), view->rows().index(last));
  view->selectionModel()->select(range, QItemSelectionModel::ClearAndSelect);
  view->setAutoScroll(false);
  view->selectionModel()->setCurrentIndex(view->rows().index(last), QItemSelectionModel::NoUpdate);
  view->setAutoScroll(true);
}

void LClearSelection(ListRef list) {
  const ui::Quiet quiet;
  if (QtListView* const view = ListViewOf(list)) view->selectionModel()->clearSelection();
}

void LSetDrawingMode(ListRef list, bool on) {
  if (QtListView* const view = ListViewOf(list)) view->viewport()->setUpdatesEnabled(on);
}

void LDraw(ListRef list, int32_t row) {
  QtListView* const view = ListViewOf(list);
  if (view == nullptr) return;
  if (row < 0) {
    view->viewport()->update();
  } else if (row < view->rows().Count()) {
    view->rows().Redraw(row);
  }
}

void LScrollTo(ListRef list, int32_t row) {
  QtListView* const view = _ViewWithRow(list, row);
  if (view == nullptr) return;
  view->Settle();
  view->scrollTo(view->rows().index(row));
}

int32_t LGetColumnWidth(ListRef list, int32_t column) {
  QtListView* const view = ListViewOf(list);
  return view == nullptr ? 0 : view->rows().ColumnWidth(column, view->font());
}

int32_t LGetTopRow(ListRef list) {
  QtListView* const view = ListViewOf(list);
  if (view == nullptr) return 0;
  view->Settle();
  return view->verticalScrollBar()->value();
}

int32_t LGetVisibleRowCount(ListRef list) {
  QtListView* const view = ListViewOf(list);
  return view == nullptr ? 0 : view->VisibleRowCount();
}

namespace {

QPoint _ToViewport(const QtListView& view, Point where) {
  return view.viewport()->mapFrom(view.window(), QPoint(where.h, where.v));
}

}  // namespace

int32_t LRowAt(ListRef list, Point where) {
  QtListView* const view = ListViewOf(list);
  if (view == nullptr) return -1;
  view->Settle();
  const QPoint position = _ToViewport(*view, where);
  return view->viewport()->rect().contains(position) ? view->indexAt(position).row() : -1;
}

Rect LGetRowBounds(ListRef list, int32_t row) {
  QtListView* const view = _ViewWithRow(list, row);
  if (view == nullptr) return {};
  view->Settle();
  QRect bounds = view->visualRect(view->rows().index(row));
  bounds.setLeft(0);
  bounds.setWidth(view->viewport()->width());
  return ui::ToRect(bounds.translated(view->viewport()->mapTo(view->window(), QPoint(0, 0))));
}

bool LIsInScrollBar(ListRef list, Point where) {
  QtListView* const view = ListViewOf(list);
  if (view == nullptr) return false;
  view->Settle();
  const QScrollBar* const bar = view->verticalScrollBar();
  return bar->isVisibleTo(view) &&
         bar->rect().contains(bar->mapFrom(view->window(), QPoint(where.h, where.v)));
}

void LSetScrollBarVisible(ListRef list, bool on) {
  QtListView* const view = ListViewOf(list);
  if (view != nullptr) view->setVerticalScrollBarPolicy(on ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}
