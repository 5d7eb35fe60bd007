// The class as a table, in the order of one of its columns.
#ifndef GRADIX_CLASSORDER_H
#define GRADIX_CLASSORDER_H

#include <QSortFilterProxyModel>
#include <vector>

namespace host {

// Of a ClassTableModel. Texts are in the order of the language, without regard to case, numbers in them by
// their value; where there is nothing, in either order last. Equal ones stay in the class's own order.
class ClassOrder : public QSortFilterProxyModel {
 public:
  explicit ClassOrder(QObject* parent);

  // Column -1: the class's own order. To be called again when values have changed.
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

  // The heading of the column by which it is sorted says so to a screen reader.
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 protected:
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  std::vector<int> m_places;  // by the row of the class
};

}  // namespace host

#endif  // GRADIX_CLASSORDER_H
