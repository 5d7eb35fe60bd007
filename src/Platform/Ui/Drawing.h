// Drawing and measuring in the look of the desktop's theme. Texts are Mac OS Roman.
#ifndef GRADIX_DRAWING_H
#define GRADIX_DRAWING_H

#include <string_view>

#include "Platform/Core/MacTypes.h"
#include "Platform/Ui/Windows.h"

struct DrawContext;  // valid during one drawing procedure

// What the colours depend on.
struct DrawState {
  bool selected = false;
  bool focused = false;
  bool active = true;
};

void DrawThemeRow(DrawContext* context, const Rect& bounds, DrawState state);  // a list row's background
// One line, centred vertically, from the left edge; shortened with an ellipsis where it does not fit.
void DrawThemeText(DrawContext* context, std::string_view text, const Rect& bounds, DrawState state);
void DrawThemeCheckBox(DrawContext* context, const Rect& bounds, bool checked, DrawState state);

// Width and height of a theme's check box.
Point GetThemeCheckBoxSize();

// Size of the text (lines separated by line feeds or returns) in a theme font: v height, h width.
Point GetThemeTextDimensions(std::string_view text, int16_t themeFont, bool active);
// In a font and size (points, 1 or more), in the window's port. Font 3 is the toolkit's sans-serif.
Point MeasurePortText(WindowRef window, std::string_view text, int16_t font, int16_t size);

#endif  // GRADIX_DRAWING_H
