// What we know of Schoology.
#include "Filters/GX_StdCsv/formats/Schoology.h"
#include "Systems/CurrentFile.h"
#include "Systems/Systems.h"

namespace {

// Current file

constexpr CurrentFile kCurrent = {.layout = &kSchoology, .quotesNumbers = true};

constexpr SystemFormat kFormats[] = {{.key = "schoology", .current = &kCurrent}};

}  // namespace

const LearningSystem kSchoologySystem = {
    .key = "schoology",
    .name = "Schoology",
    .formats = kFormats,
};
