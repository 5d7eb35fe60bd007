// The gradebook file of Canvas: two header lines, and a section that stays empty.
#ifndef GRADIX_FORMATS_CANVAS_H
#define GRADIX_FORMATS_CANVAS_H

#include "Filters/GX_StdCsv/GradebookSession.h"

inline constexpr GradebookColumn kCanvasStudent[] = {
    {.title = "Student", .cell = "{first-name} {last-name}", .quotes = Quotes::kCells},
    {.title = "ID", .cell = "{identifier}"},
    {.title = "Section", .cell = ""},
};

inline constexpr GradebookLayout kCanvas = {
    .leading = kCanvasStudent,
    .score = {.title = "{name}", .cell = "{points}"},
    .pointsPossibleTitle = "Points Possible",
};

class SessionCanvas final : public LayoutSession<kCanvas> {
  using LayoutSession::LayoutSession;
};

#endif  // GRADIX_FORMATS_CANVAS_H
