// The gradebook file of ANGEL: percentages instead of points.
#ifndef GRADIX_FORMATS_ANGEL_H
#define GRADIX_FORMATS_ANGEL_H

#include "Filters/GX_StdCsv/GradebookSession.h"

inline constexpr GradebookColumn kANGELStudent[] = {
    {.title = "Name", .cell = "{last-name}, {first-name}", .quotes = Quotes::kCells},
    {.title = "User ID", .cell = "{identifier}"},
};

inline constexpr GradebookLayout kANGEL = {
    .leading = kANGELStudent,
    .score = {.title = "{name}", .cell = "{percent}", .quotes = Quotes::kTitle},
};

class SessionANGEL final : public LayoutSession<kANGEL> {
  using LayoutSession::LayoutSession;
};

#endif  // GRADIX_FORMATS_ANGEL_H
