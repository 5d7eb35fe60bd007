// Delimited values, in UTF-8, as a table whose header is the first row.
#ifndef GRADIX_CSVTABLEMODEL_H
#define GRADIX_CSVTABLEMODEL_H

#include <QAbstractTableModel>
#include <vector>

#include "Host/Preview/CsvReader.h"

namespace host {

// As wide as the widest row; shorter rows end with empty cells.
class CsvTableModel : public QAbstractTableModel {
 public:
  explicit CsvTableModel(QObject* parent) : QAbstractTableModel(parent) {}

  // Shows these in place of others. Tells whether the header is as it was.
  bool SetRows(std::vector<CsvRow> rows);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::vector<CsvRow> m_rows;
  size_t m_columns = 0;
};

}  // namespace host

#endif  // GRADIX_CSVTABLEMODEL_H
