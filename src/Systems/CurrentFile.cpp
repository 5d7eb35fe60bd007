#include "Systems/CurrentFile.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "Common/number.h"
#include "Filters/GX_StdCsv/CsvOutput.h"
#include "Filters/GX_StdCsv/GradebookWalk.h"
#include "Filters/GX_StdCsv/ReportWalk.h"
#include "Tables/DelimitedTable.h"

namespace {

// The lines of the file on their way into the stream.
class Lines {
 public:
  Lines(const CurrentFile& current, char delimiter, std::FILE* file)
      : m_current(current),
        m_delimiter(delimiter),
        m_decimalPoint(current.hasDecimalCommas && delimiter == ';' ? ',' : '.'),
        m_file(file) {
    Write(ByteOrderMark(current.encoding));
  }

  // Begins a cell, which stays empty unless something is added to it.
  void Separate() {
    if (!m_startOfLine) m_text += m_delimiter;
    m_startOfLine = false;
  }

  void AddText(std::string_view text) { AppendCell(&m_text, text, true, m_delimiter); }
  void AddNumber(std::string_view number) {
    AppendCell(&m_text, number, m_current.quotesNumbers, m_delimiter);
  }

  void EndLine() {
    constexpr size_t kBlock = size_t{64} * 1024;
    m_text += '\n';
    m_startOfLine = true;
    if (m_text.size() >= kBlock) Flush();
  }

  // Returns 0, or the errno value of what went wrong first.
  int Finish() {
    Flush();
    errno = 0;
    if (std::fflush(m_file) != 0 && m_error == 0) m_error = StreamError();
    return m_error;
  }

  std::string Plain(double number) const {
    std::string text = PlainNumber(number, m_current.maxDecimals);
    std::replace(text.begin(), text.end(), '.', m_decimalPoint);
    return text;
  }

 private:
  void Flush() {
    Write(EncodeText(m_text, m_current.encoding));
    m_text.clear();
  }

  void Write(std::string_view bytes) {
    if (bytes.empty()) return;
    errno = 0;
    const size_t written = std::fwrite(bytes.data(), 1, bytes.size(), m_file);
    if (written != bytes.size() && m_error == 0) m_error = StreamError();
  }

