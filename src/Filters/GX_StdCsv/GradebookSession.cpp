#include "Filters/GX_StdCsv/GradebookSession.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <vector>

#include "Filters/GX_StdCsv/CsvOutput.h"
#include "Filters/GX_StdCsv/ResultsJoin.h"

namespace {

using Assignments = std::vector<const qz::AssignmentRecord*>;

Assignments _SelectedAssignments(const qz::ClassRecord& record) {
  Assignments selected;
  for (const qz::AssignmentRecord& assignment : record.assignments) {
    if (assignment.selected) selected.push_back(&assignment);
  }
  return selected;
}

// Saturates at 32 bits.
int32_t _PointsPossible(const Assignments& assignments) {
  int64_t total = 0;
  for (const qz::AssignmentRecord* assignment : assignments) total += assignment->pointsPossible;
  using Limits = std::numeric_limits<int32_t>;
  return static_cast<int32_t>(std::clamp<int64_t>(total, Limits::min(), Limits::max()));
}

// A gradebook while it is written.
class Gradebook {
 public:
  Gradebook(std::FILE* file, const GradebookLayout& layout, const qz::ClassRecord& record, bool useQuotes)
      : m_file(file),
        m_layout(layout),
        m_class(record),
        m_identifier(qz::FindStudentField(record.userIDField)),
        m_useQuotes(useQuotes || !layout.quotesAreOptional),
        m_assignments(_SelectedAssignments(record)) {}

  void Write() {
    WriteTitles();
    if (m_layout.pointsPossibleTitle != nullptr) WritePointsPossible();
    const ScoreTable scores(m_class.students, m_assignments);
    for (size_t position = 0; position < m_class.students.size(); ++position) {
      WriteRow(m_class.students[position], scores.ScoresOf(position));
    }
  }

 private:
  // What the names in patterns stand for; a cell or title finds those set that it may name.
  struct Values {
    const qz::StudentRecord* student = nullptr;
    const qz::AssignmentRecord* assignment = nullptr;
    int32_t pointsPossible = 0;
    double points = 0.0;
    double runningTotal = 0.0;
  };

  void WriteTitles() {
    const Values values{.pointsPossible = _PointsPossible(m_assignments)};
    for (const GradebookColumn& column : m_layout.leading) WriteTitle(column, values);
    for (const qz::AssignmentRecord* assignment : m_assignments) {
      WriteTitle(m_layout.score, {.assignment = assignment, .pointsPossible = assignment->pointsPossible});
    }
    for (const GradebookColumn& column : m_layout.trailing) WriteTitle(column, values);
    EndLine();
  }

  void WritePointsPossible() {
    Separate(",");
    WriteText(m_file, m_layout.pointsPossibleTitle);
    for (size_t i = 1; i < m_layout.leading.size(); ++i) Separate(",");
    for (const qz::AssignmentRecord* assignment : m_assignments) {
      Separate(",");
      WriteNumber(m_file, assignment->pointsPossible);
    }
    for (size_t i = 0; i < m_layout.trailing.size(); ++i) Separate(",");
    EndLine();
  }

  void WriteRow(const qz::StudentRecord& student, std::span<const ScoreTable::Score> scores) {
    Values values{.student = &student};
    for (const GradebookColumn& column : m_layout.leading) WriteCell(column, values);
    auto score = scores.begin();
    for (size_t i = 0; i < m_assignments.size(); ++i) {
      if (score == scores.end() || score->assignment != i) {
        WriteNoScore();
        continue;
      }
      values.assignment = m_assignments[i];
      values.points = score->points;
      WriteCell(m_layout.score, values);
      if (!std::isnan(values.runningTotal))
        values.runningTotal += values.points;  // of two NaNs the first stays
      ++score;
    }
    for (const GradebookColumn& column : m_layout.trailing) WriteCell(column, values);
    EndLine();
  }

  void WriteTitle(const GradebookColumn& column, const Values& values) {
    Separate(m_layout.titleSeparator);
    WriteQuote(column, Quotes::kTitle);
    WritePattern(column.title, values);
    WriteQuote(column, Quotes::kTitle);
  }

  void WriteCell(const GradebookColumn& column, const Values& values) {
    Separate(",");
    WriteQuote(column, Quotes::kCells);
    WritePattern(column.cell, values);
    WriteQuote(column, Quotes::kCells);
  }

  void WriteNoScore() {
    Separate(",");
    WriteQuote(m_layout.score, Quotes::kCells);
    WriteText(m_file, m_layout.noScore);
    WriteQuote(m_layout.score, Quotes::kCells);
  }

  void WritePattern(const Pattern& pattern, const Values& values) {
    for (const Pattern::Piece& piece : pattern.Pieces()) {
      switch (piece.value) {
        case Pattern::Value::kText: WriteText(m_file, piece.text); break;
        case Pattern::Value::kField: WriteSafe(piece.field->Value(*values.student)); break;
        case Pattern::Value::kIdentifier: WriteSafe(m_identifier.Value(*values.student)); break;
        case Pattern::Value::kName: WriteSafe(values.assignment->name); break;
        case Pattern::Value::kPointsPossible: WriteInteger(m_file, values.pointsPossible); break;
        case Pattern::Value::kPoints: WriteNumber(m_file, values.points); break;
        case Pattern::Value::kPercent: WriteNumber(m_file, Percent(values)); break;
        case Pattern::Value::kRunningTotal: WriteNumber(m_file, values.runningTotal); break;
      }
    }
  }

  static double Percent(const Values& values) {
    const int32_t possible = values.assignment->pointsPossible;
    return possible > 0 ? 100.0 * values.points / possible : 0.0;
  }

  void WriteSafe(const std::string& text) { Session::WriteSafeCSVString(m_file, text.c_str()); }

  void WriteQuote(const GradebookColumn& column, Quotes where) {
    if (m_useQuotes && (column.quotes == where || column.quotes == Quotes::kBoth))
      WriteCharacter(m_file, '"');
  }

  void Separate(std::string_view separator) {
    if (!m_startOfLine) WriteText(m_file, separator);
    m_startOfLine = false;
  }

  void EndLine() {
    WriteCharacter(m_file, '\n');
    m_startOfLine = true;
  }

  std::FILE* m_file;
  const GradebookLayout& m_layout;
  const qz::ClassRecord& m_class;
  const qz::StudentField& m_identifier;
  const bool m_useQuotes;
  const Assignments m_assignments;
  bool m_startOfLine = true;
};

}  // namespace

void GradebookSession::Write(std::FILE* file) {
  Gradebook(file, Layout(), Class(), m_bUseQuotes).Write();
}
