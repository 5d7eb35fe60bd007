// Dialogs from resources in memory, and handlers that follow a press the way a dialog toolkit does and write
// down what happens.
#ifndef GRADIX_DIALOG_FIXTURE_H
#define GRADIX_DIALOG_FIXTURE_H

#include <gtest/gtest.h>

#include <QWindow>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Ui/Controls.h"
#include "Platform/Ui/Dialogs.h"
#include "Platform/Ui/Events.h"
#include "Platform/Ui/Lists.h"
#include "Platform/Ui/Menus.h"
#include "tests/platform/open_fork.h"
#include "tests/support/Gestures.h"

inline std::string RectData(const Rect& rect) {
  std::string data;
  for (const int16_t edge : {rect.top, rect.left, rect.bottom, rect.right}) {
    data += BigEndian(static_cast<uint16_t>(edge), 2);
  }
  return data;
}

inline std::string DialogData(const std::string& title, int procID = 5, int itemList = 100) {
  return RectData({100, 120, 400, 420}) + BigEndian(static_cast<uint32_t>(procID), 2) +
         std::string("\1\0\1\0", 4) + BigEndian(77, 4) + BigEndian(static_cast<uint32_t>(itemList), 2) +
         PascalString(title);
}

struct TestItem {
  Rect bounds;
  int type;
  std::string data;
};

inline std::string ItemListData(const std::vector<TestItem>& items) {
  std::string list = BigEndian(static_cast<uint32_t>(items.size() - 1) & 0xFFFF, 2);
  for (const TestItem& item : items) {
    list += BigEndian(0, 4) + RectData(item.bounds) + BigEndian(static_cast<uint32_t>(item.type), 1) +
            PascalString(item.data);
    if (list.size() % 2 != 0) list += '\0';
  }
  return list;
}

inline std::string ControlData(int procID, const std::string& title, int value = 0) {
  return RectData({}) + BigEndian(static_cast<uint32_t>(value), 2) + std::string("\1\0", 2) +
         BigEndian(1, 2) + BigEndian(0, 2) + BigEndian(static_cast<uint32_t>(procID), 2) + BigEndian(5, 4) +
         PascalString(title);
}

inline std::string ListDescriptionData(int definition) {
  return std::string(10, '\0') + std::string("\1\0\0\0", 4) +
         BigEndian(static_cast<uint32_t>(definition), 2) + std::string(2, '\0');
}

enum TestItemNumber : int16_t {
  kButton = 1,
  kCheck,
  kRadio,
  kText,
  kEdit,
  kPopup,
  kList,
  kGroup,
  kLine,
  kPane,
  kPicture,
  kItemCount = kPicture,
};

constexpr int16_t kListDefinitionID = 9;

// One item of each kind, in the order of TestItemNumber.
inline TestTypes AllKinds() {
  const auto resourceControl = [](int id) { return BigEndian(static_cast<uint32_t>(id), 2); };
  const std::vector<TestItem> items = {
      {{10, 10, 34, 110}, 4, "Save & Quit"},
      {{40, 10, 60, 150}, 5, "Check me"},
      {{65, 10, 85, 150}, 6, "Choose me"},
      {{90, 10, 110, 150}, 8 | 0x80, "A & B"},
      {{115, 10, 137, 150}, 16, "abc"},
      {{145, 10, 169, 150}, 7, resourceControl(400)},
      {{10, 160, 160, 290}, 7, resourceControl(352)},
      {{180, 5, 290, 295}, 7, resourceControl(160)},
      {{175, 5, 179, 295}, 7, resourceControl(144)},
      {{200, 10, 220, 30}, 0, ""},
      {{230, 10, 250, 30}, 64, BigEndian(128, 2)},
  };
  return {{"DLOG", {{128, DialogData("Caf\x8E")}}},
          {"DITL", {{100, ItemListData(items)}}},
          {"CNTL",
           {{400, ControlData(400, "")},
            {352, ControlData(352, "", 50)},
            {160, ControlData(160, "Group & Co")},
            {144, ControlData(144, "")}}},
          {"ldes", {{50, ListDescriptionData(kListDefinitionID)}}}};
}

using EventLog = std::vector<std::string>;

class DialogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    gTest = this;
    InstallDialogEventHandlers({OnMouseDown, OnKey, OnAction, OnFocus, OnClose, OnActivate});
    m_fork = std::make_unique<OpenFork>(AllKinds());
    m_dialog = GetNewDialog(128);
    ASSERT_NE(m_dialog, nullptr);
    m_window = GetDialogWindow(m_dialog);
  }

  void TearDown() override {
    while (GetWindowList() != nullptr) DisposeWindow(GetWindowList());
    RunEventPass(0);
    gTest = nullptr;
    InstallDialogEventHandlers({});
  }

  void Show() {
    ShowWindow(m_window);
    SelectWindow(m_window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(WidgetOf(m_window)->windowHandle()));
    m_log.clear();
  }

  ControlRef Item(int16_t number) const { return GetDialogItemAsControl(m_dialog, number); }

  // The top-level widget at the window's place, found the way assistive technology would: by its title.
  static QWidget* WidgetOf(WindowRef window) { return gestures::WindowTitled(GetWTitle(window)); }

  template <typename Widget = QWidget>
  Widget* ItemWidget(int16_t number) const {
    return gestures::Item<Widget>(WidgetOf(m_window), number);
  }

  QPoint MiddleOf(int16_t number) const {
    const Rect bounds = GetControlBounds(Item(number));
    return {(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
  }

  QWindow* Handle() const { return WidgetOf(m_window)->windowHandle(); }

  // What was written down since the last call.
  EventLog TakeLog() { return std::exchange(m_log, {}); }

  std::unique_ptr<OpenFork> m_fork;
  DialogRef m_dialog = nullptr;
  WindowRef m_window = nullptr;
  EventLog m_log;
  std::function<void()> m_onHit;                                    // after a press that did something
  std::function<void()> m_onAction;                                 // after the log entry
  std::function<void(WindowRef, const MouseEvent&)> m_onMouseDown;  // instead of following the press
  ControlRef m_keyReceiver = nullptr;

 private:
  static std::string NameOf(ControlRef control) {
    const DialogRef dialog = GetDialogFromWindow(GetControlOwner(control));
    return "item" + std::to_string(FindDialogItemOfControl(dialog, control));
  }

  static ControlRef ControlAt(WindowRef window, Point where) {
    const DialogRef dialog = GetDialogFromWindow(window);
    for (int16_t item = 1; item <= CountDITL(dialog); ++item) {
      const ControlRef control = GetDialogItemAsControl(dialog, item);
      if (TestControl(control, where)) return control;
    }
    return nullptr;
  }

  static void OnMouseDown(WindowRef window, const MouseEvent& event) {
    gTest->m_log.push_back(event.doubleClick ? "double" : "down");
    if (gTest->m_onMouseDown) return gTest->m_onMouseDown(window, event);
    const ControlRef control = ControlAt(window, event.where);
    if (!HandleControlPress(control, event.where)) return;
    while (StillDown()) RunEventPass(1);
    if (!HandleControlRelease(control, GetMouse(window))) return;
    gTest->m_log.push_back("hit " + NameOf(control));
    if (gTest->m_onHit) gTest->m_onHit();
  }

  static bool OnKey(WindowRef /*window*/, uint16_t character, uint16_t modifiers) {
    gTest->m_log.push_back("key " + std::to_string(character) + " " + std::to_string(modifiers));
    if (gTest->m_keyReceiver == nullptr) return false;
    const bool changed = HandleControlKey(gTest->m_keyReceiver, character, modifiers);
    gTest->m_log.push_back(changed ? "changed" : "unchanged");
    return changed;
  }

  static void OnAction(WindowRef /*window*/, ControlRef control) {
    gTest->m_log.push_back("action " + NameOf(control));
    if (gTest->m_onAction) gTest->m_onAction();
  }

  static void OnFocus(WindowRef /*window*/, ControlRef control) {
    gTest->m_log.push_back("focus " + NameOf(control));
  }

  static void OnClose(WindowRef /*window*/) { gTest->m_log.push_back("close"); }
  static void OnActivate(WindowRef window) { gTest->m_log.push_back("activate " + GetWTitle(window)); }

  static inline DialogTest* gTest = nullptr;
};

#endif  // GRADIX_DIALOG_FIXTURE_H
