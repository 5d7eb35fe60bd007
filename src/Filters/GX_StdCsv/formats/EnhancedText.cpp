#include "Filters/GX_StdCsv/formats/EnhancedText.h"

#include <algorithm>

#include "Common/QZData/StudentFields.h"
#include "Filters/GX_StdCsv/CommaSeparatedLine.h"
#include "Filters/GX_StdCsv/CsvOutput.h"
#include "Filters/GX_StdCsv/ReportWalk.h"

namespace {

class ClassicReport {
 public:
  ClassicReport(std::FILE* file, const qz::ClassRecord& record, const qz::AssignmentRecord& assignment)
      : m_file(file),
        m_class(record),
        m_assignment(assignment),
        m_line(file, static_cast<uint32_t>(record.optionValue)) {}

  void Title(const qz::StudentField& field) {
    m_line.InsertMaskedItem(field.Title(m_class).c_str(), field.reportBit);
  }
  void NoValue(const qz::StudentField& field) { m_line.InsertMaskedItem(nullptr, field.reportBit); }
  void Value(const qz::StudentRecord& student, const qz::StudentField& field) {
    m_line.InsertMaskedItem(field.Value(student).c_str(), field.reportBit);
  }

  void Separate() { m_line.InsertComma(); }

  void Answer(size_t question) { WriteQuoted("", m_assignment.questions[question].answer); }
  void Response(const char* mark, const qz::ResultsRecord&, const qz::ResponseRecord& response) {
    WriteQuoted(mark, response.text);
  }
  void Integer(int32_t value) { WriteInteger(m_file, value); }
  void Number(double value) { WriteNumber(m_file, value); }

  void EndLine() { m_line.InsertNewLine(); }

 private:
  void WriteQuoted(const char* mark, const std::string& text) {
    WriteText(m_file, "\"");
    WriteText(m_file, mark);
    Session::WriteSafeCSVString(m_file, text.c_str());
    WriteText(m_file, "\"");
  }

  std::FILE* m_file;
  const qz::ClassRecord& m_class;
  const qz::AssignmentRecord& m_assignment;
  CommaSeparatedLine m_line;
};

// The first selected assignment, or null.
const qz::AssignmentRecord* _ReportAssignment(const qz::ClassRecord& record) {
  const auto found = std::find_if(record.assignments.begin(), record.assignments.end(),
                                  [](const qz::AssignmentRecord& assignment) { return assignment.selected; });
  return found == record.assignments.end() ? nullptr : &*found;
}

}  // namespace

uint32_t SessionEnhancedText::Export(const char* path) {
  if (_ReportAssignment(Class()) == nullptr) return QZFILTER_FAILED;
  return Session::Export(path);
}

void SessionEnhancedText::Write(std::FILE* file) {
  const qz::AssignmentRecord* assignment = _ReportAssignment(Class());
  if (assignment == nullptr) return;
  ClassicReport output(file, Class(), *assignment);
  ReportWalk(Class(), *assignment, &output).Write();
}
