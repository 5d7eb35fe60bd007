// Joins the results of assignments to the students of the class.
#ifndef GRADIX_GRADECOLUMNS_H
#define GRADIX_GRADECOLUMNS_H

#include <optional>
#include <vector>

#include "Common/KeyIndex.h"
#include "Common/QZData/QZClass.h"

// An index of the roster, built once per export. Gives the same answers as asking an assignment for each
// student in turn.
class RosterIndex {
 public:
  explicit RosterIndex(const std::vector<qz::StudentRecord>& students);

  // By position in the roster: the student's first results record on the assignment, or null.
  std::vector<const qz::ResultsRecord*> FindResults(const qz::AssignmentRecord& assignment) const;

  // By position in the roster: the total points of those results, or nothing.
  std::vector<std::optional<double>> FindTotals(const qz::AssignmentRecord& assignment) const;

 private:
  // By position in the roster: what `evaluate` makes of the student's first results record. Results are
  // evaluated in their stored order, which is the order in memory; a value of a student without is Value().
  template <typename Value, typename Evaluate>
  std::vector<Value> Join(const qz::AssignmentRecord& assignment, Evaluate evaluate) const;

  KeyIndex<uint64_t> m_ids;
  std::vector<size_t> m_idNumbers;  // by position in the roster
};

// One assignment column of a gradebook.
struct GradeColumn {
  const qz::AssignmentRecord* assignment;
  std::vector<std::optional<double>> points;  // by position in the roster; none without results
};

// The columns of the selected assignments, in their order.
std::vector<GradeColumn> SelectedColumns(const qz::ClassRecord& record);

// Sum of the columns' points possible; saturates at 32 bits.
int32_t TotalPointsPossible(const std::vector<GradeColumn>& columns);

#endif  // GRADIX_GRADECOLUMNS_H
