#include "Toolkit/DLGShow.h"

#include <algorithm>
#include <vector>

#include "Platform/Ui/Events.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGLive.h"
#include "Toolkit/DLGManager.h"

namespace {

constexpr int32_t kPlaceholderID = 900;
constexpr int16_t kOffScreen = 15000;
constexpr int16_t kGrowIconSize = 15;

// The windows whose collapse box a modal dialog took.
std::vector<WindowRef>& _Uncollapsible() {
  static std::vector<WindowRef> windows;
  return windows;
}

}  // namespace

bool DLGIsModalWindow(WindowRef window) {
  const DLGRecord* dialog = DLGFromHwnd(window);
  return dialog != nullptr && dialog->kind == kDLGModal;
}

namespace {

std::vector<WindowRef> _Windows() {
  std::vector<WindowRef> windows;
  for (WindowRef window = GetWindowList(); window != nullptr; window = GetNextWindow(window)) {
    windows.push_back(window);
  }
  return windows;
}

bool _IsFloating(WindowRef window) {
  const DLGRecord* dialog = DLGFromHwnd(window);
  return GetWindowClass(window) == kFloatingWindowClass ||
         (dialog != nullptr && dialog->kind == kDLGFloating);
}

int64_t _CountModalDialogs() {
  const std::vector<WindowRef> windows = _Windows();
  return std::count_if(windows.begin(), windows.end(),
                       [](WindowRef window) { return IsWindowVisible(window) && DLGIsModalWindow(window); });
}

// A front dialog that asks for it gets a placeholder in front of it while the floating windows rest.
void _ShowPlaceholder() {
  const DLGRecord* front = DLGFromHwnd(FrontWindow());
  if (front == nullptr || (front->flags & kDLGPlaceholder) == 0 || DLGIsOpen(kPlaceholderID)) return;
  const DLGRecord* placeholder =
      GetDialogResource(nullptr, kDLGModeless, nullptr, kPlaceholderID, 0, nullptr, nullptr, nullptr);
  if (placeholder == nullptr) return;
  MoveWindow(placeholder->window, kOffScreen, kOffScreen);
  ShowWindow(placeholder->window);
}

void _DeactivateOthers(WindowRef modal) {
  for (const WindowRef window : _Windows()) {
    if (_IsFloating(window) && IsWindowVisible(window)) ActivateWindow(window, false);
  }
  _ShowPlaceholder();
  const WindowRef document = FrontNonFloatingWindow();
  if (document != nullptr && document != modal) ActivateWindow(document, false);
}

void _ShowActive(WindowRef window) {
  HiliteWindow(window, true);
  ShowWindow(window);
  ActivateWindow(window, true);
  SelectWindow(window);
}

void _ShowInactive(WindowRef window) {
  HiliteWindow(window, false);
  ShowWindow(window);
}

void _ShowInOrder(DLGRecord* dialog) {
  const WindowRef window = dialog->window;
  const WindowRef front = FrontNonFloatingWindow();
  const bool alone = dialog->kind == kDLGFloating || front == nullptr;
  if (!IsFrontProcess() || (!alone && !IsWindowInFrontOf(window, front))) {
    _ShowInactive(window);
    return;
  }
  if (!alone) ActivateWindow(front, false);
  _ShowActive(window);
}

void _DrawGrowIcon(const DLGRecord& dialog) {
  if (dialog.growBounds == Rect{}) return;
  const Rect bounds = GetWindowPortBounds(dialog.window);
  InvalWindowRect(dialog.window,
                  {static_cast<int16_t>(bounds.bottom - kGrowIconSize),
                   static_cast<int16_t>(bounds.right - kGrowIconSize), bounds.bottom, bounds.right});
}

// What was marked while the dialog was hidden is drawn with it.
void _ClearRedrawMarks(DLGRecord* dialog) {
  for (int32_t item = 1; item <= dialog->itemCount; ++item) RemoveItemFlags(dialog, item, kDLGRedrawPending);
  dialog->flags &= ~static_cast<uint32_t>(kDLGRedrawPending);
}

void _TakeCollapseBoxes(WindowRef modal) {
  for (const WindowRef window : _Windows()) {
    if (window == modal || (GetWindowAttributes(window) & kWindowCollapseBoxAttribute) == 0) continue;
    ChangeWindowAttributes(window, 0, kWindowCollapseBoxAttribute);
    _Uncollapsible().push_back(window);
  }
}

void _RemovePlaceholder() {
  for (const WindowRef window : _Windows()) {
    DLGRecord* dialog = DLGFromHwnd(window);
    if (dialog != nullptr && dialog->resourceID == kPlaceholderID) DisposeDLG(dialog);
  }
}

}  // namespace

void DLGEndModality() {
  if (_CountModalDialogs() > 0) return;
  _RemovePlaceholder();
  for (const WindowRef window : _Uncollapsible()) {
    ChangeWindowAttributes(window, kWindowCollapseBoxAttribute, 0);
  }
  _Uncollapsible().clear();
  const WindowRef front = FrontNonFloatingWindow();
  if (front != nullptr && !IsWindowHilited(front)) ActivateWindow(front, true);
}

void ShowDLG(DLGRecord* dialog) {
  if (!DialogIsValid(dialog) || IsWindowVisible(dialog->window)) return;
  const DLGWatch watch(dialog);
  if (dialog->kind == kDLGModal) {
    _DeactivateOthers(dialog->window);
    BringToFront(dialog->window);
  }
  if (dialog->kind == kDLGFloating && !IsFrontProcess()) {
    dialog->showPending = 1;
    return;
  }
  dialog->showPending = 0;
  _ShowInOrder(dialog);
  if (!watch.IsLive()) return;
  InitCursor();
  _ClearRedrawMarks(dialog);
  _DrawGrowIcon(*dialog);
  if (_CountModalDialogs() == 1) _TakeCollapseBoxes(dialog->window);
}

void DLGShowPending() {
  for (DLGRecord* dialog : DLGLiveRecords()) {
    if (DialogIsValid(dialog) && dialog->showPending != 0) ShowDLG(dialog);
  }
}

void HideDLG(DLGRecord* dialog) {
  if (DialogIsValid(dialog)) HideWindow(dialog->window);
}

void CenterDLG(DLGRecord* dialog) {
  if (DialogIsValid(dialog)) CenterWindowOnMainScreen(dialog->window);
}
