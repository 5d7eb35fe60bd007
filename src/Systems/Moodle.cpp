// What we know of Moodle.
#include "Systems/Systems.h"

namespace {

constexpr SystemFormat kFormats[] = {{.key = "moodle"}};

}  // namespace

const LearningSystem kMoodleSystem = {
    .key = "moodle",
    .name = "Moodle",
    .formats = kFormats,
};
