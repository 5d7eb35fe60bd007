#include "Host/ClassView/ClassTableModel.h"

#include <QGuiApplication>
#include <QLocale>
#include <QPalette>
#include <QTextDocument>
#include <algorithm>
#include <cmath>
#include <utility>

#include "Host/App/Numbers.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Findings/ConsequenceIcon.h"
#include "Host/Findings/FindingsModel.h"

namespace host {

namespace {

constexpr qsizetype kMaxHeaderLength = 24;
constexpr qsizetype kMaxTipLine = 80;  // characters; longer ones are broken
constexpr int kSignificantDigits = 15;

QString _Shortened(const QString& name) {
  if (name.size() <= kMaxHeaderLength) return name;
  qsizetype length = kMaxHeaderLength - 1;
  if (name[length].isLowSurrogate()) --length;
  return name.left(length).trimmed() + QChar(u'…');
}

// What the desktop would take for markup, and what is long, is written as markup, whose lines it breaks.
QString _Tip(const QStringList& lines) {
  QString plain = lines.join(u'\n');
  const bool isLong =
      std::any_of(lines.begin(), lines.end(), [](const QString& line) { return line.size() > kMaxTipLine; });
  if (!isLong && !Qt::mightBeRichText(plain)) return plain;
  return QLatin1String("<p>") + plain.toHtmlEscaped().replace(u'\n', QLatin1String("<br>")) +
         QLatin1String("</p>");
}

// Whether it is shown in two decimals and has more.
bool _IsRounded(double points) {
  constexpr double kNoise = 1e-12;  // what a sum of decimals is off by
  const double shown = std::round(points * 100) / 100;
  return std::isfinite(points) && std::abs(points - shown) > kNoise * std::max(1.0, std::abs(points));
}

QString _WordOf(const ProblemMark& mark) {
  return QString::fromStdString(DescribeConsequence(mark.consequence, FindingLanguage()));
}

}  // namespace

// A cell or a heading.
struct ClassTableModel::Cell {
  QString shown;
  QString spoken;  // where it differs
  QStringList tip = {};
  QVariant value = {};
  int alignment = Qt::AlignLeft | Qt::AlignVCenter;
  bool isDim = false;
  const ProblemMark* mark = nullptr;

  QVariant Data(int role) const;
  QVariant Spoken() const;
  QVariant ToolTip() const;
};

QVariant ClassTableModel::Cell::Data(int role) const {
  switch (role) {
    case Qt::DisplayRole: return shown;
    case kValueRole: return value;
    case Qt::TextAlignmentRole: return alignment;
    case Qt::AccessibleTextRole: return Spoken();
    case Qt::ToolTipRole: return ToolTip();
    case Qt::DecorationRole: return mark != nullptr ? ConsequenceIcon(mark->consequence) : QVariant();
    case Qt::ForegroundRole:
      return isDim ? QGuiApplication::palette().brush(QPalette::PlaceholderText) : QVariant();
    default: return {};
  }
}

QVariant ClassTableModel::Cell::Spoken() const {
  const QString& text = spoken.isEmpty() ? shown : spoken;
  if (mark == nullptr) return text;
  const QString problem =
      QStringLiteral("%1: %2").arg(_WordOf(*mark), QString(mark->text).replace(u'\n', u' '));
  return text.isEmpty() ? problem : text + QLatin1String("; ") + problem;
}

QVariant ClassTableModel::Cell::ToolTip() const {
  QStringList lines = tip;
  if (mark != nullptr) lines << _WordOf(*mark) + u':' << mark->text.split(u'\n');
  return lines.isEmpty() ? QVariant() : _Tip(lines);
}

void ClassTableModel::SetClass(std::shared_ptr<const OpenClass> openClass) {
  beginResetModel();
  m_class = std::move(openClass);
  m_marks.clear();
  endResetModel();
}

void ClassTableModel::SetIdentifier(qz::UserIDField field) {
  if (m_identifier == field) return;
  m_identifier = field;
  CellsChanged();
}

void ClassTableModel::SetMarks(ProblemMarks marks) {
  m_marks = std::move(marks);
  CellsChanged();
}

void ClassTableModel::Retranslate() {
  CellsChanged();
}

void ClassTableModel::CellsChanged() {
  if (m_class == nullptr) return;
  emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
  if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int ClassTableModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid() || m_class == nullptr) return 0;
  return static_cast<int>(m_class->record.students.size());
}

