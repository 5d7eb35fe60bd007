#include "Toolkit/DLGEvents.h"

#include "Toolkit/DLGFocus.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/DLGShow.h"
#include "Toolkit/DLGTimers.h"

namespace {

constexpr int16_t kBeepDuration = 12;  // ticks
constexpr uint32_t kTrackingPass = 2;  // ticks between two looks at the mouse
constexpr uint32_t kLoopPass = 6;      // ticks an event loop pass waits at most
constexpr intptr_t kTrack = 2;         // answer to kDLGMouseDown
constexpr intptr_t kChanged = 1;

}  // namespace

bool gDone = false;

namespace {

// Whether a click into the window is for its items. Brings the window to the front or beeps as the order of
// the windows and their modality want.
bool _ClickReachesItems(WindowRef window) {
  const WindowRef front = FrontWindow();
  if (window == front) return true;
  if (DLGIsModalWindow(front)) {
    SysBeep(kBeepDuration);
    return false;
  }
  const WindowRef frontDocument = FrontNonFloatingWindow();
  const bool floating = GetWindowClass(window) == kFloatingWindowClass;
  if (floating || window == frontDocument) {
    if (floating) SelectWindow(window);
    return true;
  }
  if (DLGIsModalWindow(frontDocument)) {
    SysBeep(kBeepDuration);
  } else {
    SelectWindow(window);
  }
  return false;
}

// The last item under the point that is enabled and visible; 0 for none, and when the dialog goes meanwhile.
int32_t _HitItem(DLGRecord* dialog, intptr_t point) {
  const DLGWatch watch(dialog);
  for (int32_t item = dialog->itemCount; item > 0; --item) {
    if (!IsItemEnabled(dialog, item) || !IsItemVisible(dialog, item)) continue;
    const bool isHit = SendDLGItemMessage(dialog, item, kDLGHitTest, point) != 0;
    if (!watch.IsLive()) return 0;
    if (isHit) return item;
  }
  return 0;
}

// Moves the focus to an item that a press is for. False when it stays with another.
bool _FocusByMouse(DLGRecord* dialog, int32_t item) {
  if ((GetItemFlags(dialog, item) & kDLGTabStop) == 0 || dialog->focusItem == item) return true;
  return DLGMoveFocus(dialog, item, kFocusByMouse) && dialog->focusItem == item;
}

// Whether the item takes the press. False when the dialog goes meanwhile.
bool _TakesPress(DLGRecord* dialog, int32_t item, bool doubleClick) {
  if (!doubleClick) return true;
  const DLGWatch watch(dialog);
  const intptr_t capabilities = SendDLGItemMessage(dialog, item, kDLGDoubleClick);
  return watch.IsLive() && (capabilities & kDLGTakesDoubleClicks) != 0;
}

// While one exists, its item is the one that the mouse is followed in.
class Tracking {
 public:
  Tracking(DLGRecord* dialog, int32_t item) : m_dialog(dialog), m_watch(dialog) {
    dialog->trackingItem = item;
  }
  ~Tracking() {
    if (m_watch.IsLive()) m_dialog->trackingItem = -1;
  }
  Tracking(const Tracking&) = delete;
  Tracking& operator=(const Tracking&) = delete;

  bool IsLive() const { return m_watch.IsLive(); }

 private:
  DLGRecord* m_dialog;
  DLGWatch m_watch;
};

// Follows the mouse from the press on. Gives the item's last answer; 0 when the dialog went meanwhile.
intptr_t _Track(DLGRecord* dialog, int32_t item, intptr_t point, bool doubleClick) {
  const WindowRef window = dialog->window;
  const Tracking tracking(dialog, item);
  intptr_t answer = SendDLGItemMessage(dialog, item, kDLGMouseDown, point, doubleClick ? 1 : 0);
  if (tracking.IsLive() && answer == kTrack) {
    while (StillDown()) {
      SendDLGItemMessage(dialog, item, kDLGMouseStillDown, DLGPackPoint(GetMouse(window)));
      RunEventPass(kTrackingPass);
      if (!tracking.IsLive()) return 0;
    }
    answer = SendDLGItemMessage(dialog, item, kDLGMouseUp, DLGPackPoint(GetMouse(window)));
  }
  return tracking.IsLive() ? answer : 0;
}

}  // namespace

void DLGHandleMouseDown(WindowRef window, const MouseEvent& event) {
  DLGRecord* dialog = DLGFromHwnd(window);
  if (dialog == nullptr || !_ClickReachesItems(window) || dialog->trackingItem > 0) return;
  const DLGWatch watch(dialog);
  const intptr_t point = DLGPackPoint(event.where);
  const int32_t item = _HitItem(dialog, point);
  if (item == 0 || !_FocusByMouse(dialog, item) || !_TakesPress(dialog, item, event.doubleClick)) return;
  const int32_t resourceID = dialog->resourceID;
  const intptr_t answer = _Track(dialog, item, point, event.doubleClick);
  if (answer == kChanged && DLGIsOpen(resourceID) && watch.IsLive()) DLGNotifyChange(dialog, item);
}

