// What we know of Brightspace.
#include "Systems/Systems.h"

namespace {

constexpr SystemFormat kFormats[] = {{.key = "d2l"}};

}  // namespace

const LearningSystem kBrightspaceSystem = {
    .key = "brightspace",
    .name = "Brightspace",
    .formats = kFormats,
};
