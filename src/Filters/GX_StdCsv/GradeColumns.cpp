#include "Filters/GX_StdCsv/GradeColumns.h"

#include <algorithm>
#include <iterator>
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

std::vector<const qz::ResultsRecord*> RosterIndex::FindResults(const qz::AssignmentRecord& assignment) const {
  std::vector<const qz::ResultsRecord*> first(m_ids.Count(), nullptr);
  for (const qz::ResultsRecord& results : assignment.results) {
    const size_t number = m_ids.Find(_Key(results.studentID));
    if (number != KeyIndex<uint64_t>::kNone && first[number] == nullptr) first[number] = &results;
  }
  std::vector<const qz::ResultsRecord*> byStudent;
  byStudent.reserve(m_idNumbers.size());
  std::transform(m_idNumbers.begin(), m_idNumbers.end(), std::back_inserter(byStudent),
                 [&first](size_t number) { return first[number]; });
  return byStudent;
}

std::vector<GradeColumn> SelectedColumns(const qz::ClassRecord& record) {
  const RosterIndex roster(record.students);
  std::vector<GradeColumn> columns;
  for (const qz::AssignmentRecord& assignment : record.assignments) {
    if (assignment.selected) columns.push_back({&assignment, roster.FindResults(assignment)});
  }
  return columns;
}

int32_t TotalPointsPossible(const std::vector<GradeColumn>& columns) {
  int64_t total = 0;
  for (const GradeColumn& column : columns) total += column.assignment->pointsPossible;
  using Limits = std::numeric_limits<int32_t>;
  return static_cast<int32_t>(std::clamp<int64_t>(total, Limits::min(), Limits::max()));
}
