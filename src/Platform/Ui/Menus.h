// Menu Manager: the rows of a pop-up button. Rows count from 1; texts are Mac OS Roman.
#ifndef GRADIX_MENUS_H
#define GRADIX_MENUS_H

#include <string>

#include "Platform/Ui/Controls.h"

struct OpaqueMenu;
using MenuRef = OpaqueMenu*;

MenuRef GetControlPopupMenuHandle(ControlRef control);  // null when the control is no pop-up button

int32_t CountMenuItems(MenuRef menu);
// Inserts a row after row `after` (0: first; past the end: last). The selection of the button does not
// follow.
void InsertMenuItem(MenuRef menu, const std::string& text, int32_t after);
void SetMenuItemText(MenuRef menu, int32_t row,
                     const std::string& text);  // shown literally, 255 bytes at most
std::string GetMenuItemText(MenuRef menu, int32_t row);

#endif  // GRADIX_MENUS_H
