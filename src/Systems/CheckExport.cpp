#include <algorithm>

#include "Systems/CommonFindings.h"
#include "Systems/LearningSystem.h"
#include "Systems/ScoreFindings.h"

namespace {

void _FindNothingToExport(ExportCheck* check) {
  if (check->subject.dialect == Dialect::kFilled) return;  // a gradebook with nothing to fill in is no file
  if (check->subject.assignments.empty()) check->AddForFile("no-assignments", check->rules.noAssignments);
  if (check->Record().students.empty()) check->AddForFile("no-students", Consequence::kNote);
}

}  // namespace

Findings CheckExport(const ExportSubject& subject) {
  const LearningSystem& system = SystemOf(*subject.format);
  ExportCheck check(subject);
  if (system.rules != nullptr) check.rules = system.rules(subject);
  // The other files leave out what is no number.
  if (subject.dialect != Dialect::kClassic && !subject.format->IsReport()) {
    check.rules.scoreNoNumber = Consequence::kLost;
  }
  _FindNothingToExport(&check);
  FindDialogFaults(&check);
  FindIdentifierFaults(&check);
  FindTitleFaults(&check);
  FindTextFaults(&check);
  FindScoreFaults(&check);
  if (system.check != nullptr) system.check(&check);
  std::ranges::stable_sort(check.findings, {}, &Finding::consequence);
  return std::move(check.findings);
}
