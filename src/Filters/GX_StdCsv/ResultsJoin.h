// Joins the results of assignments to the students of the class: the answers of AssignmentRecord's
// FindResultsForStudent for every student, found in one walk over the results.
#ifndef GRADIX_RESULTSJOIN_H
#define GRADIX_RESULTSJOIN_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
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
  };

  ScoreTable() : ScoreTable({}, {}) {}  // of nobody
  ScoreTable(const std::vector<qz::StudentRecord>& students,
             const std::vector<const qz::AssignmentRecord*>& assignments);

  size_t Count() const { return m_scores.size(); }  // those of students who share an id once

  // The student's scores in the order of the assignments. `position` is that in the roster.
  std::span<const Score> ScoresOf(size_t position) const {
    const size_t number = m_roster.NumberAt(position);
    return std::span(m_scores).subspan(m_begins[number], m_begins[number + 1] - m_begins[number]);
  }

  // The student's points on one assignment, nothing without results.
  std::optional<double> Find(size_t position, size_t assignment) const;

 private:
  RosterIndex m_roster;
  std::vector<size_t> m_begins;  // by number of the student, and the end: where the scores begin
  std::vector<Score> m_scores;
};

#endif  // GRADIX_RESULTSJOIN_H
