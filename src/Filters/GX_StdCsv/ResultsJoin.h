// Joins the results of assignments to the students of the class: the answers of AssignmentRecord's
// FindResultsForStudent for every student, found in one walk over the results.
#ifndef GRADIX_RESULTSJOIN_H
#define GRADIX_RESULTSJOIN_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "Common/KeyIndex.h"
#include "Common/QZData/QZClass.h"

// The roster by id. Students that share an id share a number.
class RosterIndex {
 public:
  static constexpr size_t kNone = KeyIndex<uint64_t>::kNone;

  explicit RosterIndex(const std::vector<qz::StudentRecord>& students);

  size_t Count() const { return m_ids.Count(); }  // of numbers, which are 0, 1, 2, ...
  // kNone when they are nobody's.
  size_t NumberOf(const qz::ResultsRecord& results) const { return m_ids.Find(Key(results.studentID)); }
  size_t NumberAt(size_t position) const { return m_numbers[position]; }  // in the roster

  // By position in the roster: the student's first results record on the assignment, or null.
  std::vector<const qz::ResultsRecord*> FindResults(const qz::AssignmentRecord& assignment) const;

 private:
  static uint64_t Key(int32_t id) { return static_cast<uint32_t>(id); }

  KeyIndex<uint64_t> m_ids;
  std::vector<size_t> m_numbers;  // by position in the roster
};

// The total points of each student on each of some assignments. Holds what there is, not a cell for every
// pair.
class ScoreTable {
 public:
  struct Score {
    size_t assignment;  // position in the list that the table was made from
    double points;
    size_t next;
  };

  ScoreTable() : ScoreTable({}, {}) {}  // of nobody
  ScoreTable(const std::vector<qz::StudentRecord>& students,
             const std::vector<const qz::AssignmentRecord*>& assignments);

  // The student's scores in the order of the assignments: the first of them, and the one after another; null
  // at the end. `position` is that in the roster.
  const Score* First(size_t position) const { return At(m_chains[m_roster.NumberAt(position)].first); }
  const Score* Next(const Score& score) const { return At(score.next); }

  // The student's points on one assignment, nothing without results. Goes through the student's scores.
  std::optional<double> Find(size_t position, size_t assignment) const;

 private:
  static constexpr size_t kEnd = RosterIndex::kNone;
  struct Chain {
    size_t first = kEnd, last = kEnd;
  };

  const Score* At(size_t index) const { return index == kEnd ? nullptr : &m_scores[index]; }
  void Add(const qz::AssignmentRecord& assignment, size_t position);

  RosterIndex m_roster;
  std::vector<Chain> m_chains;  // by number of the student
  std::vector<Score> m_scores;
};

#endif  // GRADIX_RESULTSJOIN_H
