// The records behind window and control references. References are numbers that are never used twice, so one
// whose object is gone finds nothing.
#ifndef GRADIX_QTREGISTRY_H
#define GRADIX_QTREGISTRY_H

#include <QPointer>
#include <QWidget>
#include <string>
#include <utility>
#include <vector>

#include "Platform/Core/MacTypes.h"
#include "Platform/Qt/QtScale.h"
#include "Platform/Ui/Controls.h"
#include "Platform/Ui/Windows.h"

namespace ui {

struct ControlRecord {
  ControlRef ref = nullptr;
  WindowRef window = nullptr;
  ControlKind kind = kControlKindNone;
  QPointer<QWidget> widget;
  Rect bounds;
  std::string text;   // Mac OS Roman; not of edit texts
  std::string label;  // Mac OS Roman
  char shortcut = 0;  // of a button: a letter or digit, 0 for none
  std::string help;   // Mac OS Roman
  ControlFontStyle fontStyle;
  int32_t maximum = 1;
  intptr_t reference = 0;
  bool pressed = false;  // a button: since its signal pressed(), until released() or clicked()
  int16_t listDefinition = 0;
  intptr_t listRefCon = 0;
};

struct DialogItem {
  Rect bounds;
  ControlRef control = nullptr;
};

struct WindowRecord {
  WindowRef ref = nullptr;
  QPointer<QWidget> widget;
  WindowClass windowClass = kDocumentWindowClass;
  uint32_t attributes = 0;
  bool hilited = false;
  int blocked = 0;  // alerts that keep its events away
  intptr_t refCon = 0;
  std::string title;  // UTF-8
  int16_t portFont = 0;
  int16_t portSize = 0;
  WindowRef parent = nullptr;
  ControlRef root = nullptr;
  ControlRef focus = nullptr;
  std::vector<ControlRef> controls;  // the root not included
  bool isDialog = false;
  Scale scale;  // of a dialog's template
  int16_t defaultItem = 0;
  std::vector<DialogItem> items;
};

// Null for null and for what is gone. A record's address is good until the next call that can dispose it.
WindowRecord* FindWindow(WindowRef window);
ControlRecord* FindControl(ControlRef control);
WindowRecord* FindWindowOf(const QWidget* widget);    // of the widget or of any widget around it
ControlRecord* FindControlOf(const QWidget* widget);  // the root not included

// All windows, front to back.
std::vector<WindowRef>& WindowOrder();

WindowRecord* AddWindowRecord(QWidget* widget);
ControlRecord* AddControlRecord(WindowRecord* window, QWidget* widget, ControlKind kind);

// Forgets the records; the widgets are hidden and freed as soon as nothing on the stack can be theirs.
void RemoveWindowRecord(WindowRef ref);
void RemoveControlRecord(ControlRef ref);

// Frees what was removed. Called from the event loop.
void FreeRemovedWidgets() noexcept;

// While one exists, code of the window's widgets may be on the stack.
class WindowInUse {
 public:
  explicit WindowInUse(WindowRef window);
  ~WindowInUse();
  WindowInUse(const WindowInUse&) = delete;
  WindowInUse& operator=(const WindowInUse&) = delete;
};

// While one exists, changes of widgets are the program's own and not reported.
class Quiet {
 public:
  Quiet() { ++m_depth; }
  ~Quiet() { --m_depth; }
  Quiet(const Quiet&) = delete;
  Quiet& operator=(const Quiet&) = delete;
  static bool IsOn() { return m_depth > 0; }

 private:
  static int m_depth;
};

// Calls a handler on behalf of the window; gives false when there is none or it fails. Nothing may unwind
// through the event loop.
template <typename... Parameters, typename... Arguments>
bool CallHandler(WindowRef window, bool (*handler)(Parameters...), Arguments&&... arguments) noexcept {
  if (handler == nullptr) return false;
  try {
    const WindowInUse inUse(window);
    return handler(std::forward<Arguments>(arguments)...);
  } catch (...) {
    return false;
  }
}

template <typename... Parameters, typename... Arguments>
void CallHandler(WindowRef window, void (*handler)(Parameters...), Arguments&&... arguments) noexcept {
  if (handler == nullptr) return;
  try {
    const WindowInUse inUse(window);
    handler(std::forward<Arguments>(arguments)...);
  } catch (...) {
    return;
  }
}

}  // namespace ui

#endif  // GRADIX_QTREGISTRY_H
