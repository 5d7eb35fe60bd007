// What we know of Sakai.
#include "Systems/Systems.h"

namespace {

constexpr SystemFormat kFormats[] = {{.key = "sakai"}};

}  // namespace

const LearningSystem kSakaiSystem = {
    .key = "sakai",
    .name = "Sakai",
    .formats = kFormats,
};
