// What we know of ANGEL.
#include "Systems/Systems.h"

namespace {

constexpr SystemFormat kFormats[] = {{.key = "angel"}};

}  // namespace

const LearningSystem kANGELSystem = {
    .key = "angel",
    .name = "ANGEL",
    .formats = kFormats,
    .isRetired = true,
};
