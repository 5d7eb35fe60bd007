// The file for upload.

#include <algorithm>
#include <cerrno>
#include <span>
#include <string>

#include "Export/Fill.h"
#include "Systems/LearningSystem.h"
#include "Tables/DelimitedTable.h"
#include "Tables/TextEncoding.h"

namespace {

class FillWriter {
 public:
  explicit FillWriter(const FillPlan& plan)
      : m_plan(plan), m_gradebook(*plan.gradebook), m_table(plan.gradebook->table), m_model(ModelColumn()) {}

  // The whole file, in UTF-8.
  std::string Text() {
    for (const size_t row : m_gradebook.headerRows) WriteHeaderRow(row);
    size_t begin = 0;
    while (begin < m_plan.cells.size()) {
      size_t end = begin;
      while (end < m_plan.cells.size() && m_plan.cells[end].student == m_plan.cells[begin].student) ++end;
      WriteStudent(std::span(m_plan.cells).subspan(begin, end - begin));
      begin = end;
    }
    return std::move(m_text);
  }

 private:
  // The column whose style new ones take: an item if there is one.
  size_t ModelColumn() const {
    const auto item = std::ranges::find(m_gradebook.columns, ColumnRole::kItem, &DownloadColumn::role);
    if (item == m_gradebook.columns.end()) return 0;
    return static_cast<size_t>(item - m_gradebook.columns.begin());
  }

  void WriteHeaderRow(size_t row) {
    for (const FillColumn& column : m_plan.columns) {
      if (column.column == GradebookMatch::kNone) {
        Put(row, m_model, NewHeaderText(row, column.assignment));
      } else {
        Put(row, column.column, m_table.Text(row, column.column));
      }
    }
    EndLine();
  }

  std::string NewHeaderText(size_t row, size_t assignment) const {
    const ExportSubject& subject = *m_plan.subject;
    const int32_t points = subject.texts.Record().assignments[subject.assignments[assignment]].pointsPossible;
    if (row == m_gradebook.headerRows.front()) {
      return m_gradebook.system->download->newTitle(subject.titles[assignment], points);
    }
    return row == m_gradebook.pointsRow ? m_gradebook.ScoreText(points) : "";
  }

  // A student with nothing but what is there already has no row, so that it cannot travel.
  void WriteStudent(std::span<const FillCell> cells) {
    if (std::ranges::none_of(cells, &FillCell::IsWritten)) return;
    const size_t member = m_plan.match.memberOf[cells.front().student];
    const size_t row = m_gradebook.members[member].row;
    auto cell = cells.begin();
    for (const FillColumn& column : m_plan.columns) {
      const size_t styled = column.column == GradebookMatch::kNone ? m_model : column.column;
      if (column.assignment != GradebookMatch::kNone && cell != cells.end() &&
          cell->assignment == column.assignment) {
        Put(row, styled, cell->newText);
        ++cell;
      } else {
        Put(row, styled, column.column == GradebookMatch::kNone ? "" : m_table.Text(row, column.column));
      }
    }
    EndLine();
  }

  // Quoted as the cell was; where the row has none, as the headings are.
  void Put(size_t row, size_t column, std::string_view text) {
    if (!m_startOfLine) m_text += m_table.style.separator;
    m_startOfLine = false;
    const size_t styled = column < m_table.CellCount(row) ? row : 0;
    AppendCell(&m_text, text, m_table.At(styled, column).quoted, m_table.style.separator);
  }

  void EndLine() {
    m_text += m_table.style.carriageReturns ? "\r\n" : "\n";
    m_startOfLine = true;
  }

  const FillPlan& m_plan;
  const Gradebook& m_gradebook;
  const DelimitedTable& m_table;
  const size_t m_model;
  std::string m_text;
  bool m_startOfLine = true;
};

int _Write(const FillPlan& plan, std::FILE* stream) {
  const TextEncoding encoding = plan.gradebook->table.style.encoding;
  std::string bytes(ByteOrderMark(encoding));
  bytes += EncodeText(FillWriter(plan).Text(), encoding);
  errno = 0;
  if (std::fwrite(bytes.data(), 1, bytes.size(), stream) == bytes.size() && std::fflush(stream) == 0)
    return 0;
  return errno != 0 ? errno : EIO;
}

}  // namespace

FileOutcome WriteFill(const FillPlan& plan, const std::string& path) {
  return WriteAtomicFile(path, [&plan](std::FILE* stream) { return _Write(plan, stream); });
}

FileOutcome WriteFill(const FillPlan& plan, std::FILE* stream) {
  FileOutcome outcome;
  outcome.begun = true;
  outcome.error = _Write(plan, stream);
  return outcome;
}
