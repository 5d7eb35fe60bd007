// Finds texts in a table.
#ifndef GRADIX_TEXTSEARCH_H
#define GRADIX_TEXTSEARCH_H

#include <QString>
#include <tuple>
#include <vector>

class QAbstractItemModel;

namespace host {

// A cell, or a heading.
struct TablePlace {
  static constexpr int kHeading = -1;

  int row = kHeading;
  int column = 0;

  bool operator<(const TablePlace& other) const {
    return std::tie(row, column) < std::tie(other.row, other.column);
  }
};

// Without regard to case and accents.
QString FoldedText(const QString& text);

// The headings whose value (ClassTableModel::kValueRole) contains the text, then the cells in the first
// `columns` columns, row by row. None for an empty text.
std::vector<TablePlace> FindInTable(const QAbstractItemModel& model, int columns, const QString& text);

}  // namespace host

#endif  // GRADIX_TEXTSEARCH_H
