#include "Filters/GX_StdCsv/GradeColumns.h"

#include <algorithm>
#include <limits>

namespace {

uint64_t _Key(int32_t id) {
  return static_cast<uint32_t>(id);
}

}  // namespace

RosterIndex::RosterIndex(const std::vector<qz::StudentRecord>& students) : m_ids(students.size()) {
  m_idNumbers.reserve(students.size());
  for (const qz::StudentRecord& student : students) m_idNumbers.push_back(m_ids.Add(_Key(student.id)));
}

template <typename Value, typename Evaluate>
std::vector<Value> RosterIndex::Join(const qz::AssignmentRecord& assignment, Evaluate evaluate) const {
  std::vector<Value> values(m_ids.Count());
  for (const qz::ResultsRecord& results : assignment.results) {
    const size_t number = m_ids.Find(_Key(results.studentID));
    if (number != KeyIndex<uint64_t>::kNone && !values[number]) values[number] = evaluate(results);
  }
  std::vector<Value> byStudent;
  byStudent.reserve(m_idNumbers.size());
  for (const size_t number : m_idNumbers) byStudent.push_back(values[number]);
  return byStudent;
}

std::vector<const qz::ResultsRecord*> RosterIndex::FindResults(const qz::AssignmentRecord& assignment) const {
  return Join<const qz::ResultsRecord*>(assignment,
                                        [](const qz::ResultsRecord& results) { return &results; });
}

std::vector<std::optional<double>> RosterIndex::FindTotals(const qz::AssignmentRecord& assignment) const {
  return Join<std::optional<double>>(
      assignment, [](const qz::ResultsRecord& results) { return results.GetTotalPoints(); });
}

std::vector<GradeColumn> SelectedColumns(const qz::ClassRecord& record) {
  const RosterIndex roster(record.students);
  std::vector<GradeColumn> columns;
  for (const qz::AssignmentRecord& assignment : record.assignments) {
    if (assignment.selected) columns.push_back({&assignment, roster.FindTotals(assignment)});
  }
  return columns;
}

int32_t TotalPointsPossible(const std::vector<GradeColumn>& columns) {
  int64_t total = 0;
  for (const GradeColumn& column : columns) total += column.assignment->pointsPossible;
  using Limits = std::numeric_limits<int32_t>;
  return static_cast<int32_t>(std::clamp<int64_t>(total, Limits::min(), Limits::max()));
}
