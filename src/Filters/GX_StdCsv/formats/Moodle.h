// The gradebook file of Moodle 3.1.2.
#ifndef GRADIX_FORMATS_MOODLE_H
#define GRADIX_FORMATS_MOODLE_H

#include "Filters/GX_StdCsv/GradebookSession.h"

inline constexpr GradebookColumn kMoodleStudent[] = {{.title = "User ID", .cell = "{identifier}"}};

inline constexpr GradebookLayout kMoodle = {
    .leading = kMoodleStudent,
    .score = {.title = "{name}", .cell = "{points}"},
};

class SessionMoodle final : public LayoutSession<kMoodle> {
  using LayoutSession::LayoutSession;
};

#endif  // GRADIX_FORMATS_MOODLE_H
