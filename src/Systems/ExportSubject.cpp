#include "Systems/ExportSubject.h"

#include <utility>

ExportSubject MakeExportSubject(const FormatRow& format, const qz::ClassTexts& texts,
                                qz::UserIDField identifier, Dialect dialect,
                                std::vector<size_t> assignments) {
  const qz::ClassRecord& record = texts.Record();
  ExportSubject subject{.format = &format, .texts = texts, .identifier = identifier, .dialect = dialect};
  const qz::StudentField& field = qz::FindStudentField(identifier);
  const bool needsIdentifier = dialect == Dialect::kCurrent && !format.IsReport();
  for (size_t i = 0; i < record.students.size(); ++i) {
    if (!needsIdentifier || !field.Value(record.students[i]).empty()) subject.students.push_back(i);
  }
  subject.assignments = std::move(assignments);
  std::vector<const qz::AssignmentRecord*> exported;
  for (const size_t position : subject.assignments) {
    exported.push_back(&record.assignments[position]);
    subject.titles.push_back(texts.AssignmentName(position));
  }
  subject.scores = ScoreTable(record.students, exported);
  return subject;
}

ExportSubject MakeExportSubject(const FormatRow& format, const qz::ClassTexts& texts,
                                qz::UserIDField identifier, Dialect dialect) {
  const std::vector<qz::AssignmentRecord>& assignments = texts.Record().assignments;
  std::vector<size_t> selected;
  for (size_t i = 0; i < assignments.size(); ++i) {
    if (assignments[i].selected) selected.push_back(i);
  }
  return MakeExportSubject(format, texts, identifier, dialect, std::move(selected));
}
