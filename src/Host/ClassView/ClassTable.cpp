#include "Host/ClassView/ClassTable.h"

#include <QActionGroup>
#include <QContextMenuEvent>
#include <QItemSelection>
#include <QLabel>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <map>
#include <utility>

#include "Host/App/Texts.h"
#include "Host/ClassView/ColumnWidth.h"
#include "Host/ClassView/FindBar.h"
#include "Host/ClassView/FrozenColumnView.h"

namespace host {

namespace {

constexpr int kNameCharacters = 24;
constexpr int kWholeRow = -1;

// Rows as ranges of the column, or of all columns.
void _AddRows(const QAbstractItemModel& model, int column, std::vector<int> rows, QItemSelection* selection) {
  std::sort(rows.begin(), rows.end());
  const int left = column == kWholeRow ? 0 : column;
  const int right = column == kWholeRow ? model.columnCount() - 1 : column;
  for (size_t first = 0, next = 1; first < rows.size(); first = next++) {
    while (next < rows.size() && rows[next] <= rows[next - 1] + 1) ++next;
    selection->append(
        QItemSelectionRange(model.index(rows[first], left), model.index(rows[next - 1], right)));
  }
}

}  // namespace

ClassTable::ClassTable(QWidget* parent, std::function<void(int)> selected)
    : QWidget(parent),
      m_selected(std::move(selected)),
      m_model(this),
      m_order(this),
      m_view(new FrozenColumnView(this)),
      m_note(new QLabel(this)),
      m_find(new FindBar(this, {[this] { FindText(); }, [this](bool backwards) { FindNext(backwards); },
                                [this] { CloseFind(); }})) {
  m_order.setSourceModel(&m_model);
  SetUpView();
  m_note->setObjectName(QStringLiteral("emptyNote"));
  m_note->setAlignment(Qt::AlignCenter);
  m_note->setWordWrap(true);
  m_note->hide();
  m_find->hide();
  setFocusProxy(m_view);
  auto* const content = new QHBoxLayout;
  content->addWidget(m_view, 1);
  content->addWidget(m_note, 1);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(content, 1);
  layout->addWidget(m_find);
  Retranslate();
}

void ClassTable::SetUpView() {
  m_view->setObjectName(QStringLiteral("classTable"));
  m_view->setModel(&m_order);
  m_view->setAlternatingRowColors(true);
  m_view->setTabKeyNavigation(false);
  m_view->setWordWrap(false);
  QHeaderView* const header = m_view->Header();
  header->setSortIndicatorClearable(true);
  header->setSortIndicator(-1, Qt::AscendingOrder);
  header->setSortIndicatorShown(true);
  connect(header, &QHeaderView::sortIndicatorChanged, this,
          [this](int column, Qt::SortOrder order) { m_order.sort(column, order); });
  connect(header, &QHeaderView::sectionResized, this, [this](int column, int /*old*/, int width) {
    if (m_isFitting || column != ClassTableModel::kNameColumn) return;
    m_isNameWidthSet = true;
    m_nameWidth = width;
  });
  connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &ClassTable::CurrentChanged);
  FitRows();
}

void ClassTable::SetClass(std::shared_ptr<const OpenClass> openClass) {
  const QScopedValueRollback<bool> told(m_isTold, true);
  const bool isSameFile = m_class != nullptr && m_class->path == openClass->path;
  const Current current = CurrentCell();
  const int column = m_order.sortColumn();
  const Qt::SortOrder order = m_order.sortOrder();
  m_order.sort(-1);
  m_class = std::move(openClass);
  m_model.SetClass(m_class);
  ShowOrder(isSameFile && column < m_model.columnCount() ? column : -1, order);
  ShowNote();
  if (!isSameFile) {
    m_isNameWidthSet = false;
    m_view->horizontalScrollBar()->setValue(0);
  }
  FitColumns();
  if (isSameFile) MakeCurrent(current);
}

