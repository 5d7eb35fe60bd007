// What we know of Schoology.
#include "Systems/Systems.h"

namespace {

constexpr SystemFormat kFormats[] = {{.key = "schoology"}};

}  // namespace

const LearningSystem kSchoologySystem = {
    .key = "schoology",
    .name = "Schoology",
    .formats = kFormats,
};
