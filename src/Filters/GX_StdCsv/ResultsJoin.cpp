#include "Filters/GX_StdCsv/ResultsJoin.h"

#include <algorithm>
#include <iterator>
#include <numeric>

RosterIndex::RosterIndex(const std::vector<qz::StudentRecord>& students) : m_ids(students.size()) {
  m_numbers.reserve(students.size());
  for (const qz::StudentRecord& student : students) m_numbers.push_back(m_ids.Add(Key(student.id)));
}

std::vector<const qz::ResultsRecord*> RosterIndex::FindResults(const qz::AssignmentRecord& assignment) const {
  std::vector<const qz::ResultsRecord*> found(Count());
  for (const qz::ResultsRecord& results : assignment.results) {
    const size_t number = NumberOf(results);
    if (number != kNone && found[number] == nullptr) found[number] = &results;
  }
  std::vector<const qz::ResultsRecord*> byPosition;
  byPosition.reserve(m_numbers.size());
  for (const size_t number : m_numbers) byPosition.push_back(found[number]);
  return byPosition;
}

// Counts the scores of each student, which says where they stand, then puts them there.
ScoreTable::ScoreTable(const std::vector<qz::StudentRecord>& students,
                       const std::vector<const qz::AssignmentRecord*>& assignments)
    : m_roster(students), m_begins(m_roster.Count() + 1) {
  std::vector<size_t> numbers;  // of the results' students; kNone for results that do not count
  std::vector<size_t> lastAssignment(m_roster.Count(), assignments.size());
  for (size_t position = 0; position < assignments.size(); ++position) {
    for (const qz::ResultsRecord& results : assignments[position]->results) {
      size_t number = m_roster.NumberOf(results);
      if (number != RosterIndex::kNone && lastAssignment[number] == position) {
        number = RosterIndex::kNone;  // the first counts
      }
      numbers.push_back(number);
      if (number == RosterIndex::kNone) continue;
      lastAssignment[number] = position;
      ++m_begins[number + 1];
    }
  }
  std::partial_sum(m_begins.begin(), m_begins.end(), m_begins.begin());

  m_scores.resize(m_begins.back());
  std::vector<size_t> next(m_begins.begin(), std::prev(m_begins.end()));
  auto number = numbers.begin();
  for (size_t position = 0; position < assignments.size(); ++position) {
    for (const qz::ResultsRecord& results : assignments[position]->results) {
      if (*number != RosterIndex::kNone) m_scores[next[*number]++] = {position, results.GetTotalPoints()};
      ++number;
    }
  }
}

std::optional<double> ScoreTable::Find(size_t position, size_t assignment) const {
  const std::span<const Score> scores = ScoresOf(position);
  const auto found = std::ranges::lower_bound(scores, assignment, {}, &Score::assignment);
  if (found == scores.end() || found->assignment != assignment) return std::nullopt;
  return found->points;
}
