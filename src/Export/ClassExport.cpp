#include "Export/ClassExport.h"

#include <utility>

#include "Export/ExportWriter.h"
#include "Systems/LearningSystem.h"

ClassExport::ClassExport(ClassFile file, const ExportChoices& choices, const ExportRules& rules)
    : m_choices(choices), m_file(std::move(file)), m_session(MakeSession(*choices.format)) {
  *m_session->GetClass() = std::exchange(m_file.record, {});
  m_obstacle = Prepare(rules);
}

ExportObstacle ClassExport::Prepare(const ExportRules& rules) {
  if (!m_file.IsRead()) return ExportObstacle::kClassFile;
  m_applied = Apply(m_choices, m_session.get());
  if (m_applied.fault != ChoiceFault::kNone) return ExportObstacle::kChoices;
  m_subject = MakeExportSubject(m_choices, *m_session, m_file.originals);
  if (!m_choices.format->IsReport()) m_identifiers = CheckIdentifiers(*m_subject);
  m_found = CheckExport(*m_subject);
  if (HasRefusedIdentifiers() && !rules.force) return ExportObstacle::kIdentifiers;
  if (HasTrouble(m_found) && rules.strict) return ExportObstacle::kTrouble;
  return ExportObstacle::kNone;
}

bool ClassExport::HasRefusedIdentifiers() const {
  return !m_choices.format->IsReport() && (m_identifiers.AllEmpty() || m_identifiers.HasDuplicates());
}

ExportCounts ClassExport::Counts() const {
  ExportCounts counts{m_subject->students.size(), m_subject->assignments.size()};
  for (const size_t student : m_subject->students)
    counts.scores += m_subject->scores.ScoresOf(student).size();
  return counts;
}

FileOutcome ClassExport::Write(const std::string& path) {
  if (m_choices.dialect == Dialect::kCurrent) return WriteCurrentExport(*m_subject, path);
  return WriteExport(m_session.get(), path);
}

FileOutcome ClassExport::Write(std::FILE* stream) {
  if (m_choices.dialect == Dialect::kCurrent) return WriteCurrentExport(*m_subject, stream);
  return WriteExport(m_session.get(), stream);
}
