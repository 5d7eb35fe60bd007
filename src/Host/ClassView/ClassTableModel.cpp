#include "Host/ClassView/ClassTableModel.h"

#include <QGuiApplication>
#include <QPalette>
#include <utility>

#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"

namespace host {

namespace {

constexpr qsizetype kMaxHeaderLength = 24;

QString _Shortened(const QString& name) {
  if (name.size() <= kMaxHeaderLength) return name;
  qsizetype length = kMaxHeaderLength - 1;
  if (name[length].isLowSurrogate()) --length;
  return name.left(length).trimmed() + QChar(u'…');
}

}  // namespace

void ClassTableModel::SetClass(std::shared_ptr<const OpenClass> openClass) {
  beginResetModel();
  m_class = std::move(openClass);
  endResetModel();
}

void ClassTableModel::Retranslate() {
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

QVariant ClassTableModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const auto row = static_cast<size_t>(index.row());
  if (index.column() >= kFirstAssignmentColumn) {
    return PointsData(row, static_cast<size_t>(index.column() - kFirstAssignmentColumn), role);
  }
  if (role != Qt::DisplayRole) return {};
  const qz::ClassTexts texts = m_class->Texts();
  if (index.column() == kNameColumn) return LineFromUtf8(texts.StudentName(row)).trimmed();
  return LineFromUtf8(texts.Student(row, qz::FindStudentField(qz::kUserIDStudentID)));
}

QVariant ClassTableModel::PointsData(size_t student, size_t assignment, int role) const {
  if (role == Qt::TextAlignmentRole) return int{Qt::AlignRight | Qt::AlignVCenter};
  const std::optional<double> points = m_class->scores.Find(student, assignment);
  switch (role) {
    case Qt::DisplayRole: return points ? PointsText(*points) : QStringLiteral("—");
    case Qt::AccessibleTextRole: return points ? PointsText(*points) : Texts::tr("No result");
    case Qt::ToolTipRole: return points ? QVariant() : Texts::tr("No result");
    case Qt::ForegroundRole:
      return points ? QVariant() : QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    default: return {};
  }
}

QVariant ClassTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (m_class == nullptr) return {};
  if (orientation == Qt::Vertical) return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
  if (section >= kFirstAssignmentColumn && section < columnCount()) {
    return AssignmentHeader(static_cast<size_t>(section - kFirstAssignmentColumn), role);
  }
  if (role == Qt::TextAlignmentRole) return int{Qt::AlignLeft | Qt::AlignVCenter};
  if (role != Qt::DisplayRole) return {};
  if (section == kNameColumn) return Texts::tr("Name");
  return section == kStudentIDColumn ? Texts::tr("Student ID") : QVariant();
}

QVariant ClassTableModel::AssignmentHeader(size_t assignment, int role) const {
  const qz::ClassTexts texts = m_class->Texts();
  const QString name = LineFromUtf8(texts.AssignmentName(assignment));
  if (role == Qt::DisplayRole) return _Shortened(name);
  if (role == Qt::TextAlignmentRole) return int{Qt::AlignRight | Qt::AlignVCenter};
  if (role != Qt::ToolTipRole) return {};
  const int points = m_class->record.assignments[assignment].pointsPossible;
  const QString date = LineFromUtf8(texts.Assignment(assignment, qz::AssignmentText::kDate));
  QString tip = name + u'\n' + Texts::tr("Points possible: %1").arg(points);
  if (!date.isEmpty()) tip += u'\n' + Texts::tr("Date: %1").arg(date);
  return tip;
}

}  // namespace host