int ClassTableModel::columnCount(const QModelIndex& parent) const {
  if (parent.isValid() || m_class == nullptr) return 0;
  return kFirstAssignmentColumn + static_cast<int>(m_class->record.assignments.size());
}

const ProblemMark* ClassTableModel::MarkAt(const MarkKey& key) const {
  const auto found = m_marks.find(key);
  return found != m_marks.end() ? &found->second : nullptr;
}

QVariant ClassTableModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const auto student = static_cast<size_t>(index.row());
  if (index.column() < kFirstAssignmentColumn) return TextCell(student, index.column()).Data(role);
  return PointsCell(student, static_cast<size_t>(index.column() - kFirstAssignmentColumn)).Data(role);
}

ClassTableModel::Cell ClassTableModel::TextCell(size_t student, int column) const {
  const qz::ClassTexts texts = m_class->Texts();
  const bool isName = column == kNameColumn;
  Cell cell;
  cell.shown = LineFromUtf8(isName ? texts.StudentName(student)
                                   : texts.Student(student, qz::FindStudentField(m_identifier)));
  if (isName) cell.shown = cell.shown.trimmed();
  if (!cell.shown.isEmpty()) {
    cell.value = cell.shown;
    cell.tip << cell.shown;  // there may be no room for all of it
  }
  cell.mark = MarkAt({.place = isName ? MarkPlace::kName : MarkPlace::kIdentifier, .student = student});
  return cell;
}

ClassTableModel::Cell ClassTableModel::PointsCell(size_t student, size_t assignment) const {
  Cell cell;
  cell.alignment = Qt::AlignRight | Qt::AlignVCenter;
  cell.mark = MarkAt({.place = MarkPlace::kPoints, .student = student, .assignment = assignment});
  const std::optional<double> points = m_class->scores.Find(student, assignment);
  if (!points) {
    cell.shown = QStringLiteral("–");
    cell.spoken = Texts::tr("No result");
    cell.tip << cell.spoken;
    cell.isDim = true;
    return cell;
  }
  cell.value = *points;
  cell.shown = NumberText(*points);
  if (_IsRounded(*points)) cell.tip << QLocale().toString(*points, 'g', kSignificantDigits);
  return cell;
}

QVariant ClassTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (m_class == nullptr) return {};
  if (orientation == Qt::Vertical) return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
  return section >= 0 && section < columnCount() ? Heading(section).Data(role) : QVariant();
}

ClassTableModel::Cell ClassTableModel::Heading(int column) const {
  const qz::ClassTexts texts = m_class->Texts();
  Cell heading;
  if (column < kFirstAssignmentColumn) {
    const qz::StudentField& field = qz::FindStudentField(m_identifier);
    heading.spoken = column == kNameColumn ? Texts::tr("Name")
                                           : LineFromUtf8(DescribeField(field, texts, FindingLanguage()));
    if (heading.spoken.size() > kMaxHeaderLength) heading.tip << heading.spoken;
  } else {
    const auto assignment = static_cast<size_t>(column - kFirstAssignmentColumn);
    heading.spoken = LineFromUtf8(texts.AssignmentName(assignment));
    heading.tip = AssignmentTip(assignment, heading.spoken);
    heading.alignment = Qt::AlignRight | Qt::AlignVCenter;
    heading.mark = MarkAt({.place = MarkPlace::kTitle, .assignment = assignment});
  }
  heading.value = heading.spoken;
  heading.shown = _Shortened(heading.spoken);
  return heading;
}

QStringList ClassTableModel::AssignmentTip(size_t assignment, const QString& name) const {
  const int points = m_class->record.assignments[assignment].pointsPossible;
  const QString date = LineFromUtf8(m_class->Texts().Assignment(assignment, qz::AssignmentText::kDate));
  QStringList tip{name, Texts::tr("Points possible: %1").arg(QLocale().toString(points))};
  if (!date.isEmpty()) tip << Texts::tr("Date: %1").arg(date);
  return tip;
}

}  // namespace host
