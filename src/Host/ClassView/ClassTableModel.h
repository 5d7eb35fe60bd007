// The class as a table: a row for each student, a column for each assignment, both in the record's order.
#ifndef GRADIX_CLASSTABLEMODEL_H
#define GRADIX_CLASSTABLEMODEL_H

#include <QAbstractTableModel>
#include <QStringList>
#include <memory>

#include "Host/ClassView/ClassReader.h"
#include "Host/ClassView/ProblemMarks.h"

namespace host {

class ClassTableModel : public QAbstractTableModel {
 public:
  static constexpr int kNameColumn = 0;
  static constexpr int kIdentifierColumn = 1;
  static constexpr int kFirstAssignmentColumn = 2;

  // The whole value, a text or a number, by which it is found and sorted; nothing where there is none.
  static constexpr int kValueRole = Qt::UserRole;

  explicit ClassTableModel(QObject* parent) : QAbstractTableModel(parent) {}

  // Without marks. Null shows nothing.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

  // The field of the second column; at first the student ID.
  void SetIdentifier(qz::UserIDField field);

  void SetMarks(ProblemMarks marks);

  // Told of a change of the language.
  void Retranslate();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Cell;

  Cell TextCell(size_t student, int column) const;
  Cell PointsCell(size_t student, size_t assignment) const;
  Cell Heading(int column) const;
  QStringList AssignmentTip(size_t assignment, const QString& name) const;
  const ProblemMark* MarkAt(const MarkKey& key) const;  // null: none
  void CellsChanged();

  std::shared_ptr<const OpenClass> m_class;
  qz::UserIDField m_identifier = qz::kUserIDStudentID;
  ProblemMarks m_marks;
};

}  // namespace host

#endif  // GRADIX_CLASSTABLEMODEL_H
