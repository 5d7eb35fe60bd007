// What we know of WebCT.
#include "Systems/Systems.h"

namespace {

constexpr SystemFormat kFormats[] = {{.key = "webct"}};

}  // namespace

const LearningSystem kWebCTSystem = {
    .key = "webct",
    .name = "WebCT",
    .formats = kFormats,
    .isRetired = true,
};
