#include "Host/Preview/PreparedExport.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "Export/AssignmentSelection.h"
#include "Export/ExportWriter.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

// What is written to the stream of its own, in memory.
class MemoryStream {
 public:
  MemoryStream() : m_stream(open_memstream(&m_text, &m_size)) {}
  ~MemoryStream() {
    if (m_stream != nullptr) std::fclose(m_stream);
    std::free(m_text);
  }
  MemoryStream(const MemoryStream&) = delete;
  MemoryStream& operator=(const MemoryStream&) = delete;

  std::FILE* Stream() const { return m_stream; }  // null without memory
  std::string Text() {
    const bool isWhole = std::fflush(m_stream) == 0;
    return isWhole ? std::string(m_text, m_size) : std::string();
  }

 private:
  char* m_text = nullptr;
  size_t m_size = 0;
  std::FILE* m_stream;
};

ExportSubject _SubjectOf(const OpenClass& openClass, const OwnExportChoices& chosen) {
  const ExportChoices& choices = chosen.choices;
  ExportSubject subject = MakeExportSubject(*choices.format, openClass.Texts(), choices.identifier,
                                            choices.dialect, chosen.assignments);
  subject.delimiter = choices.delimiter;
  subject.useQuotes = choices.useQuotes;
  return subject;
}

}  // namespace

bool OwnExportChoices::operator==(const OwnExportChoices& other) const {
  const ExportChoices& a = choices;
  const ExportChoices& b = other.choices;
  return a.format == b.format && a.identifier == b.identifier && a.dialect == b.dialect &&
         a.delimiter == b.delimiter && a.useQuotes == b.useQuotes && assignments == other.assignments;
}

PreparedExport::PreparedExport(std::shared_ptr<const OpenClass> openClass, OwnExportChoices choices)
    : m_class(std::move(openClass)),
      m_choices(std::move(choices)),
      m_subject(_SubjectOf(*m_class, m_choices)),
      m_found(CheckExport(m_subject)) {
  if (!m_subject.format->IsReport()) m_identifiers = CheckIdentifiers(m_subject);
  if (!CanWrite()) return;
  if (m_subject.dialect == Dialect::kClassic) PrepareSession();
  MemoryStream memory;
  if (memory.Stream() != nullptr && WriteTo(memory.Stream()).error == 0) m_bytes = memory.Text();
}

// The assignments by position: several may have one id.
void PreparedExport::PrepareSession() {
  m_session = MakeSession(*m_subject.format);
  *m_session->GetClass() = m_class->record;
  ExportChoices choices = m_choices.choices;
  choices.assignmentIDs.clear();
  for (const size_t row : m_choices.assignments) {
    choices.assignmentIDs.push_back(m_class->record.assignments[row].id);
  }
  Apply(choices, m_session.get());
  SelectAssignments(m_session->GetClass(), [this](size_t row, const qz::AssignmentRecord&) {
    return std::ranges::binary_search(m_choices.assignments, row);
  });
}

bool PreparedExport::HasRefusedIdentifiers() const {
  return !m_subject.format->IsReport() && (m_identifiers.AllEmpty() || m_identifiers.HasDuplicates());
}

bool PreparedExport::CanWrite() const {
  const bool mayBeEmpty = !m_subject.format->IsReport() && m_class->record.assignments.empty();
  return mayBeEmpty || !m_subject.assignments.empty();
}

FileOutcome PreparedExport::WriteTo(std::FILE* stream) {
  return m_session != nullptr ? WriteExport(m_session.get(), stream) : WriteCurrentExport(m_subject, stream);
}

FileOutcome PreparedExport::Write(const std::string& path) {
  return m_session != nullptr ? WriteExport(m_session.get(), path) : WriteCurrentExport(m_subject, path);
}

}  // namespace host
