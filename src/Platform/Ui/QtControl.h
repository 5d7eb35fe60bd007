// The standard widgets behind controls.
#ifndef GRADIX_QTCONTROL_H
#define GRADIX_QTCONTROL_H

#include "Platform/Ui/QtRegistry.h"

namespace ui {

// Adds a control to the window; its item number gives the widget its object name.
ControlRecord* CreateControl(WindowRecord* window, ControlKind kind, const Rect& bounds, int itemNumber);

void PlaceControl(ControlRecord& control, const Rect& bounds);
void ShowControlText(ControlRecord& control);  // its text and label, in the widget and its accessible name

}  // namespace ui

#endif  // GRADIX_QTCONTROL_H
