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

// A current file is written from the class itself, but for the report, whose own choices are in its record.
bool _NeedsSession(const ExportChoices& choices) {
  return choices.dialect == Dialect::kClassic || choices.format->IsReport();
}

// The assignments by position: several may have one id.
std::unique_ptr<Session> _SessionOf(const OpenClass& openClass, const OwnExportChoices& chosen) {
  if (!_NeedsSession(chosen.choices)) return nullptr;
  ExportChoices choices = chosen.choices;
  choices.assignmentIDs.clear();
  for (const size_t row : chosen.assignments) {
    choices.assignmentIDs.push_back(openClass.record.assignments[row].id);
  }
  std::unique_ptr<Session> session = MakeSession(*choices.format);
  *session->GetClass() = openClass.record;
  Apply(choices, session.get());
  SelectAssignments(session->GetClass(), [&chosen](size_t row, const qz::AssignmentRecord&) {
    return std::ranges::binary_search(chosen.assignments, row);
  });
  return session;
}

ExportSubject _SubjectOf(const OpenClass& openClass, const Session* session, const OwnExportChoices& chosen) {
  const ExportChoices& choices = chosen.choices;
  if (session != nullptr) return MakeExportSubject(choices, *session, openClass.originals);
  ExportSubject subject = MakeExportSubject(*choices.format, openClass.Texts(), choices.identifier,
                                            choices.dialect, chosen.assignments);
  subject.delimiter = choices.delimiter;
  subject.useQuotes = choices.useQuotes;
  return subject;
}

}  // namespace

PreparedExport::PreparedExport(std::shared_ptr<const OpenClass> openClass, OwnExportChoices choices)
    : m_class(std::move(openClass)),
      m_choices(std::move(choices)),
      m_session(_SessionOf(*m_class, m_choices)),
      m_subject(_SubjectOf(*m_class, m_session.get(), m_choices)),
      m_found(CheckExport(m_subject)) {
  if (!m_subject.format->IsReport()) m_identifiers = CheckIdentifiers(m_subject);
  if (!CanWrite()) return;
  MemoryStream memory;
  if (memory.Stream() != nullptr && WriteTo(memory.Stream()).error == 0) m_bytes = memory.Text();
}

bool PreparedExport::HasRefusedIdentifiers() const {
  return !m_subject.format->IsReport() && (m_identifiers.AllEmpty() || m_identifiers.HasDuplicates());
}

bool PreparedExport::CanWrite() const {
  const bool mayBeEmpty = !m_subject.format->IsReport() && m_class->record.assignments.empty();
  return mayBeEmpty || !m_subject.assignments.empty();
}

FileOutcome PreparedExport::WriteTo(std::FILE* stream) {
  const bool isClassic = m_subject.dialect == Dialect::kClassic;
  return isClassic ? WriteExport(m_session.get(), stream) : WriteCurrentExport(m_subject, stream);
}

FileOutcome PreparedExport::Write(const std::string& path) {
  const bool isClassic = m_subject.dialect == Dialect::kClassic;
  return isClassic ? WriteExport(m_session.get(), path) : WriteCurrentExport(m_subject, path);
}

}  // namespace host
