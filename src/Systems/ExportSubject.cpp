#include "Systems/ExportSubject.h"

ExportSubject MakeExportSubject(const FormatRow& format, const qz::ClassTexts& texts,
                                qz::UserIDField identifier, Dialect dialect) {
  const qz::ClassRecord& record = texts.Record();
  ExportSubject subject{.format = &format, .texts = texts, .identifier = identifier, .dialect = dialect};
  const qz::StudentField& field = qz::FindStudentField(identifier);
  const bool needsIdentifier = dialect == Dialect::kCurrent && !format.IsReport();
  for (size_t i = 0; i < record.students.size(); ++i) {
    if (!needsIdentifier || !field.Value(record.students[i]).empty()) subject.students.push_back(i);
  }
  std::vector<const qz::AssignmentRecord*> selected;
  for (size_t i = 0; i < record.assignments.size(); ++i) {
    if (!record.assignments[i].selected) continue;
    selected.push_back(&record.assignments[i]);
    subject.assignments.push_back(i);
    subject.titles.push_back(texts.AssignmentName(i));
  }
  subject.scores = ScoreTable(record.students, selected);
  return subject;
}
