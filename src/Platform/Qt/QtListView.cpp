#include "Platform/Qt/QtListView.h"

#include <QApplication>
#include <QFontMetrics>
#include <QItemSelectionModel>
#include <QResizeEvent>
#include <QStyledItemDelegate>
#include <algorithm>

#include "Platform/Qt/QtDrawing.h"
#include "Platform/Qt/QtRegistry.h"
#include "Platform/Qt/QtText.h"

namespace ui {

namespace {

// Draws rows by the list's definition.
class RowDelegate : public QStyledItemDelegate {
 public:
  explicit RowDelegate(QtListView* view) : QStyledItemDelegate(view), m_view(view) {}

  void SetList(ListRef list) { m_list = list; }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  QSize sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const override {
    return {1, m_view->RowHeight()};
  }

  // A click or a key toggles no check mark by itself.
  bool editorEvent(QEvent* /*event*/, QAbstractItemModel* /*model*/, const QStyleOptionViewItem& /*option*/,
                   const QModelIndex& /*index*/) override {
    return false;
  }

 private:
  QtListView* m_view;
  ListRef m_list = nullptr;
};

void _DrawPlainRow(DrawContext* context, const std::string& text, const Rect& bounds, DrawState state) {
  constexpr int kMargin = 4;
  DrawThemeRow(context, bounds, state);
  Rect inside = bounds;
  inside.left = ToInt16(inside.left + kMargin);
  DrawThemeText(context, text, inside, state);
}

}  // namespace

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  QStyleOptionViewItem full = option;
  initStyleOption(&full, index);
  DrawContext context{painter, &full, m_view};
  const Rect bounds = ToRect(option.rect);
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  const ListDefinition* const definition = FindListDefinition(GetListDefinitionID(m_list));
  if (definition == nullptr || definition->draw == nullptr) {
    const DrawState state{selected, m_view->hasFocus(), option.state.testFlag(QStyle::State_Enabled)};
    _DrawPlainRow(&context, m_view->rows().Text(index.row()), bounds, state);
    m_view->rows().NoteCut(index.row(), context.isCut);
    return;
  }
  painter->save();
  try {
    definition->draw(&context, m_list, index.row(), bounds, selected, m_view->hasFocus());
  } catch (...) {
    painter->fillRect(option.rect, option.palette.base());
  }
  painter->restore();
  m_view->rows().NoteCut(index.row(), context.isCut);
}

void ListRows::Insert(int row) {
  beginInsertRows({}, row, row);
  m_columnWidths.clear();
  m_rows.emplace(m_rows.begin() + row);
  endInsertRows();
}

void ListRows::SetText(int row, std::string_view text) {
  Row& changed = m_rows[static_cast<size_t>(row)];
  changed.text = text;
  m_columnWidths.clear();
  if (changed.read) Redraw(row);
}

namespace {

// What lies behind that many tabs, up to the next.
std::string_view _ColumnOf(std::string_view text, int column) {
  for (; column > 0; --column) {
    const size_t tab = text.find('\t');
    if (tab == std::string_view::npos) return {};
    text.remove_prefix(tab + 1);
  }
  return text.substr(0, text.find('\t'));
}

}  // namespace

int ListRows::ColumnWidth(int column, const QFont& font) {
  if (font != m_measuredFont) m_columnWidths.clear();
  m_measuredFont = font;
  const auto [known, isNew] = m_columnWidths.try_emplace(column, 0);
  if (!isNew) return known->second;
  const QFontMetrics metrics(font);
  for (const Row& row : m_rows) {
    const std::string_view text = _ColumnOf(row.text, column);
    if (!text.empty()) known->second = std::max(known->second, metrics.horizontalAdvance(FromMacRoman(text)));
  }
  return known->second;
}

void ListRows::Redraw(int row) {
  emit dataChanged(index(row), index(row));
}

int ListRows::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : Count();
}

const ListDefinition* ListRows::Definition() const {
  return FindListDefinition(GetListDefinitionID(Ref()));
}

namespace {

QString _SpokenText(std::string_view text) {
  return FromMacRoman(text).replace(QLatin1Char('\t'), QLatin1String(", "));
}

}  // namespace

