// The cells of a plan as a table: what stands in the gradebook, what will stand there, and why.
#ifndef GRADIX_FILLTABLEMODEL_H
#define GRADIX_FILLTABLEMODEL_H

#include <QAbstractTableModel>
#include <QIcon>
#include <QString>
#include <array>
#include <cstdint>
#include <vector>

#include "Export/Fill.h"

namespace host {

enum class FillFilter : uint8_t { kAll, kChanges, kProblems };

// Rows are positions in FillPlan::cells, so that it shows any number of them at once.
class FillTableModel : public QAbstractTableModel {
 public:
  enum Column { kStudent, kAssignment, kOld, kNew, kWhat, kColumnCount };

  explicit FillTableModel(QObject* parent) : QAbstractTableModel(parent) {}

  // The plan outlives its being shown; null shows nothing. Filter, search and order stay.
  void Show(const FillPlan* plan);

  void SetFilter(FillFilter filter);
  // Shows the cells of students and assignments whose names have the text, in any letter case.
  void Search(const QString& text);

  // Cells that a filter lets through, whatever is searched.
  size_t Count(FillFilter filter) const { return m_counts[static_cast<size_t>(filter)]; }

  // The cell of a row, and what about the class it is.
  const FillCell& CellOf(int row) const { return m_plan->cells[m_rows[static_cast<size_t>(row)]]; }
  FindingPlace PlaceOf(int row) const;

  // Told of a change of the language or the palette.
  void Retranslate();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  void sort(int column, Qt::SortOrder order) override;

 private:
  static constexpr uint32_t kNoProblem = UINT32_MAX;

  void NameAll();
  void FindProblems();
  bool Passes(size_t cell, FillFilter filter) const;
  void ListRows();
  void SortRows();
  QString ToolTip(size_t cell, int column) const;
  QString Text(size_t cell, int column) const;

  const FillPlan* m_plan = nullptr;
  std::vector<QString> m_students;     // by position in the class
  std::vector<QString> m_assignments;  // by position in the subject
  std::vector<size_t> m_studentRanks;  // by name
  std::vector<size_t> m_assignmentRanks;
  std::vector<uint32_t> m_problems;  // by cell: position in the plan's findings, or kNoProblem
  std::array<size_t, 3> m_counts = {};
  std::vector<uint32_t> m_rows;
  FillFilter m_filter = FillFilter::kAll;
  QString m_search;
  int m_sortColumn = -1;
  Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
  mutable std::array<QIcon, 6> m_icons;  // by kind, and of problems; made when they are needed
};

}  // namespace host

#endif  // GRADIX_FILLTABLEMODEL_H
