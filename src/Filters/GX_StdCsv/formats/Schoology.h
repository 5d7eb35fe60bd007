// The gradebook file of Schoology.
#ifndef GRADIX_FORMATS_SCHOOLOGY_H
#define GRADIX_FORMATS_SCHOOLOGY_H

#include "Filters/GX_StdCsv/GradebookSession.h"

inline constexpr GradebookColumn kSchoologyStudent[] = {{.title = "User Unique ID", .cell = "{identifier}"}};

inline constexpr GradebookLayout kSchoology = {
    .leading = kSchoologyStudent,
    .score = {.title = "{name}", .cell = "{points}"},
};

class SessionSchoology final : public LayoutSession<kSchoology> {
  using LayoutSession::LayoutSession;
};

#endif  // GRADIX_FORMATS_SCHOOLOGY_H
