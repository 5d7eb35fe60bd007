#include "Export/ExportChoices.h"

#include <algorithm>

#include "Export/AssignmentSelection.h"
#include "Filters/GX_StdCsv/Session.h"

namespace {

bool _Has(const std::vector<int32_t>& ids, int32_t id) {
  return std::find(ids.begin(), ids.end(), id) != ids.end();
}

bool _Has(const qz::ClassRecord& record, int32_t id) {
  return std::any_of(record.assignments.begin(), record.assignments.end(),
                     [id](const qz::AssignmentRecord& assignment) { return assignment.id == id; });
}

AppliedChoices _Select(const ExportChoices& choices, qz::ClassRecord* record) {
  const std::vector<int32_t>& ids = choices.assignmentIDs;
  for (const int32_t id : ids) {
    if (!_Has(*record, id)) return {ChoiceFault::kUnknownAssignment, id, 0};
  }
  const size_t selected = SelectAssignments(record, [&ids](size_t, const qz::AssignmentRecord& assignment) {
    return ids.empty() || _Has(ids, assignment.id);
  });
  // Several assignments of one id are one choice: the report takes the first.
  const size_t chosen = ids.empty() ? record->assignments.size() : ids.size();
  const bool isFault = choices.format->IsReport() && chosen != 1;
  return {isFault ? ChoiceFault::kNotOneAssignment : ChoiceFault::kNone, 0, selected};
}

}  // namespace

std::unique_ptr<Session> MakeSession(const FormatRow& format) {
  QZEXPORTBEGIN begin{};
  begin.formatIndex = format.index;
  return format.make(&begin);
}

AppliedChoices Apply(const ExportChoices& choices, Session* session) {
  qz::ClassRecord* record = session->GetClass();
  const AppliedChoices applied = _Select(choices, record);
  if (applied.fault != ChoiceFault::kNone) return applied;
  record->userIDField = choices.identifier;
  record->optionValue = static_cast<int32_t>(choices.report.fields);
  record->options = choices.report.options;
  session->m_bUseQuotes = choices.useQuotes;
  return applied;
}

ExportSubject MakeExportSubject(const ExportChoices& choices, const Session& session,
                                const qz::OriginalTexts& originals) {
  const qz::ClassTexts texts(session.Class(), originals);
  ExportSubject subject = MakeExportSubject(*choices.format, texts, choices.identifier, choices.dialect);
  subject.delimiter = choices.delimiter;
  subject.useQuotes = choices.useQuotes;
  return subject;
}
