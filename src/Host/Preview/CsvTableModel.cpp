#include "Host/Preview/CsvTableModel.h"

#include <algorithm>
#include <utility>

#include "Host/ClassView/RomanText.h"

namespace host {

namespace {

QVariant _Cell(const CsvRow& row, int column) {
  const auto position = static_cast<size_t>(column);
  return position < row.size() ? LineFromUtf8(row[position]) : QVariant();
}

}  // namespace

bool CsvTableModel::SetRows(std::vector<CsvRow> rows) {
  const CsvRow header = m_rows.empty() ? CsvRow() : std::move(m_rows.front());
  beginResetModel();
  m_rows = std::move(rows);
  m_columns = 0;
  for (const CsvRow& row : m_rows) m_columns = std::max(m_columns, row.size());
  endResetModel();
  return !m_rows.empty() && m_rows.front() == header;
}

int CsvTableModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid() || m_rows.empty()) return 0;
  return static_cast<int>(m_rows.size() - 1);
}

int CsvTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_columns);
}

QVariant CsvTableModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  return _Cell(m_rows[static_cast<size_t>(index.row()) + 1], index.column());
}

QVariant CsvTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || m_rows.empty() || section < 0) return {};
  return orientation == Qt::Horizontal ? _Cell(m_rows.front(), section) : QVariant(section + 1);
}

}  // namespace host
