// Mouse and keys of a toolkit dialog, and the event loop.
#ifndef GRADIX_DLGEVENTS_H
#define GRADIX_DLGEVENTS_H

#include "Platform/Ui/Events.h"
#include "Toolkit/DLGRecord.h"

inline constexpr uint16_t kDLGModifierMask = 0x1B00;  // the modifiers that items get to see

void DLGHandleMouseDown(WindowRef window, const MouseEvent& event);
// True when an item used the key; Tab and Return that moved the focus count as not used.
bool DLGHandleKey(WindowRef window, uint16_t character, uint16_t modifiers);

// A control did what it is there for by other means: the same as a click on its item.
void DLGHandleAction(WindowRef window, ControlRef control);

// Has the platform's events come here. Needs InitApplication.
void DLGInstallEventHandlers();

extern bool gDone;  // the application is to end; set by QuitApplication

// Handles one event, or those until gDone.
void MainEventLoop(bool oneEvent);
void DoNextEvent();

#endif  // GRADIX_DLGEVENTS_H
