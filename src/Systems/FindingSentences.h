// The sentences of findings in both languages, as a table.
//
// In them stand
//   {system}, {id}, {field}   the system's name, what it calls its identifier, the student field chosen for
//   it {count}                   how many places the finding has {1}, {2}                  the finding's
//   arguments <one|many>                the first for one place, the second for any other number
//   {current?with:else:without}   the first where there is a current file to choose instead, else the second
#ifndef GRADIX_SYSTEMS_FINDINGSENTENCES_H
#define GRADIX_SYSTEMS_FINDINGSENTENCES_H

#include <optional>
#include <span>
#include <string_view>

#include "Systems/Finding.h"

struct FindingWords {
  const char* what;
  const char* advice = "";
};

struct FindingSentences {
  const char* code;
  std::optional<Consequence> consequence = {};  // nothing: any
  const char* system = nullptr;                 // LearningSystem::key; null: any
  FindingWords english;
  FindingWords spanish;
};

// Of what CheckExport finds.
std::span<const FindingSentences> CheckSentences();

// Of what CheckAgainstGradebook finds.
std::span<const FindingSentences> GradebookSentences();

// The first row that fits, or null.
const FindingSentences* FindSentences(const Finding& finding, std::string_view system);

#endif  // GRADIX_SYSTEMS_FINDINGSENTENCES_H
