// The detailed report, which no learning system reads: people do, in spreadsheets.
#include "Systems/Systems.h"

namespace {

constexpr SystemFormat kFormats[] = {{.key = "detailed"}};

}  // namespace

const LearningSystem kDetailedReport = {
    .key = "detailed",
    .name = "Detailed results",
    .formats = kFormats,
};
