// The gradebook file of WebCT Vista.
#ifndef GRADIX_FORMATS_WEBCT_H
#define GRADIX_FORMATS_WEBCT_H

#include "Filters/GX_StdCsv/GradebookSession.h"

inline constexpr GradebookColumn kWebCTStudent[] = {
    {.title = "Last Name", .cell = "{last-name}", .quotes = Quotes::kCells},
    {.title = "First Name", .cell = "{first-name}", .quotes = Quotes::kCells},
    {.title = "User ID", .cell = "{identifier}", .quotes = Quotes::kCells},
    {.title = "Role", .cell = "Student"},
};

inline constexpr GradebookLayout kWebCT = {
    .leading = kWebCTStudent,
    .score = {.title = "{name}", .cell = "{points}", .quotes = Quotes::kTitle},
    .noScore = " ",
};

class SessionWebCT final : public LayoutSession<kWebCT> {
  using LayoutSession::LayoutSession;
};

#endif  // GRADIX_FORMATS_WEBCT_H
