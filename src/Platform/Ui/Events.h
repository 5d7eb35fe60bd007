// Event Manager: what the windows' mouse and key events become, the clock, and one pass of the event loop.
//
// A press in a window of this library goes to DialogEventHandlers::mouseDown before any widget sees it, and a
// key to DialogEventHandlers::key. The handlers may dispose the window.
#ifndef GRADIX_EVENTS_H
#define GRADIX_EVENTS_H

#include <cstdint>

#include "Platform/Core/MacTypes.h"
#include "Platform/Ui/Controls.h"
#include "Platform/Ui/Windows.h"

enum EventModifiers : uint16_t {
  cmdKey = 0x100,  // Control on the keyboard
  shiftKey = 0x200,
  optionKey = 0x800,    // Alt
  controlKey = 0x1000,  // Meta
};

enum KeyCharacter : uint16_t {
  kHomeChar = 1,
  kEnterChar = 3,  // on the number pad
  kEndChar = 4,
  kBackspaceChar = 8,
  kTabChar = 9,
  kPageUpChar = 11,
  kPageDownChar = 12,
  kReturnChar = 13,
  kEscapeChar = 27,
  kLeftArrowChar = 28,
  kRightArrowChar = 29,
  kUpArrowChar = 30,
  kDownArrowChar = 31,
  kDeleteChar = 127,
};

struct MouseEvent {
  Point where;  // in the window
  uint16_t modifiers = 0;
  bool doubleClick = false;
};

struct DialogEventHandlers {
  void (*mouseDown)(WindowRef window, const MouseEvent& event) = nullptr;
  // True when the key was used. Tab, Return and Escape never reach a widget by themselves.
  bool (*key)(WindowRef window, uint16_t character, uint16_t modifiers) = nullptr;
  // A control did what it is there for by other means than the two above: pressed by assistive technology, a
  // pop-up's row chosen, text entered by an input method.
  void (*action)(WindowRef window, ControlRef control) = nullptr;
  // The keyboard focus went to the control by other means.
  void (*focus)(WindowRef window, ControlRef control) = nullptr;
  // The user asks to close the window.
  void (*close)(WindowRef window) = nullptr;
  // The window manager made the window active without a press into it.
  void (*activate)(WindowRef window) = nullptr;
};

// Replaces the earlier ones.
void InstallDialogEventHandlers(const DialogEventHandlers& handlers);

// Uses the process's QApplication, or makes one where there is none. False when there can be none (the host
// runs a Qt application without widgets, or there is no display).
bool InitApplication();
bool IsFrontProcess();  // one of the process's windows is active, or none is shown yet

// Waits for events, at most that many ticks, and handles those that are there.
void RunEventPass(uint32_t ticks);

uint32_t TickCount();              // sixtieths of a second since some moment in the past
bool StillDown();                  // the mouse button of the last press has not been released
Point GetMouse(WindowRef window);  // in the window

void SysBeep(int16_t duration);
uint32_t GetBeepCount();  // of SysBeep, since the process began
void InitCursor();        // the arrow

// Calls `proc` every `milliseconds` from the event loop until it is removed.
struct OpaqueEventLoopTimer;
using EventLoopTimerRef = OpaqueEventLoopTimer*;
EventLoopTimerRef InstallEventLoopTimer(uint32_t milliseconds, void (*proc)(void* data), void* data);
void RemoveEventLoopTimer(EventLoopTimerRef timer);  // null is ignored

#endif  // GRADIX_EVENTS_H
