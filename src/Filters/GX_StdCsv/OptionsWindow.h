// The options of a gradebook export: which assignments, and which student field is the user identifier.
#ifndef GRADIX_OPTIONSWINDOW_H
#define GRADIX_OPTIONSWINDOW_H

#include "Common/QZData/QZClass.h"
#include "Filters/GX_StdCsv/Session.h"

// Shows the dialog for the session under way, above the host's window (null: none), and returns at once.
// False when it cannot be created. Throws std::out_of_range, with nothing left behind, for an assignment
// whose name has exactly 30 characters.
bool DisplayOptionsDialog(void* hostWindow, Session* session, qz::ClassRecord* record);

#endif  // GRADIX_OPTIONSWINDOW_H
