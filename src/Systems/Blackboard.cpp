// What we know of Blackboard.
#include "Systems/Systems.h"

namespace {

constexpr SystemFormat kFormats[] = {{.key = "blackboard91"}, {.key = "blackboard8"}, {.key = "blackboard6"}};

}  // namespace

const LearningSystem kBlackboardSystem = {
    .key = "blackboard",
    .name = "Blackboard",
    .formats = kFormats,
};
