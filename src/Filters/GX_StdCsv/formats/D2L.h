// The gradebook file of Brightspace by D2L.
#ifndef GRADIX_FORMATS_D2L_H
#define GRADIX_FORMATS_D2L_H

#include "Filters/GX_StdCsv/GradebookSession.h"

inline constexpr GradebookColumn kD2LStudent[] = {{.title = "OrgDefinedId", .cell = "{identifier}"}};
inline constexpr GradebookColumn kD2LEnd[] = {{.title = "End-of-Line Indicator", .cell = "#"}};

inline constexpr GradebookLayout kD2L = {
    .leading = kD2LStudent,
    .score = {.title = "{name} Points Grade", .cell = "{points}"},
    .trailing = kD2LEnd,
    .titleSeparator = ", ",
};

class SessionD2L final : public LayoutSession<kD2L> {
  using LayoutSession::LayoutSession;
};

#endif  // GRADIX_FORMATS_D2L_H
