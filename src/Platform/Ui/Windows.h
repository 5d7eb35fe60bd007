// Window Manager: the windows that this library opened, front to back. The host's own windows are not among
// them.
//
// Every call accepts null and a window that was disposed: it then does nothing and gives null, 0 or false.
#ifndef GRADIX_WINDOWS_H
#define GRADIX_WINDOWS_H

#include <string>

#include "Platform/Core/MacTypes.h"

struct OpaqueWindow;
using WindowRef = OpaqueWindow*;
struct OpaqueControl;
using ControlRef = OpaqueControl*;

enum WindowClass : int32_t { kDocumentWindowClass, kMovableModalWindowClass, kFloatingWindowClass };

enum WindowAttributes : uint32_t {
  kWindowCloseBoxAttribute = 1,
  kWindowCollapseBoxAttribute = 8,
};

// A hidden, empty window in front of the others. The caller disposes it.
WindowRef CreateNewWindow(WindowClass windowClass, uint32_t attributes, const Rect& bounds);
void DisposeWindow(WindowRef window);
bool IsValidWindow(WindowRef window);

// Order. Hidden windows keep their place in it; FrontWindow and FrontNonFloatingWindow pass over them.
WindowRef FrontWindow();
WindowRef FrontNonFloatingWindow();
WindowRef GetWindowList();                  // the frontmost of all, hidden ones too
WindowRef GetNextWindow(WindowRef window);  // the one behind, hidden ones too
void BringToFront(WindowRef window);
void SelectWindow(WindowRef window);  // to the front, active, with the keyboard
bool IsWindowInFrontOf(WindowRef window, WindowRef other);

void ShowWindow(WindowRef window);
void HideWindow(WindowRef window);
bool IsWindowVisible(WindowRef window);
void HiliteWindow(WindowRef window, bool on);  // as active or not
bool IsWindowHilited(WindowRef window);
void ActivateWindow(WindowRef window, bool on);

WindowClass GetWindowClass(WindowRef window);
void ChangeWindowAttributes(WindowRef window, uint32_t set, uint32_t clear);
uint32_t GetWindowAttributes(WindowRef window);

void SetWRefCon(WindowRef window, intptr_t value);
intptr_t GetWRefCon(WindowRef window);

// The title in UTF-8.
void SetWTitle(WindowRef window, const std::string& title);
std::string GetWTitle(WindowRef window);

void MoveWindow(WindowRef window, int16_t h, int16_t v);  // upper left corner of the content, on the screen
void SizeWindow(WindowRef window, int16_t width, int16_t height);
void CenterWindowOnMainScreen(WindowRef window);           // RepositionWindow, centred
Rect GetWindowPortBounds(WindowRef window);                // content, origin at its upper left corner
Rect GetWindowScreenBounds(WindowRef window);              // content, on the screen
void InvalWindowRect(WindowRef window, const Rect& area);  // to be drawn again

// Whose owner is `parent`: kept above it. Null ends that.
void SetWindowParent(WindowRef window, WindowRef parent);

// The window system's id of the window, as a pointer, for the host; and a window of the host as the owner,
// which only a Qt window of this process becomes.
void* GetWindowID(WindowRef window);
void SetWindowHostParent(WindowRef window, void* hostWindow);  // null: none

// Text of the window's port as set with TextFont and TextSize; 0 and 0 at first, the theme's font.
void SetPortTextFont(WindowRef window, int16_t font, int16_t size);
RGBColor GetPortForeColor(WindowRef window);
RGBColor GetWindowContentColor(WindowRef window);
void SetPortWindowPort(WindowRef window);  // the current port
WindowRef GetPort();                       // null when its window is gone

// The control that all others of the window lie in; made with the window.
ControlRef GetRootControl(WindowRef window);

#endif  // GRADIX_WINDOWS_H
