// The one walk over a gradebook layout: which titles, cells and lines there are, in their order. How they are
// written is the output's business.
//
// An output has
//   BeginTitle(column), EndTitle(column), BeginCell(column), EndCell(column): around the parts of one
//   EmptyCell()                      a cell of the line of points possible
//   Text(text)                       of the layout
//   Field(student, field), Identifier(student), Name(assignment): texts of the class
//   Integer(int32_t), Number(double)
//   NoScore()                        the whole of a cell
//   EndLine()
// with students by their position in the class and assignments by theirs among those exported.
#ifndef GRADIX_GRADEBOOKWALK_H
#define GRADIX_GRADEBOOKWALK_H

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>
#include <vector>

#include "Common/QZData/QZClass.h"
#include "Filters/GX_StdCsv/GradebookLayout.h"
#include "Filters/GX_StdCsv/ResultsJoin.h"

using Assignments = std::vector<const qz::AssignmentRecord*>;

template <typename Output>
class GradebookWalk {
 public:
  // All outlive it.
  GradebookWalk(const GradebookLayout& layout, const Assignments& assignments, Output* output)
      : m_layout(layout), m_assignments(assignments), m_output(*output) {}

  void WriteHeader() {
    const Values values{.pointsPossible = TotalPointsPossible()};
    for (const GradebookColumn& column : m_layout.leading) WriteTitle(column, values);
    for (size_t i = 0; i < m_assignments.size(); ++i) {
      WriteTitle(m_layout.score, {.assignment = i, .pointsPossible = m_assignments[i]->pointsPossible});
    }
    for (const GradebookColumn& column : m_layout.trailing) WriteTitle(column, values);
    m_output.EndLine();
    if (m_layout.pointsPossibleTitle != nullptr) WritePointsPossible();
  }

  void WriteRow(size_t student, std::span<const ScoreTable::Score> scores) {
    Values values{.student = student};
    for (const GradebookColumn& column : m_layout.leading) WriteCell(column, values);
    auto score = scores.begin();
    for (size_t i = 0; i < m_assignments.size(); ++i) {
      if (score == scores.end() || score->assignment != i) {
        m_output.NoScore();
        continue;
      }
      values.assignment = i;
      values.points = score->points;
      WriteCell(m_layout.score, values);
      if (!std::isnan(values.runningTotal))
        values.runningTotal += values.points;  // of two NaNs the first stays
      ++score;
    }
    for (const GradebookColumn& column : m_layout.trailing) WriteCell(column, values);
    m_output.EndLine();
  }

 private:
  // What the names in patterns stand for; a cell or title finds those set that it may name.
  struct Values {
    size_t student = 0;
    size_t assignment = 0;
    int32_t pointsPossible = 0;
    double points = 0.0;
    double runningTotal = 0.0;
  };

  // Saturates at 32 bits.
  int32_t TotalPointsPossible() const {
    int64_t total = 0;
    for (const qz::AssignmentRecord* assignment : m_assignments) total += assignment->pointsPossible;
    using Limits = std::numeric_limits<int32_t>;
    return static_cast<int32_t>(std::clamp<int64_t>(total, Limits::min(), Limits::max()));
  }

  void WritePointsPossible() {
    static constexpr GradebookColumn kPlain{.title = "", .cell = ""};
    m_output.BeginCell(kPlain);
    m_output.Text(m_layout.pointsPossibleTitle);
    m_output.EndCell(kPlain);
    for (size_t i = 1; i < m_layout.leading.size(); ++i) m_output.EmptyCell();
    for (const qz::AssignmentRecord* assignment : m_assignments) {
      m_output.BeginCell(kPlain);
      m_output.Number(assignment->pointsPossible);
      m_output.EndCell(kPlain);
    }
    for (size_t i = 0; i < m_layout.trailing.size(); ++i) m_output.EmptyCell();
    m_output.EndLine();
  }

  void WriteTitle(const GradebookColumn& column, const Values& values) {
    m_output.BeginTitle(column);
    WritePattern(column.title, values);
    m_output.EndTitle(column);
  }

  void WriteCell(const GradebookColumn& column, const Values& values) {
    m_output.BeginCell(column);
    WritePattern(column.cell, values);
    m_output.EndCell(column);
  }

  void WritePattern(const Pattern& pattern, const Values& values) {
    for (const Pattern::Piece& piece : pattern.Pieces()) {
      switch (piece.value) {
        case Pattern::Value::kText: m_output.Text(piece.text); break;
        case Pattern::Value::kField: m_output.Field(values.student, *piece.field); break;
        case Pattern::Value::kIdentifier: m_output.Identifier(values.student); break;
        case Pattern::Value::kName: m_output.Name(values.assignment); break;
        case Pattern::Value::kPointsPossible: m_output.Integer(values.pointsPossible); break;
        case Pattern::Value::kPoints: m_output.Number(values.points); break;
        case Pattern::Value::kPercent: m_output.Number(Percent(values)); break;
        case Pattern::Value::kRunningTotal: m_output.Number(values.runningTotal); break;
      }
    }
  }

  double Percent(const Values& values) const {
    const int32_t possible = m_assignments[values.assignment]->pointsPossible;
    return possible > 0 ? 100.0 * values.points / possible : 0.0;
  }

  const GradebookLayout& m_layout;
  const Assignments& m_assignments;
  Output& m_output;
};

#endif  // GRADIX_GRADEBOOKWALK_H