namespace {

// Offers the key to the enabled items and notifies the first that claims it.
bool _TryHotKeys(DLGRecord* dialog, intptr_t key) {
  const DLGWatch watch(dialog);
  for (int32_t item = 1; item <= dialog->itemCount; ++item) {
    if (!IsItemEnabled(dialog, item)) continue;
    const bool claimed = SendDLGItemMessage(dialog, item, kDLGHotKey, key) != 0;
    if (!watch.IsLive()) return true;
    if (claimed) {
      DLGNotifyChange(dialog, item);
      return true;
    }
  }
  return false;
}

bool _TryFloatingHotKeys(WindowRef window, intptr_t key) {
  for (WindowRef other = GetWindowList(); other != nullptr && other != window; other = GetNextWindow(other)) {
    DLGRecord* dialog = DLGFromHwnd(other);
    if (dialog == nullptr || dialog->kind != kDLGFloating || !IsWindowVisible(other)) continue;
    if (_TryHotKeys(dialog, key)) return true;
  }
  return false;
}

bool _TryFocusItem(DLGRecord* dialog, intptr_t key) {
  const int32_t item = dialog->focusItem;
  if (!IsItemEnabled(dialog, item)) return false;
  const DLGWatch watch(dialog);
  const intptr_t answer = SendDLGItemMessage(dialog, item, kDLGKey, key);
  if (answer == kChanged && watch.IsLive()) DLGNotifyChange(dialog, item);
  return answer != 0 || !watch.IsLive();
}

}  // namespace

bool DLGHandleKey(WindowRef window, uint16_t character, uint16_t modifiers) {
  DLGRecord* dialog = DLGFromHwnd(window);
  if (dialog == nullptr || dialog->trackingItem > 0) return false;
  if (DLGServeTimers(dialog)) return true;
  modifiers &= kDLGModifierMask;
  const intptr_t key = DLGPackKey(character, modifiers);
  const DLGWatch watch(dialog);
  if (_TryFloatingHotKeys(window, key) || !watch.IsLive() || _TryHotKeys(dialog, key)) return true;
  if (_TryFocusItem(dialog, key)) return true;
  if (character == kTabChar) {
    DoTabKey(dialog, dialog->focusItem, (modifiers & shiftKey) != 0 ? -1 : 1);
  } else if (character == kReturnChar && modifiers == 0) {
    DoTabKey(dialog, dialog->focusItem, 1);
  }
  return false;
}

namespace {

int32_t _ItemOfControl(DLGRecord* dialog, ControlRef control) {
  if (control == nullptr) return 0;
  for (int32_t item = 1; item <= dialog->itemCount; ++item) {
    if (DLGGetChildControl(dialog, item) == control) return item;
  }
  return 0;
}

}  // namespace

void DLGHandleAction(WindowRef window, ControlRef control) {
  DLGRecord* dialog = DLGFromHwnd(window);
  if (dialog == nullptr || dialog->trackingItem > 0) return;
  const int32_t item = _ItemOfControl(dialog, control);
  if (!IsItemEnabled(dialog, item) || !IsItemVisible(dialog, item) || !_ClickReachesItems(window)) return;
  const DLGWatch watch(dialog);
  _FocusByMouse(dialog, item);
  if (watch.IsLive()) DLGNotifyChange(dialog, item);
}

namespace {

void _HandleFocus(WindowRef window, ControlRef control) {
  DLGRecord* dialog = DLGFromHwnd(window);
  if (dialog == nullptr) return;
  const int32_t item = _ItemOfControl(dialog, control);
  const DLGWatch watch(dialog);
  const bool moved = item == dialog->focusItem || (item > 0 && SetFocusDLG(dialog, item));
  if (!moved && watch.IsLive()) SetKeyboardFocus(window, DLGGetChildControl(dialog, dialog->focusItem));
}

void _HandleClose(WindowRef window) {
  DLGRecord* dialog = DLGFromHwnd(window);
  if (dialog == nullptr) return;
  if (window != FrontWindow() && DLGIsModalWindow(FrontWindow())) {
    SysBeep(kBeepDuration);
  } else {
    DLGPressCancelOrClose(dialog);
  }
}

void _HandleActivate(WindowRef window) {
  const WindowRef front = FrontNonFloatingWindow();
  SelectWindow(front != window && DLGIsModalWindow(front) ? front : window);
  DLGShowPending();
}

}  // namespace

void DLGInstallEventHandlers() {
  DialogEventHandlers handlers;
  handlers.mouseDown = DLGHandleMouseDown;
  handlers.key = DLGHandleKey;
  handlers.action = DLGHandleAction;
  handlers.focus = _HandleFocus;
  handlers.close = _HandleClose;
  handlers.activate = _HandleActivate;
  InstallDialogEventHandlers(handlers);
}

void DoNextEvent() {
  RunEventPass(kLoopPass);
}

void MainEventLoop(bool oneEvent) {
  do {
    DoNextEvent();
  } while (!oneEvent && !gDone);
}
