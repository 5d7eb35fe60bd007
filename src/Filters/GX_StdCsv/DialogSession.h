// What the two options dialogs share: the session that each works for, the host's file chooser, and the end.
#ifndef GRADIX_DIALOGSESSION_H
#define GRADIX_DIALOGSESSION_H

#include <functional>
#include <string>

#include "Filters/GX_StdCsv/Session.h"
#include "Toolkit/DLGRecord.h"

// Creates, fills and shows an options dialog for the session under way, above the host's window. False when
// it cannot be created. What `fill` throws is passed on once the dialog is closed and its session ended.
bool ShowOptionsDialog(void* hostWindow, int32_t resourceID, DLGHitProc itemHit,
                       const std::function<void(DLGRecord*)>& fill);

// The session that the dialog works for, null when somebody ended it meanwhile.
Session* SessionOfDialog(const DLGRecord* dialog);

// Whether a dialog is open for the session.
bool HasOptionsDialog(unsigned long sessionID);

// Sets the window's title, "Export" and the name of the session's format. The language is English afterwards.
void SetExportTitle(DLGRecord* dialog, const Session& session);

// Asks the host for the output file. False when it has no file chooser, when the user cancelled, and when the
// dialog or its session went meanwhile.
bool ChooseOutputFile(DLGRecord* dialog, std::string* path);

// Writes the export, tells where it was saved, and closes the dialog.
void ExportAndClose(DLGRecord* dialog, int savedMessageID);

// Checks or clears every row of a check list.
void CheckAllRows(DLGRecord* dialog, int32_t item, bool on);

#endif  // GRADIX_DIALOGSESSION_H