  const CurrentFile& m_current;
  const char m_delimiter;
  const char m_decimalPoint;
  std::FILE* m_file;
  std::string m_text;  // UTF-8
  bool m_startOfLine = true;
  int m_error = 0;
};

bool _IsDigits(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

qz::UserIDField _IdentifierField(const CurrentFile& current, qz::UserIDField chosen) {
  return current.identifierField != nullptr ? current.identifierField(chosen) : chosen;
}

// A cell is text as soon as there is a piece of text in it.
class GradebookOutput {
 public:
  GradebookOutput(const CurrentFile& current, const ExportSubject& subject, Lines* lines)
      : m_current(current),
        m_subject(subject),
        m_identifier(qz::FindStudentField(_IdentifierField(current, subject.identifier))),
        m_lines(*lines) {}

  void BeginTitle(const GradebookColumn&) { Begin(); }
  void EndTitle(const GradebookColumn&) { End(); }
  void BeginCell(const GradebookColumn&) { Begin(); }
  void EndCell(const GradebookColumn&) { End(); }

  void EmptyCell() {
    Begin();
    End();
  }

  void NoScore() {
    m_lines.Separate();
    m_lines.AddNumber(m_current.layout->noScore);
  }

  void Text(std::string_view text) {
    m_isText = m_isText || !text.empty();
    m_cell += text;
  }
  void Field(size_t student, const qz::StudentField& field) { Text(m_subject.texts.Student(student, field)); }
  void Identifier(size_t student) {
    const std::string identifier = m_subject.texts.Student(student, m_identifier);
    if (_IsDigits(identifier)) Text(m_current.numericIdPrefix);
    Text(identifier);
  }
  void Name(size_t assignment) { Text(m_subject.titles[assignment]); }

  void Integer(int32_t value) { Number(value); }
  void Number(double value) {
    m_cell += std::isfinite(value) ? m_lines.Plain(value) : m_current.layout->noScore;
  }

  void EndLine() { m_lines.EndLine(); }

 private:
  void Begin() {
    m_lines.Separate();
    m_cell.clear();
    m_isText = false;
  }

  void End() {
    if (m_isText) {
      m_lines.AddText(m_cell);
    } else {
      m_lines.AddNumber(m_cell);
    }
  }

  const CurrentFile& m_current;
  const ExportSubject& m_subject;
  const qz::StudentField& m_identifier;
  Lines& m_lines;
  std::string m_cell;
  bool m_isText = false;
};

class ReportOutput {
 public:
  ReportOutput(const ExportSubject& subject, Lines* lines)
      : m_texts(subject.texts), m_assignment(subject.assignments.front()), m_lines(*lines) {}

  void Title(const qz::StudentField& field) {
    if (Has(field)) AddField(m_texts.FieldTitle(field));
  }
  void NoValue(const qz::StudentField& field) {
    if (Has(field)) AddField({});
  }
  void Value(const qz::StudentRecord& student, const qz::StudentField& field) {
    if (Has(field)) AddField(m_texts.Student(PositionIn(Record().students, student), field));
  }

  void Separate() { m_lines.Separate(); }

  void Answer(size_t question) {
    m_lines.AddText(m_texts.Question(m_assignment, question, qz::QuestionText::kAnswer));
  }
  void Response(const char* mark, const qz::ResultsRecord& results, const qz::ResponseRecord& response) {
    const size_t position = PositionIn(Record().assignments[m_assignment].results, results);
    const std::string text =
        m_texts.Response(m_assignment, position, PositionIn(results.responses, response));
    m_lines.AddText(std::string(mark).append(text));
  }
  void Integer(int32_t value) { Number(value); }
  void Number(double value) {
    m_lines.AddNumber(std::isfinite(value) ? m_lines.Plain(value) : std::string());
  }

  void EndLine() { m_lines.EndLine(); }

 private:
  template <typename T>
  static size_t PositionIn(const std::vector<T>& records, const T& record) {
    return static_cast<size_t>(&record - records.data());
  }

  const qz::ClassRecord& Record() const { return m_texts.Record(); }
  bool Has(const qz::StudentField& field) const {
    return (static_cast<uint32_t>(Record().optionValue) & field.reportBit) != 0;
  }

  void AddField(const std::string& text) {
    m_lines.Separate();
    if (!text.empty()) m_lines.AddText(text);
  }

  const qz::ClassTexts& m_texts;
  const size_t m_assignment;
  Lines& m_lines;
};

void _WriteGradebook(const CurrentFile& current, const ExportSubject& subject, Lines* lines) {
  Assignments assignments;
  for (const size_t position : subject.assignments) {
    assignments.push_back(&subject.texts.Record().assignments[position]);
  }
  GradebookOutput output(current, subject, lines);
  GradebookWalk walk(*current.layout, assignments, &output);
  walk.WriteHeader();
  for (const size_t student : subject.students) walk.WriteRow(student, subject.scores.ScoresOf(student));
}

void _WriteReport(const ExportSubject& subject, Lines* lines) {
  if (subject.assignments.empty()) return;
  const qz::ClassRecord& record = subject.texts.Record();
  ReportOutput output(subject, lines);
  ReportWalk(record, record.assignments[subject.assignments.front()], &output).Write();
}

}  // namespace

int WriteCurrentFile(const CurrentFile& current, const ExportSubject& subject, std::FILE* file) {
  Lines lines(current, subject.delimiter, file);
  if (current.layout != nullptr) {
    _WriteGradebook(current, subject, &lines);
  } else {
    _WriteReport(subject, &lines);
  }
  return lines.Finish();
}
