#include "Host/Fill/FillTableModel.h"

#include <QApplication>
#include <QCollator>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QStyle>
#include <algorithm>
#include <limits>
#include <map>
#include <numeric>
#include <utility>

#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Fill/FillTexts.h"
#include "Host/Findings/FindingsModel.h"
#include "Systems/FindingTexts.h"

namespace host {

namespace {

constexpr size_t kProblemIcon = 5;

// A sign in the colour of the text, which every palette shows.
QIcon _SignIcon(const char* sign) {
  const QFontMetrics metrics(QApplication::font());
  const int side = metrics.height();
  const qreal ratio = qApp->devicePixelRatio();
  QPixmap pixmap(QSize(side, side) * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  QFont font = QApplication::font();
  font.setBold(true);
  font.setPixelSize(side);
  painter.setFont(font);
  painter.setPen(QApplication::palette().color(QPalette::Text));
  painter.drawText(QRect(0, 0, side, side), Qt::AlignCenter, QString::fromUtf8(sign));
  painter.end();
  QIcon icon(pixmap);
  icon.addPixmap(pixmap, QIcon::Selected);
  return icon;
}

QIcon _IconOf(size_t kind) {
  constexpr const char* kSigns[] = {"+", "→", "=", "•"};
  return kind < std::size(kSigns) ? _SignIcon(kSigns[kind])
                                  : QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
}

// By position: the place in the order of the names; equal names have equal ones.
std::vector<size_t> _Ranks(const std::vector<QString>& names) {
  QCollator collator;
  collator.setNumericMode(true);
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  std::vector<size_t> order(names.size());
  std::iota(order.begin(), order.end(), size_t{0});
  std::ranges::stable_sort(order,
                           [&](size_t a, size_t b) { return collator.compare(names[a], names[b]) < 0; });
  std::vector<size_t> ranks(names.size());
  for (size_t i = 1; i < order.size(); ++i) {
    const bool isEqual = collator.compare(names[order[i - 1]], names[order[i]]) == 0;
    ranks[order[i]] = ranks[order[i - 1]] + (isEqual ? 0 : 1);
  }
  return ranks;
}

std::vector<bool> _Containing(const std::vector<QString>& names, const QString& text) {
  std::vector<bool> found;
  found.reserve(names.size());
  for (const QString& name : names) found.push_back(name.contains(text, Qt::CaseInsensitive));
  return found;
}

}  // namespace

void FillTableModel::Show(const FillPlan* plan) {
  beginResetModel();
  m_plan = plan;
  m_students.clear();
  m_assignments.clear();
  m_problems.clear();
  m_counts = {};
  if (m_plan != nullptr) {
    NameAll();
    FindProblems();
    for (size_t cell = 0; cell < m_plan->cells.size(); ++cell) {
      for (const FillFilter filter : {FillFilter::kAll, FillFilter::kChanges, FillFilter::kProblems}) {
        if (Passes(cell, filter)) ++m_counts[static_cast<size_t>(filter)];
      }
    }
  }
  ListRows();
  endResetModel();
}

void FillTableModel::NameAll() {
  const size_t students = m_plan->subject->texts.Record().students.size();
  for (size_t i = 0; i < students; ++i) {
    m_students.push_back(LineFromUtf8(m_plan->subject->texts.StudentName(i)).trimmed());
  }
  for (size_t i = 0; i < m_plan->subject->titles.size(); ++i)
    m_assignments.push_back(AssignmentTitle(*m_plan, i));
  m_studentRanks = _Ranks(m_students);
  m_assignmentRanks = _Ranks(m_assignments);
}

// Findings that name a student, or a student and an assignment. The first one is the worst.
void FillTableModel::FindProblems() {
  std::map<std::pair<size_t, size_t>, uint32_t> found;
  for (size_t i = 0; i < m_plan->findings.size(); ++i) {
    if (!IsTrouble(m_plan->findings[i].consequence)) continue;
    for (const FindingPlace& place : m_plan->findings[i].places) {
      if (place.student != FindingPlace::kNone)
        found.try_emplace({place.student, place.assignment}, static_cast<uint32_t>(i));
    }
  }
  m_problems.assign(m_plan->cells.size(), kNoProblem);
  if (found.empty()) return;
  for (size_t cell = 0; cell < m_plan->cells.size(); ++cell) {
    const FillCell& each = m_plan->cells[cell];
    for (const size_t assignment : {m_plan->subject->assignments[each.assignment], FindingPlace::kNone}) {
      const auto problem = found.find({each.student, assignment});
      if (problem != found.end()) m_problems[cell] = std::min(m_problems[cell], problem->second);
    }
  }
}

bool FillTableModel::Passes(size_t cell, FillFilter filter) const {
  const FillKind kind = m_plan->cells[cell].kind;
  switch (filter) {
    case FillFilter::kAll: return true;
    case FillFilter::kChanges: return IsChange(kind);
    case FillFilter::kProblems: return kind == FillKind::kNoNumber || m_problems[cell] != kNoProblem;
  }
  return true;
}

void FillTableModel::SetFilter(FillFilter filter) {
  beginResetModel();
  m_filter = filter;
  ListRows();
  endResetModel();
}

void FillTableModel::Search(const QString& text) {
  beginResetModel();
  m_search = text;
  ListRows();
  endResetModel();
}

void FillTableModel::ListRows() {
  m_rows.clear();
  if (m_plan == nullptr) return;
  const std::vector<bool> students = _Containing(m_students, m_search);
  const std::vector<bool> assignments = _Containing(m_assignments, m_search);
  for (size_t cell = 0; cell < m_plan->cells.size(); ++cell) {
    const FillCell& each = m_plan->cells[cell];
    const bool isFound = students[each.student] || assignments[each.assignment];
    if (isFound && Passes(cell, m_filter)) m_rows.push_back(static_cast<uint32_t>(cell));
  }
  SortRows();
}

void FillTableModel::sort(int column, Qt::SortOrder order) {
  m_sortColumn = column;
  m_sortOrder = order;
  emit layoutAboutToBeChanged({}, VerticalSortHint);
  const QModelIndexList before = persistentIndexList();
  std::vector<uint32_t> cells;
  for (const QModelIndex& index : before) cells.push_back(m_rows[static_cast<size_t>(index.row())]);
  ListRows();
  QModelIndexList after;
  for (qsizetype i = 0; i < before.size(); ++i) {
    const auto row = std::ranges::find(m_rows, cells[static_cast<size_t>(i)]) - m_rows.begin();
    after.append(index(static_cast<int>(row), before[i].column()));
  }
  changePersistentIndexList(before, after);
  emit layoutChanged({}, VerticalSortHint);
}

// In the plan's order where nothing else decides.
void FillTableModel::SortRows() {
  if (m_sortColumn < 0 || m_plan == nullptr) return;
  std::vector<double> keys(m_plan->cells.size());
  const bool commas = m_plan->gradebook->decimalCommas;
  const auto number = [commas](const std::string& text) {
    QString score = QString::fromStdString(text).trimmed();
    if (commas) score.replace(u',', u'.');
    bool isNumber = false;
    const double value = score.toDouble(&isNumber);
    if (isNumber) return value;
    return score.isEmpty() ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::lowest();
  };
  for (const uint32_t row : m_rows) {
    const FillCell& cell = m_plan->cells[row];
    switch (m_sortColumn) {
      case kStudent: keys[row] = static_cast<double>(m_studentRanks[cell.student]); break;
      case kAssignment: keys[row] = static_cast<double>(m_assignmentRanks[cell.assignment]); break;
      case kOld: keys[row] = number(cell.oldText); break;
      case kNew: keys[row] = number(cell.newText); break;
      default: keys[row] = static_cast<double>(cell.kind) + (m_problems[row] != kNoProblem ? 0.5 : 0); break;
    }
  }
  const bool descends = m_sortOrder == Qt::DescendingOrder;
  std::ranges::stable_sort(m_rows, [&keys, descends](uint32_t a, uint32_t b) {
    return descends ? keys[b] < keys[a] : keys[a] < keys[b];
  });
}

FindingPlace FillTableModel::PlaceOf(int row) const {
  const FillCell& cell = CellOf(row);
  return {.student = cell.student, .assignment = m_plan->subject->assignments[cell.assignment]};
}

void FillTableModel::Retranslate() {
  m_icons = {};
  emit headerDataChanged(Qt::Horizontal, 0, kColumnCount - 1);
  if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, kColumnCount - 1));
}

int FillTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int FillTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : int{kColumnCount};
}

QVariant FillTableModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const size_t cell = m_rows[static_cast<size_t>(index.row())];
  const bool isScore = index.column() == kOld || index.column() == kNew;
  switch (role) {
    case Qt::DisplayRole: return Text(cell, index.column());
    case Qt::AccessibleTextRole: {
      const QString text = Text(cell, index.column());
      return isScore && text.isEmpty() ? Texts::tr("empty") : text;
    }
    case Qt::TextAlignmentRole:
      return static_cast<int>((isScore ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::ToolTipRole: return ToolTip(cell, index.column());
    case Qt::DecorationRole: {
      if (index.column() != kWhat) return {};
      const size_t kind =
          m_problems[cell] != kNoProblem ? kProblemIcon : static_cast<size_t>(m_plan->cells[cell].kind);
      if (m_icons[kind].isNull()) m_icons[kind] = _IconOf(kind);
      return m_icons[kind];
    }
    default: return {};
  }
}

QString FillTableModel::Text(size_t cell, int column) const {
  const FillCell& each = m_plan->cells[cell];
  switch (column) {
    case kStudent: return m_students[each.student];
    case kAssignment: return m_assignments[each.assignment];
    case kOld: return LineFromUtf8(each.oldText);
    case kNew: return LineFromUtf8(each.newText);
    default: break;
  }
  const QString text = KindWord(each.kind);
  return m_problems[cell] == kNoProblem ? text : Texts::tr("%1, with a problem").arg(text);
}

QString FillTableModel::ToolTip(size_t cell, int column) const {
  const FillCell& each = m_plan->cells[cell];
  if (column == kAssignment) {
    const size_t theirs = m_plan->match.columnOf[each.assignment];
    const QString heading = theirs == GradebookMatch::kNone
                                ? Texts::tr("a new column")
                                : Texts::tr("column “%1”").arg(ColumnText(*m_plan->gradebook, theirs));
    return QStringLiteral("%1: %2").arg(m_assignments[each.assignment], heading);
  }
  if (column != kWhat) return Text(cell, column);
  QString tip = KindReason(each, *m_plan);
  if (m_problems[cell] == kNoProblem) return tip;
  const FindingText text =
      DescribeFinding(m_plan->findings[m_problems[cell]], *m_plan->subject, FindingLanguage());
  return tip + u'\n' + LineFromUtf8(text.what);
}

QVariant FillTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) {
    const bool isScore = section == kOld || section == kNew;
    return static_cast<int>((isScore ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  }
  if (role != Qt::DisplayRole) return {};
  switch (section) {
    case kStudent: return Texts::tr("Student");
    case kAssignment: return Texts::tr("Assignment");
    case kOld: return Texts::tr("In the gradebook");
    case kNew: return Texts::tr("Afterwards");
    case kWhat: return Texts::tr("What happens");
    default: return {};
  }
}

}  // namespace host
