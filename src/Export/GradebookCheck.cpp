#include "Export/GradebookCheck.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "Systems/GradebookMatch.h"
#include "Systems/LearningSystem.h"
#include "Systems/UploadRules.h"

Findings CheckExport(const ExportSubject& subject, const Gradebook& gradebook) {
  Findings findings = CheckExport(subject);
  const UploadRules* rules = gradebook.system->upload;
  if (rules != nullptr) {
    std::erase_if(findings, [rules](const Finding& finding) {
      return std::ranges::any_of(rules->superseded,
                                 [&finding](std::string_view code) { return code == finding.code; });
    });
  }
  const GradebookMatch match =
      MatchGradebook(subject, gradebook, {.matchNames = rules != nullptr && rules->matchesNames});
  Findings told = CheckAgainstGradebook(subject, gradebook, match);
  std::ranges::move(told, std::back_inserter(findings));
  std::ranges::stable_sort(findings, {}, &Finding::consequence);
  return findings;
}
