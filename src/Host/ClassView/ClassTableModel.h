// The class as a table: a row for each student, a column for each assignment, both in the record's order.
#ifndef GRADIX_CLASSTABLEMODEL_H
#define GRADIX_CLASSTABLEMODEL_H

#include <QAbstractTableModel>
#include <memory>

#include "Host/ClassView/ClassReader.h"

namespace host {

class ClassTableModel : public QAbstractTableModel {
 public:
  static constexpr int kNameColumn = 0;
  static constexpr int kStudentIDColumn = 1;
  static constexpr int kFirstAssignmentColumn = 2;

  explicit ClassTableModel(QObject* parent) : QAbstractTableModel(parent) {}

  // Null shows nothing.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

  // Told of a change of the language.
  void Retranslate();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QVariant PointsData(size_t student, size_t assignment, int role) const;
  QVariant AssignmentHeader(size_t assignment, int role) const;

  std::shared_ptr<const OpenClass> m_class;
};

}  // namespace host

#endif  // GRADIX_CLASSTABLEMODEL_H