void ClassTable::SetIdentifier(qz::UserIDField field) {
  m_model.SetIdentifier(field);
  if (m_order.sortColumn() == ClassTableModel::kIdentifierColumn) {
    m_order.sort(m_order.sortColumn(), m_order.sortOrder());
  }
  WidenColumns();
}

void ClassTable::SetMarks(ProblemMarks marks) {
  m_model.SetMarks(std::move(marks));
  WidenColumns();
}

void ClassTable::FitRows() {
  const int line = m_view->fontMetrics().height();
  m_view->setIconSize({line, line});
  m_view->verticalHeader()->setMinimumSectionSize(line);
  m_view->verticalHeader()->setDefaultSectionSize(line * 3 / 2);
}

void ClassTable::FitColumns() {
  const QScopedValueRollback<bool> fitting(m_isFitting, true);
  const int limit = kNameCharacters * m_view->fontMetrics().averageCharWidth();
  for (int column = 0; column < m_order.columnCount(); ++column) {
    const int width = FittingColumnWidth(*m_view, column);
    const bool isAssignment = column >= ClassTableModel::kFirstAssignmentColumn;
    if (column == ClassTableModel::kNameColumn) {
      if (!m_isNameWidthSet) m_nameWidth = std::min(width, limit);
    } else {
      m_view->setColumnWidth(column, isAssignment ? width : std::min(width, limit));
    }
  }
  LimitNames();
}

// What the user has made wider stays so.
void ClassTable::WidenColumns() {
  std::vector<int> widths;
  for (int column = 0; column < m_order.columnCount(); ++column)
    widths.push_back(m_view->columnWidth(column));
  FitColumns();
  const QScopedValueRollback<bool> fitting(m_isFitting, true);
  for (int column = ClassTableModel::kIdentifierColumn; column < m_order.columnCount(); ++column) {
    m_view->setColumnWidth(column,
                           std::max(widths[static_cast<size_t>(column)], m_view->columnWidth(column)));
  }
}

// So that there is room for the other columns.
void ClassTable::LimitNames() {
  if (m_order.columnCount() == 0) return;
  const QScopedValueRollback<bool> fitting(m_isFitting, true);
  const int limit = m_isNameWidthSet ? width() * 2 / 3 : width() / 3;
  const int least = m_view->fontMetrics().height() * 4;
  m_view->setColumnWidth(ClassTableModel::kNameColumn, std::min(m_nameWidth, std::max(limit, least)));
  FitView();
}

// No wider than the names, beside which a note stands.
void ClassTable::FitView() {
  const int width = m_view->verticalHeader()->sizeHint().width() + m_view->horizontalHeader()->length() +
                    m_view->verticalScrollBar()->sizeHint().width() + 2 * m_view->frameWidth();
  m_view->setMaximumWidth(m_note->isHidden() ? QWIDGETSIZE_MAX : width);
}

// In place of the grid, or beside the names.
void ClassTable::ShowNote() {
  if (m_class == nullptr) return;
  const bool hasStudents = !m_class->record.students.empty();
  const bool hasAssignments = !m_class->record.assignments.empty();
  m_view->setVisible(hasStudents);
  m_note->setVisible(!hasStudents || !hasAssignments);
  m_note->setText(hasStudents ? Texts::tr("This class has no assignments yet.")
                              : Texts::tr("This class has no students yet."));
}

void ClassTable::ShowOrder(int column, Qt::SortOrder order) {
  {
    const QSignalBlocker blocker(m_view->Header());
    m_view->Header()->setSortIndicator(column, order);
  }
  m_order.sort(column, order);
}

