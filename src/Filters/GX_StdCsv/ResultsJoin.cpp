#include "Filters/GX_StdCsv/ResultsJoin.h"

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

ScoreTable::ScoreTable(const std::vector<qz::StudentRecord>& students,
                       const std::vector<const qz::AssignmentRecord*>& assignments)
    : m_roster(students), m_chains(m_roster.Count()) {
  size_t results = 0;
  for (const qz::AssignmentRecord* assignment : assignments) results += assignment->results.size();
  m_scores.reserve(results);
  size_t position = 0;
  for (const qz::AssignmentRecord* assignment : assignments) Add(*assignment, position++);
}

std::optional<double> ScoreTable::Find(size_t position, size_t assignment) const {
  const Score* score = First(position);
  while (score != nullptr && score->assignment < assignment) score = Next(*score);
  if (score == nullptr || score->assignment != assignment) return std::nullopt;
  return score->points;
}

// Sums in the stored order of the results, which is their order in memory.
void ScoreTable::Add(const qz::AssignmentRecord& assignment, size_t position) {
  for (const qz::ResultsRecord& results : assignment.results) {
    const size_t number = m_roster.NumberOf(results);
    if (number == RosterIndex::kNone) continue;
    Chain& chain = m_chains[number];
    if (chain.last != kEnd && m_scores[chain.last].assignment == position) continue;  // the first counts
    (chain.last == kEnd ? chain.first : m_scores[chain.last].next) = m_scores.size();
    chain.last = m_scores.size();
    m_scores.push_back({position, results.GetTotalPoints(), kEnd});
  }
}
