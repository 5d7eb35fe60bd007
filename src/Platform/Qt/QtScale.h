// How large dialogs are made: their templates are drawn for one font, and users have another.
#ifndef GRADIX_QTSCALE_H
#define GRADIX_QTSCALE_H

#include "Platform/Core/MacTypes.h"

namespace ui {

// What a template's distances are multiplied with.
struct Scale {
  double horizontal = 1;
  double vertical = 1;
};

// For texts in the application's font, as it is now; never below 1.
Scale ScaleOfApplicationFont();

int ScaledWidth(int distance, const Scale& scale);
// Edge by edge, so that what is aligned stays aligned.
Rect Scaled(const Rect& drawn, const Scale& scale);

}  // namespace ui

#endif  // GRADIX_QTSCALE_H