void ClassTable::SortByCurrentColumn() {
  const int column = m_view->currentIndex().column();
  if (column < 0) return;
  const bool isSorted = m_order.sortColumn() == column;
  const bool isDescending = m_order.sortOrder() == Qt::DescendingOrder;
  ShowOrder(isSorted && isDescending ? -1 : column, isSorted ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void ClassTable::ShowColumnMenu(int column, QPoint where) {
  auto* const menu = new QMenu(this);
  menu->setObjectName(QStringLiteral("columnMenu"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  auto* const orders = new QActionGroup(menu);
  const auto add = [&](const QString& text, int by, Qt::SortOrder order) {
    QAction* const action = menu->addAction(text);
    action->setCheckable(true);
    action->setChecked(m_order.sortColumn() == by && (by < 0 || m_order.sortOrder() == order));
    orders->addAction(action);
    connect(action, &QAction::triggered, this, [this, by, order] { ShowOrder(by, order); });
  };
  add(Texts::tr("Sort &Ascending"), column, Qt::AscendingOrder);
  add(Texts::tr("Sort &Descending"), column, Qt::DescendingOrder);
  add(Texts::tr("&Class’s Own Order"), -1, Qt::AscendingOrder);
  menu->popup(where);
}

// By mouse for the column under it, by keys for the current one.
void ClassTable::contextMenuEvent(QContextMenuEvent* event) {
  const QPoint inView = m_view->viewport()->mapFromGlobal(event->globalPos());
  QWidget* const headings = m_view->Header()->viewport();
  const QPoint inHeadings = headings->mapFromGlobal(event->globalPos());
  int column = m_view->currentIndex().column();
  if (event->reason() != QContextMenuEvent::Keyboard) {
    column = headings->rect().contains(inHeadings) ? m_view->Header()->SectionAt(inHeadings.x())
                                                   : m_view->indexAt(inView).column();
  }
  if (column >= 0 && m_view->isVisible()) ShowColumnMenu(column, event->globalPos());
}

ClassTable::Current ClassTable::CurrentCell() const {
  const QModelIndex index = m_order.mapToSource(m_view->currentIndex());
  return {index.row(), index.column()};
}

void ClassTable::MakeCurrent(Current cell) {
  const QModelIndex index = m_order.mapFromSource(m_model.index(cell.student, cell.column));
  if (index.isValid()) m_view->setCurrentIndex(index);
}

void ClassTable::CurrentChanged(const QModelIndex& current) {
  if (m_isTold || current.column() < ClassTableModel::kFirstAssignmentColumn) return;
  if (m_selected) m_selected(current.column() - ClassTableModel::kFirstAssignmentColumn);
}

// Before it is shown it has not its size; it then scrolls to the current cell by itself.
void ClassTable::ScrollTo(const QModelIndex& index) {
  if (m_view->isVisible()) m_view->scrollTo(index);
}

void ClassTable::SelectColumn(int column) {
  const QModelIndex index = m_order.index(std::max(m_view->currentIndex().row(), 0), column);
  if (!index.isValid()) return;
  m_view->selectionModel()->setCurrentIndex(
      index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Columns);
  ScrollTo(index);
}

void ClassTable::SelectAssignment(int assignment) {
  const int column = ClassTableModel::kFirstAssignmentColumn + assignment;
  if (assignment < 0 || m_view->currentIndex().column() == column) return;
  const QScopedValueRollback<bool> told(m_isTold, true);
  SelectColumn(column);
}

QItemSelection ClassTable::SelectionOf(const std::vector<FindingPlace>& places) const {
  QItemSelection selection;
  std::map<int, std::vector<int>> rows;  // by column
  for (const FindingPlace& place : places) {
    const bool isAssignment = place.assignment != FindingPlace::kNone;
    const int column = isAssignment
                           ? ClassTableModel::kFirstAssignmentColumn + static_cast<int>(place.assignment)
                           : kWholeRow;
    if (place.student != FindingPlace::kNone) {
      const QModelIndex student = m_model.index(static_cast<int>(place.student), std::max(column, 0));
      if (student.isValid()) rows[column].push_back(m_order.mapFromSource(student).row());
    } else if (isAssignment && column < m_order.columnCount() && m_order.rowCount() > 0) {
      selection.append(
          QItemSelectionRange(m_order.index(0, column), m_order.index(m_order.rowCount() - 1, column)));
    }
  }
  for (const auto& [column, found] : rows) _AddRows(m_order, column, found, &selection);
  return selection;
}

void ClassTable::SelectPlaces(const std::vector<FindingPlace>& places) {
  const QItemSelection selection = SelectionOf(places);
  if (selection.isEmpty()) return;
  const FindingPlace& first = places.front();
  Current cell = CurrentCell();
  if (first.student != FindingPlace::kNone) cell.student = static_cast<int>(first.student);
  cell.student = std::max(cell.student, 0);
  cell.column = first.assignment == FindingPlace::kNone
                    ? ClassTableModel::kNameColumn
                    : ClassTableModel::kFirstAssignmentColumn + static_cast<int>(first.assignment);
  const QModelIndex index = m_order.mapFromSource(m_model.index(cell.student, cell.column));
  m_view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
  m_view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  ScrollTo(index);
}

void ClassTable::Find() {
  if (!m_view->isVisible()) return;
  BeginAtCurrent();
  m_find->Open();
}

// Where the user has gone since.
void ClassTable::BeginAtCurrent() {
  const QModelIndex current = m_view->currentIndex();
  if (current.isValid() && m_shown != current) m_found = {current.row(), current.column()};
}

void ClassTable::CloseFind() {
  m_find->hide();
  m_view->setFocus();
}

// From the one that is shown, or the next one: letters are added to what is found.
void ClassTable::FindText() {
  const std::vector<TablePlace> found =
      FindInTable(m_order, ClassTableModel::kFirstAssignmentColumn, m_find->Text());
  if (found.empty()) return m_find->ShowResult(0, 0);
  const auto next = std::lower_bound(found.begin(), found.end(), m_found);
  ShowFound(found, next == found.end() ? 0 : static_cast<size_t>(next - found.begin()));
}

void ClassTable::FindNext(bool backwards) {
  if (!m_find->isVisible()) return Find();
  const std::vector<TablePlace> found =
      FindInTable(m_order, ClassTableModel::kFirstAssignmentColumn, m_find->Text());
  if (found.empty()) return m_find->ShowResult(0, 0);
  BeginAtCurrent();
  const auto next = backwards ? std::lower_bound(found.begin(), found.end(), m_found)
                              : std::upper_bound(found.begin(), found.end(), m_found);
  const auto position = static_cast<size_t>(next - found.begin());
  ShowFound(found, (backwards ? position + found.size() - 1 : position) % found.size());
}

void ClassTable::ShowFound(const std::vector<TablePlace>& found, size_t which) {
  m_found = found[which];
  if (m_found.row == TablePlace::kHeading) {
    SelectColumn(m_found.column);
  } else {
    m_view->setCurrentIndex(m_order.index(m_found.row, m_found.column));
  }
  m_shown = m_view->currentIndex();
  m_find->ShowResult(which + 1, found.size());
}

void ClassTable::keyPressEvent(QKeyEvent* event) {
  const bool isMenu = event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier;
  const QModelIndex current = m_view->currentIndex();
  if (event->key() == Qt::Key_Escape && m_find->isVisible()) {
    CloseFind();
  } else if (event->matches(QKeySequence::FindNext)) {
    FindNext(false);
  } else if (event->matches(QKeySequence::FindPrevious)) {
    FindNext(true);
  } else if (isMenu && current.isValid()) {
    ShowColumnMenu(current.column(),
                   m_view->viewport()->mapToGlobal(m_view->visualRect(current).bottomLeft()));
  } else {
    QWidget::keyPressEvent(event);
  }
}

void ClassTable::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LimitNames();
}

void ClassTable::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  FitRows();
  FitColumns();
}

void ClassTable::Retranslate() {
  m_view->setAccessibleName(Texts::tr("Students and their points"));
  m_model.Retranslate();
  m_order.sort(m_order.sortColumn(), m_order.sortOrder());
  ShowNote();
  WidenColumns();
}

}  // namespace host