QVariant ListRows::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= Count()) return {};
  const Row& row = m_rows[static_cast<size_t>(index.row())];
  row.read = true;
  switch (role) {
    case Qt::DisplayRole: return FromMacRoman(row.text);
    case Qt::AccessibleTextRole: return _SpokenText(row.text);
    case Qt::ToolTipRole: return row.isCut ? QVariant(_SpokenText(row.text)) : QVariant();
    case Qt::CheckStateRole: {
      const ListDefinition* const definition = Definition();
      if (definition == nullptr || !definition->hasChecks || definition->isChecked == nullptr) return {};
      return static_cast<int>(definition->isChecked(Ref(), index.row()) ? Qt::Checked : Qt::Unchecked);
    }
    default: return {};
  }
}

bool ListRows::setData(const QModelIndex& index, const QVariant& value, int role) {
  const ListDefinition* const definition = Definition();
  const ControlRecord* const control = FindControl(m_control);
  if (role != Qt::CheckStateRole || control == nullptr || definition == nullptr) return false;
  if (!index.isValid() || index.row() >= Count()) return false;
  if (!definition->hasChecks || definition->setChecked == nullptr) return false;
  const QPersistentModelIndex changed(index);
  CallHandler(control->window, definition->setChecked, Ref(), index.row(), value.toInt() == Qt::Checked);
  if (changed.isValid()) emit dataChanged(changed, changed);
  return true;
}

Qt::ItemFlags ListRows::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const ListDefinition* const definition = Definition();
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  if (definition != nullptr && definition->hasChecks) flags |= Qt::ItemIsUserCheckable;
  return flags;
}

QtListView::QtListView(QWidget* parent) : QListView(parent), m_rows(this) {
  setModel(&m_rows);
  viewport()->setMouseTracking(true);  // for the tool tips of rows
  setItemDelegate(new RowDelegate(this));
  setUniformItemSizes(true);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideRight);
  const auto invalidate = [this] { m_selectedIsValid = false; };
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, invalidate);
  connect(&m_rows, &QAbstractItemModel::rowsInserted, this, invalidate);
}

const std::vector<bool>& QtListView::Selected() {
  if (m_selectedIsValid) return m_selected;
  m_selected.assign(static_cast<size_t>(m_rows.Count()), false);
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    std::fill(m_selected.begin() + range.top(), m_selected.begin() + range.bottom() + 1, true);
  }
  m_selectedIsValid = true;
  return m_selected;
}

// Joins the row with the selected ones above it: the model's time grows with the number of its ranges.
void QtListView::Select(int row) {
  QItemSelectionModel& model = *selectionModel();
  const QModelIndex index = m_rows.index(row);
  if (selectionMode() == SingleSelection) {
    model.select(index, QItemSelectionModel::ClearAndSelect);
    return;
  }
  int first = row;
  if (row > 0 && model.isSelected(m_rows.index(row - 1))) {
    for (const QItemSelectionRange& range : model.selection()) {
      if (range.bottom() == row - 1) first = range.top();
    }
  }
  model.select(QItemSelection(m_rows.index(first), index), QItemSelectionModel::Select);
}

void QtListView::SetControl(ControlRef control) {
  m_rows.SetControl(control);
  static_cast<RowDelegate*>(itemDelegate())->SetList(reinterpret_cast<ListRef>(control));
}

int QtListView::RowHeight() const {
  constexpr int kMargins = 6;
  return std::max(QFontMetrics(font()).height(), int{GetThemeCheckBoxSize().v}) + kMargins;
}

int QtListView::VisibleRowCount() const {
  return std::max(1, (height() - 2 * frameWidth()) / RowHeight());
}

// While hidden, a widget is told its size only when it is shown.
void QtListView::Settle() {
  if (!isVisible()) {
    for (QWidget* const widget : {static_cast<QWidget*>(this), viewport()}) {
      QResizeEvent resize(widget->size(), QSize());
      QCoreApplication::sendEvent(widget, &resize);
    }
    doItemsLayout();
  }
  executeDelayedItemsLayout();
}

// A click beside the rows keeps the single selected row.
QItemSelectionModel::SelectionFlags QtListView::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* event) const {
  if (selectionMode() == SingleSelection && !index.isValid()) return QItemSelectionModel::NoUpdate;
  return QListView::selectionCommand(index, event);
}

QtListView* ListViewOf(ListRef list) {
  const ControlRecord* const control = FindControl(reinterpret_cast<ControlRef>(list));
  if (control == nullptr || control->kind != kControlKindListBox) return nullptr;
  return static_cast<QtListView*>(control->widget.data());
}

}  // namespace ui
