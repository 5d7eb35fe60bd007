// Closing and disposing dialogs, and finding them.
#include "Toolkit/DLGManager.h"

#include <cstdlib>
#include <vector>

#include "Platform/Ui/Dialogs.h"
#include "Toolkit/DLGEvents.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGLive.h"
#include "Toolkit/DLGShow.h"
#include "Toolkit/Toolkit.h"

namespace {

void (*gGlobalClose)(DLGRecord*) = nullptr;

}  // namespace

void DLGSetGlobalCloseProc(void (*proc)(DLGRecord*)) {
  gGlobalClose = proc;
}

DLGRecord* DLGFromHwnd(WindowRef window) {
  if (!IsValidWindow(window) || GetWRefCon(window) != DLGInstance()) return nullptr;
  const ControlRef root = GetRootControl(window);
  if (root == nullptr) return nullptr;
  auto* dialog = reinterpret_cast<DLGRecord*>(GetControlReference(root));
  return DialogIsValid(dialog) ? dialog : nullptr;
}

bool DLGIsOpen(int32_t resourceID) {
  for (WindowRef window = GetWindowList(); window != nullptr; window = GetNextWindow(window)) {
    const DLGRecord* dialog = DLGFromHwnd(window);
    if (dialog != nullptr && dialog->resourceID == resourceID) return true;
  }
  return false;
}

namespace {

// Ends what the items keep and the timers; the window and the record stay.
void _DisposeItems(DLGRecord* dialog) {
  dialog->itemHit = nullptr;
  dialog->close = nullptr;
  dialog->event = nullptr;
  for (int32_t item = 1; item <= dialog->itemCount; ++item) SendDLGItemMessage(dialog, item, kDLGDispose);
  std::free(dialog->timers);
  dialog->timers = nullptr;
  dialog->timerCount = 0;
}

void _DisposeWindowAndRecord(DLGRecord* dialog) {
  const DialogRef platformDialog = dialog->dialog;
  DLGFreeRecord(dialog);
  DisposeDialog(platformDialog);
}

// Back to an empty container for the next pane.
void _EmptyPane(DLGRecord* dialog) {
  ShortenDITL(dialog->dialog, static_cast<int16_t>(CountDITL(dialog->dialog) - dialog->ownItemCount));
  const DLGRecord kept = *dialog;
  const int32_t room = DLGRoom(dialog);
  *dialog = {};
  for (int32_t item = 0; item <= room; ++item) *DLGItemRow(dialog, item) = {};
  dialog->window = kept.window;
  dialog->dialog = kept.dialog;
  dialog->kind = kept.kind;
  dialog->growBounds = kept.growBounds;
  dialog->initialBounds = kept.initialBounds;
  dialog->flags = kept.flags;
  dialog->marker = DLGRecord::kMarker;
  dialog->serial = kept.serial;
}

}  // namespace

void DisposeDLG(DLGRecord* dialog) {
  if (!DialogIsValid(dialog) || dialog->disposing) return;
  dialog->disposing = true;
  const bool emptyPane = dialog->kind == kDLGPane && dialog->itemCount == 0;
  if (dialog->kind != kDLGOwned && (dialog->kind != kDLGPane || emptyPane)) HideWindow(dialog->window);
  _DisposeItems(dialog);
  if (dialog->kind == kDLGOwned) {
    dialog->disposing = false;
  } else if (dialog->kind == kDLGPane && !emptyPane) {
    _EmptyPane(dialog);
  } else {
    _DisposeWindowAndRecord(dialog);
  }
}

void DLGDiscard(DLGRecord* dialog) {
  dialog->disposing = true;
  _DisposeItems(dialog);
  _DisposeWindowAndRecord(dialog);
}

void DLGReleaseOwned(DLGRecord* dialog) {
  if (DialogIsValid(dialog) && dialog->kind == kDLGOwned) _DisposeWindowAndRecord(dialog);
}

bool MyCloseDialog(DLGRecord* dialog) {
  if (!DialogIsValid(dialog) || dialog->disposing) return false;
  const DLGWatch watch(dialog);
  if (dialog->close != nullptr && !dialog->close(dialog)) return false;
  if (watch.IsLive() && gGlobalClose != nullptr) gGlobalClose(dialog);
  if (watch.IsLive()) DisposeDLG(dialog);
  DLGEndModality();
  return true;
}

bool DLGPressCancelOrClose(DLGRecord* dialog) {
  if (DLGFindItem(dialog, dialog->cancelItem) == nullptr) return MyCloseDialog(dialog);
  const DLGWatch watch(dialog);
  DLGNotifyChange(dialog, dialog->cancelItem);
  return !watch.IsLive();
}

bool CloseAllDialogs() {
  std::vector<WindowRef> windows;
  for (WindowRef window = GetWindowList(); window != nullptr; window = GetNextWindow(window)) {
    windows.push_back(window);
  }
  for (const WindowRef window : windows) {
    if (DLGRecord* dialog = DLGFromHwnd(window)) {
      if (!DLGPressCancelOrClose(dialog)) return false;
    } else {
      DisposeWindow(window);  // nothing when it went with one before
    }
  }
  return true;
}

void DLGDisposeAll() {
  for (DLGRecord* dialog : DLGLiveRecords()) {
    if (!MyCloseDialog(dialog)) DisposeDLG(dialog);
  }
}

void ModalDLG(DLGRecord* dialog) {
  if (!DialogIsValid(dialog) || dialog->resourceID <= 0) return;
  const int32_t resourceID = dialog->resourceID;
  while (!gDone && DLGIsOpen(resourceID)) MainEventLoop(true);
  SetPortWindowPort(FrontNonFloatingWindow());
}
