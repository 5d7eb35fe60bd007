// The options of the detailed results report: its assignment, student columns and question columns.
#ifndef GRADIX_ENHOPTIONSWINDOW_H
#define GRADIX_ENHOPTIONSWINDOW_H

#include "Common/QZData/QZClass.h"
#include "Filters/GX_StdCsv/Session.h"

// Shows the dialog for the session under way, above the host's window (null: none), and returns at once.
// False when it cannot be created.
bool DisplayEnhOptionsDialog(void* hostWindow, Session* session, qz::ClassRecord* record);

#endif  // GRADIX_ENHOPTIONSWINDOW_H
