// What we know of Canvas.
#include "Systems/Systems.h"

namespace {

constexpr SystemFormat kFormats[] = {{.key = "canvas"}};

}  // namespace

const LearningSystem kCanvasSystem = {
    .key = "canvas",
    .name = "Canvas",
    .formats = kFormats,
};
