#include "Filters/GX_StdCsv/GradebookSession.h"

#include "Filters/GX_StdCsv/CsvOutput.h"
#include "Filters/GX_StdCsv/GradebookWalk.h"
#include "Filters/GX_StdCsv/ResultsJoin.h"

namespace {

Assignments _SelectedAssignments(const qz::ClassRecord& record) {
  Assignments selected;
  for (const qz::AssignmentRecord& assignment : record.assignments) {
    if (assignment.selected) selected.push_back(&assignment);
  }
  return selected;
}

// Quotes are where the layout has them, and numbers are "%g".
class ClassicOutput {
 public:
  ClassicOutput(std::FILE* file, const GradebookLayout& layout, const qz::ClassRecord& record,
                const Assignments& assignments, bool useQuotes)
      : m_file(file),
        m_layout(layout),
        m_students(record.students),
        m_identifier(qz::FindStudentField(record.userIDField)),
        m_assignments(assignments),
        m_useQuotes(useQuotes || !layout.quotesAreOptional) {}

  void BeginTitle(const GradebookColumn& column) {
    Separate(m_layout.titleSeparator);
    WriteQuote(column, Quotes::kTitle);
  }
  void EndTitle(const GradebookColumn& column) { WriteQuote(column, Quotes::kTitle); }

  void BeginCell(const GradebookColumn& column) {
    Separate(",");
    WriteQuote(column, Quotes::kCells);
  }
  void EndCell(const GradebookColumn& column) { WriteQuote(column, Quotes::kCells); }

  void EmptyCell() { Separate(","); }

  void NoScore() {
    BeginCell(m_layout.score);
    Text(m_layout.noScore);
    EndCell(m_layout.score);
  }

  void Text(std::string_view text) { WriteText(m_file, text); }
  void Field(size_t student, const qz::StudentField& field) { WriteSafe(field.Value(m_students[student])); }
  void Identifier(size_t student) { Field(student, m_identifier); }
  void Name(size_t assignment) { WriteSafe(m_assignments[assignment]->name); }
  void Integer(int32_t value) { WriteInteger(m_file, value); }
  void Number(double value) { WriteNumber(m_file, value); }

  void EndLine() {
    WriteCharacter(m_file, '\n');
    m_startOfLine = true;
  }

 private:
  void WriteSafe(const std::string& text) { Session::WriteSafeCSVString(m_file, text.c_str()); }

  void WriteQuote(const GradebookColumn& column, Quotes where) {
    if (m_useQuotes && (column.quotes == where || column.quotes == Quotes::kBoth))
      WriteCharacter(m_file, '"');
  }

  void Separate(std::string_view separator) {
    if (!m_startOfLine) WriteText(m_file, separator);
    m_startOfLine = false;
  }

  std::FILE* m_file;
  const GradebookLayout& m_layout;
  const std::vector<qz::StudentRecord>& m_students;
  const qz::StudentField& m_identifier;
  const Assignments& m_assignments;
  const bool m_useQuotes;
  bool m_startOfLine = true;
};

}  // namespace

void GradebookSession::Write(std::FILE* file) {
  const Assignments assignments = _SelectedAssignments(Class());
  ClassicOutput output(file, Layout(), Class(), assignments, m_bUseQuotes);
  GradebookWalk walk(Layout(), assignments, &output);
  walk.WriteHeader();
  const ScoreTable scores(Class().students, assignments);
  for (size_t i = 0; i < Class().students.size(); ++i) walk.WriteRow(i, scores.ScoresOf(i));
}
