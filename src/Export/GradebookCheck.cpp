#include "Export/GradebookCheck.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <string_view>
#include <vector>

#include "Systems/GradebookMatch.h"
#include "Systems/LearningSystem.h"
#include "Systems/UploadRules.h"

namespace {

bool _Has(std::span<const char* const> codes, const Finding& finding) {
  return std::ranges::any_of(codes, [&finding](std::string_view code) { return code == finding.code; });
}

// By position in ClassRecord::assignments: whether the gradebook has its column.
std::vector<bool> _AssignmentsWithColumn(const ExportSubject& subject, const GradebookMatch& match) {
  std::vector<bool> has(subject.texts.Record().assignments.size());
  for (size_t i = 0; i < subject.assignments.size(); ++i) {
    has[subject.assignments[i]] = match.columnOf[i] != GradebookMatch::kNone;
  }
  return has;
}

}  // namespace

Findings CheckExport(const ExportSubject& subject, const Gradebook& gradebook) {
  static constexpr UploadRules kNoRules = {};
  const UploadRules& rules = gradebook.system->upload != nullptr ? *gradebook.system->upload : kNoRules;
  const GradebookMatch match = MatchGradebook(subject, gradebook, {.matchNames = rules.matchesNames});
  const std::vector<bool> hasColumn = _AssignmentsWithColumn(subject, match);
  Findings findings = CheckExport(subject);
  std::erase_if(findings, [&](Finding& finding) {
    if (_Has(rules.superseded, finding)) return true;
    if (!_Has(rules.ofNewColumns, finding)) return false;
    std::erase_if(finding.places, [&hasColumn](const FindingPlace& place) {
      return place.assignment != FindingPlace::kNone && hasColumn[place.assignment];
    });
    return finding.places.empty();
  });
  std::ranges::move(CheckAgainstGradebook(subject, gradebook, match), std::back_inserter(findings));
  std::ranges::stable_sort(findings, {}, &Finding::consequence);
  return findings;
}
