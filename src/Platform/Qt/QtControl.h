// The standard widgets behind controls.
#ifndef GRADIX_QTCONTROL_H
#define GRADIX_QTCONTROL_H

#include "Platform/Qt/QtRegistry.h"

namespace ui {

// Whether a user works with controls of that kind: they take the keyboard, presses and keys.
bool IsInteractive(ControlKind kind);

// Adds a control to the window; its item number gives the widget its object name.
ControlRecord* CreateControl(WindowRecord* window, ControlKind kind, const Rect& bounds, int itemNumber);

void PlaceControl(ControlRecord& control, const Rect& bounds);
void ShowControlText(ControlRecord& control);  // its text and label, in the widget and its accessible name

}  // namespace ui

#endif  // GRADIX_QTCONTROL_H
