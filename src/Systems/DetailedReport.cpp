// The detailed report, which no learning system reads: people do, in spreadsheets.
#include "Systems/CurrentFile.h"
#include "Systems/Systems.h"

namespace {

// Findings

CheckRules _Rules(const ExportSubject& /*subject*/) {
  CheckRules rules;
  rules.scoreNoNumber = Consequence::kNote;  // nobody computes with it
  return rules;
}

// Current file

constexpr CurrentFile kCurrent = {
    .encoding = TextEncoding::kUtf8WithBom,
    .takesSemicolons = true,
    .hasDecimalCommas = true,
};

constexpr SystemFormat kFormats[] = {{.key = "detailed", .current = &kCurrent}};

}  // namespace

const LearningSystem kDetailedReport = {
    .key = "detailed",
    .name = "Detailed results",
    .formats = kFormats,
    .rules = _Rules,
};
