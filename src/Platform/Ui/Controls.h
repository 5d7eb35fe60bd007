// Control Manager. A control is one standard widget and belongs to its window, which disposes it.
//
// Every call accepts null and a control that is gone: it then does nothing and gives null, 0 or false. Texts
// are Mac OS Roman.
#ifndef GRADIX_CONTROLS_H
#define GRADIX_CONTROLS_H

#include <string>

#include "Platform/Core/MacTypes.h"
#include "Platform/Ui/Windows.h"

enum ControlKind : int32_t {
  kControlKindNone,
  kControlKindRoot,
  kControlKindPushButton,
  kControlKindCheckBox,
  kControlKindRadioButton,
  kControlKindStaticText,
  kControlKindEditText,
  kControlKindPopupButton,
  kControlKindListBox,
  kControlKindGroupBox,
  kControlKindSeparator,
  kControlKindUserPane,
};

bool IsValidControl(ControlRef control);
ControlKind GetControlKind(ControlRef control);
WindowRef GetControlOwner(ControlRef control);

void SetControlReference(ControlRef control, intptr_t value);
intptr_t GetControlReference(ControlRef control);

// Check boxes and radio buttons: 0 or 1. Pop-up buttons: the selected row counted from 1, 0 for none. Setting
// a value reports nothing.
int32_t GetControlValue(ControlRef control);
void SetControlValue(ControlRef control, int32_t value);
int32_t GetControlMaximum(ControlRef control);
void SetControlMaximum(ControlRef control, int32_t maximum);

void ActivateControl(ControlRef control);
void DeactivateControl(ControlRef control);
bool IsControlActive(ControlRef control);
void ShowControl(ControlRef control);
void HideControl(ControlRef control);
bool IsControlVisible(ControlRef control);  // itself; its window may be hidden
void Draw1Control(ControlRef control);      // soon, with the next drawing pass

Rect GetControlBounds(ControlRef control);
void SetControlBounds(ControlRef control, const Rect& bounds);
bool TestControl(ControlRef control, Point where);  // visible and the point is inside

// Buttons' titles, static and edit text. Edit text: the whole text, selection unchanged as far as possible.
void SetControlText(ControlRef control, const std::string& text);
std::string GetControlText(ControlRef control);
void SetEditTextLimit(ControlRef control, int32_t characters);  // 0: none
void SelectEditText(ControlRef control, int32_t start, int32_t end);

// Font of the control's text: a size below 1 names a theme font by its absolute value.
struct ControlFontStyle {
  int16_t font = 0;
  int16_t size = -1;
};
ControlFontStyle GetControlFontStyle(ControlRef control);
void SetControlFontStyle(ControlRef control, ControlFontStyle style);

// A button's letter or digit (ASCII, either case; 0: none), underlined where its title first has it. The
// program is the one who presses the button for it. Nothing else in a title is such a mark.
void SetControlShortcut(ControlRef control, char letter);
char GetControlShortcut(ControlRef control);  // 0: none

// The static text that stands for a control without a title of its own; null: none. Assistive technology
// reads it as the control's label, and as its name without a colon at the end.
void SetControlLabel(ControlRef control, ControlRef text);

// The press under way, from DialogEventHandlers::mouseDown: hands it to the control's widget, which then
// follows the mouse. True when there is something to follow until the button is up. Outside of a press it
// makes one at `where`.
bool HandleControlPress(ControlRef control, Point where);
// The button is up: true when the control did what it is there for, since HandleControlPress: a button
// released inside, a check box changed, a list's selection or an edit text's contents changed.
bool HandleControlRelease(ControlRef control, Point where);
// Hands the key under way to the widget, or one made from the arguments; true when that changed its text,
// value or selection.
bool HandleControlKey(ControlRef control, uint16_t character, uint16_t modifiers);

// Gives the keyboard focus, visibly, to the control; null: to none in that window. Reports nothing.
void SetKeyboardFocus(WindowRef window, ControlRef control);
ControlRef GetKeyboardFocus(WindowRef window);

// Opens the list of a pop-up button. A choice made there is reported through DialogEventHandlers::action.
void OpenPopup(ControlRef control);

#endif  // GRADIX_CONTROLS_H
