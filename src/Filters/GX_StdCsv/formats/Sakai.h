// The gradebook file of Sakai: points possible in the titles.
#ifndef GRADIX_FORMATS_SAKAI_H
#define GRADIX_FORMATS_SAKAI_H

#include "Filters/GX_StdCsv/GradebookSession.h"

inline constexpr GradebookColumn kSakaiStudent[] = {
    {.title = "Student ID", .cell = "{identifier}"},
    {.title = "Student Name", .cell = "{last-name} {first-name}", .quotes = Quotes::kCells},
};

inline constexpr GradebookLayout kSakai = {
    .leading = kSakaiStudent,
    .score = {.title = "{name} [{points-possible}]", .cell = "{points}"},
};

class SessionSakai final : public LayoutSession<kSakai> {
  using LayoutSession::LayoutSession;
};

#endif  // GRADIX_FORMATS_SAKAI_H
