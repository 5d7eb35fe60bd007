// Dialogs from creation to disposal.
#ifndef GRADIX_DLGMANAGER_H
#define GRADIX_DLGMANAGER_H

#include <span>

#include "Toolkit/DLGRecord.h"

extern int32_t gTimerInterval;  // milliseconds between looks at the dialogs' timers

// Stores the interval; always true.
bool DLGInit(int32_t timerInterval);

// Creates the dialog of a resource id, hidden and in front, from its template and its item descriptions
// ('luDI'). Owned by the toolkit until MyCloseDialog or DisposeDLG. Null, with nothing left behind, when a
// resource is missing, damaged or disagrees with the other, an item type is not registered, or an item cannot
// be created. `instance` and the procedures may be null.
DLGRecord* GetDialogResource(WindowRef parent, int32_t kind, void* instance, int32_t resourceID,
                             int32_t userValue, DLGHitProc itemHit, DLGCloseProc close, DLGEventProc event);

// The same with the items of further resource ids appended; the window has the first one's size.
DLGRecord* GetCombinedDialogResource(WindowRef parent, int32_t kind, void* instance,
                                     std::span<const int32_t> resourceIDs, int32_t userValue,
                                     DLGHitProc itemHit, DLGCloseProc close, DLGEventProc event);

void ShowDLG(DLGRecord* dialog);
void HideDLG(DLGRecord* dialog);
void CenterDLG(DLGRecord* dialog);  // on the main screen

// Runs events until no window holds a dialog of this one's resource id any more, or the application is done.
void ModalDLG(DLGRecord* dialog);

// Asks the close procedure, then disposes. False when it refused or the dialog is not live.
bool MyCloseDialog(DLGRecord* dialog);
// Closes the windows front to back: a dialog with a cancel item by pressing it, others by MyCloseDialog.
// False at the first that refuses.
bool CloseAllDialogs();
// A pane gives its items up and leaves the window and an empty record for the next pane; without items it
// goes as a whole. Of an owned dialog (kDLGOwned) only the items go; its owner ends it with DLGReleaseOwned.
void DisposeDLG(DLGRecord* dialog);
void DLGReleaseOwned(DLGRecord* dialog);

// Ends every dialog: the close procedures are called, and a refusal is not heeded.
void DLGDisposeAll();

// Closes a dialog as its user would: by its cancel item where it has one, else by MyCloseDialog. True when it
// is gone.
bool DLGPressCancelOrClose(DLGRecord* dialog);

// Never reads a record that was freed.
bool DialogIsValid(const DLGRecord* dialog);
DLGRecord* DLGFromHwnd(WindowRef window);  // null when the window is no toolkit dialog's
bool DLGIsOpen(int32_t resourceID);        // any window holds a dialog of that id

// Notifies the item after a delay, once. False when the dialog has ten timers already.
bool DLGRegisterTimer(DLGRecord* dialog, int32_t item, uint32_t ticks);

// Called for every dialog after it was created, and before it is disposed by MyCloseDialog. Null: none.
void DLGSetGlobalOpenProc(void (*proc)(DLGRecord*));
void DLGSetGlobalCloseProc(void (*proc)(DLGRecord*));

// Remembers a record across calls that may dispose it.
class DLGWatch {
 public:
  explicit DLGWatch(DLGRecord* dialog) : m_dialog(dialog), m_serial(dialog->serial) {}
  bool IsLive() const { return DialogIsValid(m_dialog) && m_dialog->serial == m_serial; }

 private:
  DLGRecord* m_dialog;
  uint64_t m_serial;
};

#endif  // GRADIX_DLGMANAGER_H
