// Opens the test dialogs and records what they report.
#ifndef GRADIX_TESTS_TOOLKITFIXTURE_H
#define GRADIX_TESTS_TOOLKITFIXTURE_H

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "Platform/Core/Files.h"
#include "Platform/Core/Resources.h"
#include "Platform/Ui/Events.h"
#include "Toolkit/DLGEvents.h"
#include "Toolkit/DLGFocus.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/StartUp.h"
#include "tests/support/Gestures.h"

// Items of the demo dialog.
enum DemoItem : int32_t {
  kDemoOK = 1,
  kDemoCancel,
  kDemoEditLabel,
  kDemoEdit,
  kDemoComboLabel,
  kDemoCombo,
  kDemoCheckListLabel,
  kDemoCheckList,
  kDemoSelectAll,
  kDemoClearAll,
  kDemoListLabel,
  kDemoList,
  kDemoMultipleLabel,
  kDemoMultiple,
  kDemoCheck,
  kDemoRadio1,
  kDemoRadio2,
  kDemoSeparator,
  kDemoGroup,
  kDemoHelp,
  kDemoDisabledCheck,
  kDemoParagraph,
};
inline constexpr int32_t kDemoDialog = 500;

// The small dialogs, and the items of the one with three fields.
inline constexpr int32_t kFields = 501, kNoTabStops = 502, kUnregistered = 503, kFloatingDialog = 504,
                         kPaneItems = 505, kEveryType = 506;
inline constexpr int32_t kFieldsOK = 1, kFieldsCancel = 2, kFirst = 3, kSecond = 4, kThird = 5;

class ToolkitTest : public testing::Test {
 protected:
  void SetUp() override {
    static const bool gStarted = Start();
    ASSERT_TRUE(gStarted);
    ActiveTest() = this;
  }

  void TearDown() override {
    onHit = nullptr;
    for (DLGRecord* dialog : m_opened) DisposeDLG(dialog);  // those that are gone are ignored
    RunEventPass(0);
    ActiveTest() = nullptr;
  }

  // Shown; null when it cannot be made. Closed at the end of the test.
  DLGRecord* Open(int32_t id, int32_t kind = kDLGModal, WindowRef parent = nullptr) {
    DLGRecord* const dialog =
        GetDialogResource(parent, kind, nullptr, id, 0, RecordHit, RecordClose, nullptr);
    if (dialog == nullptr) return nullptr;
    m_opened.push_back(dialog);
    ShowDLG(dialog);
    RunEventPass(0);
    return dialog;
  }

  // A press and its release near the left edge, where a button's title is, as the window system sends them.
  static void Click(DLGRecord* dialog, int32_t item) {
    const Rect bounds = GetControlBounds(DLGGetChildControl(dialog, item));
    ClickAt(dialog,
            {static_cast<int16_t>((bounds.top + bounds.bottom) / 2), static_cast<int16_t>(bounds.left + 10)});
  }
  // The same at a point of the window. With `doubleClick` it is the second one of a double click.
  static void ClickAt(DLGRecord* dialog, Point where, bool doubleClick = false) {
    gestures::ClickAt(Window(dialog), {where.h, where.v}, doubleClick);
    RunEventPass(0);
  }

  static void Press(DLGRecord* dialog, int32_t item) {
    QTest::mouseClick(Widget(dialog, item), Qt::LeftButton);
  }

  static void Type(DLGRecord* dialog, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(Window(dialog), key, modifiers);
  }
  static bool Key(DLGRecord* dialog, uint16_t character, uint16_t modifiers = 0) {
    return DLGHandleKey(dialog->window, character, modifiers);
  }
  // The item's own answer to a key.
  static intptr_t ItemKey(DLGRecord* dialog, int32_t item, uint16_t character, uint16_t modifiers = 0) {
    return SendDLGItemMessage(dialog, item, kDLGKey, DLGPackKey(character, modifiers));
  }

  static void Wait(uint32_t ticks) {
    const uint32_t begin = TickCount();
    while (TickCount() - begin < ticks) RunEventPass(1);
  }

  // The dialog's window, found by its title.
  static QWidget* Window(DLGRecord* dialog) { return gestures::WindowTitled(GetWTitle(dialog->window)); }
  static QWidget* Widget(DLGRecord* dialog, int32_t item) { return gestures::Item(Window(dialog), item); }

  // The items reported to the dialogs' item-hit procedure since the last call.
  std::vector<int32_t> TakeHits() { return std::exchange(m_hits, {}); }

  std::function<void(DLGRecord*, int32_t)> onHit;
  bool mayClose = true;
  int closeCount = 0;  // how often a dialog asked whether it may close

 private:
  static ToolkitTest*& ActiveTest() {
    static ToolkitTest* gActive = nullptr;
    return gActive;
  }

  static intptr_t RecordHit(DLGRecord* dialog, int32_t item) {
    ToolkitTest* const test = ActiveTest();
    if (test == nullptr) return 0;
    test->m_hits.push_back(item);
    if (const auto hit = test->onHit) hit(dialog, item);  // which may replace onHit
    return 1;
  }

  static bool RecordClose(DLGRecord* /*dialog*/) {
    ToolkitTest* const test = ActiveTest();
    if (test == nullptr) return true;
    ++test->closeCount;
    return test->mayClose;
  }

  static bool OpenResources(const std::string& name) {
    const std::string path = std::string(TOOLKIT_RESOURCES).append("/").append(name);
    FSRef file;
    ResFileRefNum number = -1;
    return FSPathMakeRef(path.c_str(), &file, nullptr) == noErr &&
           FSOpenResourceFile(&file, 0, nullptr, fsRdPerm, &number) == noErr;
  }

  static bool Start() {
    return InitApplication() && _InitLumoLibrary(nullptr) == 1 && OpenResources("demo.rsrc") &&
           OpenResources("cases.rsrc");
  }

  std::vector<DLGRecord*> m_opened;
  std::vector<int32_t> m_hits;
};

// One dialog that is open from the start.
template <int32_t id, int32_t kind>
class OpenDialogTest : public ToolkitTest {
 protected:
  void SetUp() override {
    ToolkitTest::SetUp();
    m_dialog = Open(id, kind);
    ASSERT_NE(m_dialog, nullptr);
  }

  DLGRecord* m_dialog = nullptr;
};

using DemoTest = OpenDialogTest<kDemoDialog, kDLGModal>;
using FieldsTest = OpenDialogTest<kFields, kDLGModeless>;

#endif  // GRADIX_TESTS_TOOLKITFIXTURE_H
