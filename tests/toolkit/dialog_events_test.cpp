// Dialogs at work: mouse, keys, focus, closing from anywhere, modal running, texts. Presses and keys are Qt
// events.
#include <QAccessible>
#include <QLineEdit>
#include <QTimer>

#include "Platform/Ui/Windows.h"
#include "Toolkit/Buttons.h"
#include "Toolkit/DLGTimers.h"
#include "ToolkitFixture.h"

namespace {

using Hits = std::vector<int32_t>;

constexpr int32_t kFields = 501, kNoTabStops = 502, kFloatingDialog = 504;
constexpr int32_t kFieldsOK = 1, kFieldsCancel = 2, kFirst = 3, kSecond = 4, kThird = 5;

class Events : public ToolkitTest {
 protected:
  static void Press(DLGRecord* dialog, int32_t item) {
    QTest::mouseClick(Widget(dialog, item), Qt::LeftButton);
  }
  static void Type(DLGRecord* dialog, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(Window(dialog), key, modifiers);
  }
};

TEST_F(Events, PressingAButton) {
  DLGRecord* dialog = Open(kDemoDialog);
  Press(dialog, kDemoSelectAll);
  EXPECT_EQ(TakeHits(), Hits{kDemoSelectAll});
  EXPECT_EQ(dialog->focusItem, kDemoSelectAll);
  EXPECT_EQ(dialog->trackingItem, -1);
}

TEST_F(Events, DisabledHiddenAndSilentItems) {
  DLGRecord* dialog = Open(kDemoDialog);
  Press(dialog, kDemoDisabledCheck);
  EnableDLGItem(dialog, kDemoSelectAll, false);
  Press(dialog, kDemoSelectAll);
  HideDLGItem(dialog, kDemoClearAll, true);
  ClickAt(dialog, {240, 200});  // where it was
  RemoveItemFlags(dialog, kDemoHelp, kDLGNotify);
  Press(dialog, kDemoHelp);
  EXPECT_EQ(TakeHits(), Hits{});
  EnableDLGItem(dialog, kDemoSelectAll, true);
  Press(dialog, kDemoSelectAll);
  EXPECT_EQ(TakeHits(), Hits{kDemoSelectAll});
}

TEST_F(Events, TabGoesAround) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  ASSERT_TRUE(SetFocusDLG(dialog, kFirst));
  Hits order;
  for (int i = 0; i < 5; ++i) {
    Type(dialog, Qt::Key_Tab);
    order.push_back(dialog->focusItem);
  }
  EXPECT_EQ(order, (Hits{kSecond, kThird, kFieldsOK, kFieldsCancel, kFirst}));
  SetFocusDLG(dialog, kFieldsOK);
  Type(dialog, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(dialog->focusItem, kThird);
  EXPECT_TRUE(Widget(dialog, kThird)->hasFocus()) << "the focus is visible";
  EXPECT_EQ(TakeHits(), Hits{});
}

TEST_F(Events, TabWithoutStopsAndFromNowhere) {
  DLGRecord* dialog = Open(kNoTabStops);
  Type(dialog, Qt::Key_Tab);
  EXPECT_EQ(dialog->focusItem, -1);
  DLGRecord* fields = Open(kFields, kDLGModeless);
  EXPECT_FALSE(Key(fields, kTabChar)) << "reported as not handled";
  EXPECT_EQ(fields->focusItem, kFieldsOK);
}

TEST_F(Events, ReturnMovesTheFocusWhereNoButtonClaimsIt) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  BTSetDefButton(dialog, -1);
  SetFocusDLG(dialog, kFirst);
  Type(dialog, Qt::Key_Return);
  EXPECT_EQ(dialog->focusItem, kSecond);
  Type(dialog, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(dialog->focusItem, kSecond);
  BTSetDefButton(dialog, kFieldsOK);
  Type(dialog, Qt::Key_Return);
  EXPECT_EQ(TakeHits(), Hits{kFieldsOK});
  Type(dialog, Qt::Key_Escape);
  EXPECT_EQ(TakeHits(), Hits{kFieldsCancel});
}

TEST_F(Events, TheFocusIsRefusedAndAskedFor) {
  DLGRecord* dialog = Open(kDemoDialog);
  EXPECT_FALSE(SetFocusDLG(dialog, kDemoDisabledCheck));
  EXPECT_FALSE(SetFocusDLG(dialog, kDemoParagraph));
  EXPECT_FALSE(SetFocusDLG(dialog, 23));
  ASSERT_TRUE(SetFocusDLG(dialog, kDemoEdit));
  SetItemProc(dialog, kDemoEdit,
              [](DLGRecord*, int32_t, int32_t, intptr_t, intptr_t) -> intptr_t { return 0; });
  EXPECT_FALSE(SetFocusDLG(dialog, kDemoCombo)) << "the item keeps the focus";
  Press(dialog, kDemoSelectAll);
  EXPECT_EQ(TakeHits(), Hits{}) << "no press while the focus does not move";
  EXPECT_EQ(dialog->focusItem, kDemoEdit);
}

TEST_F(Events, AFocusChangeIsReported) {
  static std::vector<std::pair<intptr_t, int32_t>> s_changes;
  s_changes.clear();
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  dialog->event = [](DLGRecord*, int32_t event, intptr_t param1, intptr_t) -> intptr_t {
    s_changes.emplace_back(param1, event);
    return 0;
  };
  SetFocusDLG(dialog, kFirst);
  SetFocusDLG(dialog, kThird);
  SetFocusDLG(dialog, kThird);
  SetFocusDLG(dialog, -3);
  ASSERT_EQ(s_changes.size(), 3U);
  EXPECT_EQ(s_changes[1], (std::pair<intptr_t, int32_t>{(kThird << 16) | kFirst, 2}));
  EXPECT_EQ(dialog->focusItem, 0);
}

TEST_F(Events, TypingIntoAField) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  SetFocusDLG(dialog, kFirst);
  QTest::keyClicks(Widget(dialog, kFirst), "Ann");
  EXPECT_STREQ(GetText(dialog, kFirst), "Ann");
  EXPECT_EQ(TakeHits(), (Hits{kFirst, kFirst, kFirst}));
  Type(dialog, Qt::Key_Left);
  Type(dialog, Qt::Key_Backspace);
  EXPECT_STREQ(GetText(dialog, kFirst), "An");
}

TEST_F(Events, Texts) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  static int s_sets;
  s_sets = 0;
  static DLGItemProc s_original;
  s_original = DLGFindItem(dialog, kFirst)->procedure;
  SetItemProc(dialog, kFirst,
              [](DLGRecord* d, int32_t item, int32_t message, intptr_t a, intptr_t b) -> intptr_t {
                s_sets += message == kDLGSetText;
                return s_original(d, item, message, a, b);
              });
  SetText(dialog, kFirst, "Jos\x8E", true);
  SetText(dialog, kFirst, "Jos\x8E", true);
  EXPECT_EQ(s_sets, 1) << "a text that is shown already is not set";
  EXPECT_STREQ(GetText(dialog, kFirst), "Jos\x8E");
  SetText(dialog, kFirst, nullptr, true);
  EXPECT_STREQ(GetText(dialog, kFirst), "");
  EXPECT_STREQ(GetText(dialog, 0), "");
  EXPECT_STREQ(GetText(dialog, 99), "");
  SetFocusDLG(dialog, kThird);
  const std::string longText(1500, 'x');
  SetText(dialog, kThird, longText.c_str(), true);
  EXPECT_EQ(std::string(dialog->focusText), std::string(1024, 'x'));
  EXPECT_EQ(std::string(GetText(dialog, kThird)), std::string(1000, 'x'));
}

TEST_F(Events, ShortenedTexts) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  std::string text;
  for (int i = 0; i < 300; ++i) text += static_cast<char>('a' + i % 26);
  const auto shortened = [&](int32_t where) {
    TruncDLGItem(dialog, kThird, text.c_str(), where, true);
    return std::string(GetText(dialog, kThird));
  };
  const auto endsWith = [](const std::string& whole, const std::string& end) {
    return whole.size() >= end.size() && whole.compare(whole.size() - end.size(), end.size(), end) == 0;
  };
  const std::string used = text.substr(0, 250);
  const std::string middle = shortened(kTruncMiddle);
  const size_t ellipsis = middle.find('\xC9');
  ASSERT_NE(ellipsis, std::string::npos);
  EXPECT_EQ(middle.size(), 2 * ellipsis + 1) << "as much of both ends";
  EXPECT_EQ(middle.substr(0, ellipsis), used.substr(0, ellipsis));
  EXPECT_TRUE(endsWith(used, middle.substr(ellipsis + 1)));
  const std::string beginning = shortened(kTruncEnd);
  EXPECT_EQ(beginning, used.substr(0, beginning.size() - 1) + '\xC9');
  const std::string end = shortened(kTruncStart);
  EXPECT_EQ(end[0], '\xC9');
  EXPECT_TRUE(endsWith(used, end.substr(1)));
  const int32_t width = DLGMeasureItem(dialog, kThird, end.c_str()) & 0xFFFF;
  EXPECT_LT(width, 230);
  EXPECT_GE(DLGMeasureItem(dialog, kThird, ("xx" + end).c_str()) & 0xFFFF, 230) << "no shorter than needed";
  TruncDLGItem(dialog, kThird, "fits", kTruncMiddle, true);
  EXPECT_STREQ(GetText(dialog, kThird), "fits");
  EXPECT_EQ(DLGMeasureItem(dialog, kThird, nullptr), DLGMeasureItem(dialog, kThird, "fits"));
  EXPECT_EQ(DLGMeasureItem(dialog, 0, "x"), 0);
}

TEST_F(Events, TheFocusReturnsToAnItemThatReturns) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  const auto typed = [&](const char* text) {
    QTest::keyClicks(Window(dialog)->focusWidget(), text);
    return std::string(GetText(dialog, kFirst));
  };
  SetFocusDLG(dialog, kFirst);
  EXPECT_EQ(typed("a"), "a");
  EnableDLGItem(dialog, kFirst, false);
  EXPECT_EQ(typed("b"), "a");
  HideDLGItem(dialog, kFirst, true);
  EnableDLGItem(dialog, kFirst, true);
  EXPECT_EQ(typed("c"), "a");
  ShowDLGItem(dialog, kFirst, true);
  EXPECT_EQ(typed("d"), "ad");
  HideDLGItem(dialog, kFirst, true);
  SetFocusDLG(dialog, kSecond);
  ShowDLGItem(dialog, kFirst, true);
  EXPECT_EQ(typed("e"), "ad") << "it went elsewhere meanwhile";
}

TEST_F(Events, RedrawMarks) {
  DLGRecord* dialog =
      GetDialogResource(nullptr, kDLGModeless, nullptr, kFields, 0, nullptr, nullptr, nullptr);
  InvalDLGItem(dialog, kFirst);
  EXPECT_TRUE((GetItemFlags(dialog, kFirst) & kDLGRedrawPending) != 0);
  EXPECT_TRUE((dialog->flags & kDLGRedrawPending) != 0);
  ShowDLG(dialog);
  EXPECT_FALSE((GetItemFlags(dialog, kFirst) & kDLGRedrawPending) != 0);
  EXPECT_FALSE((dialog->flags & kDLGRedrawPending) != 0);
  dialog->flags |= kDLGInvalidateAtOnce;
  InvalDLGItem(dialog, kFirst);
  EXPECT_FALSE((GetItemFlags(dialog, kFirst) & kDLGRedrawPending) != 0);
  DisposeDLG(dialog);
}

// What makes an item report to its dialog.
enum class Way { kClick, kHotKey, kFocus, kTimer, kAccessibility };

class ClosingFrom : public Events, public testing::WithParamInterface<Way> {
 protected:
  void Cause(DLGRecord* dialog) {
    switch (GetParam()) {
      case Way::kClick: Press(dialog, kFieldsOK); break;
      case Way::kHotKey: Type(dialog, Qt::Key_Return); break;
      case Way::kFocus:
        dialog->event = [](DLGRecord* d, int32_t, intptr_t, intptr_t) -> intptr_t {
          return DLGNotifyChange(d, kFieldsOK) ? 1 : 0;
        };
        SetFocusDLG(dialog, kFirst);
        break;
      case Way::kTimer:
        DLGRegisterTimer(dialog, kFieldsOK, 1);
        Wait(20);
        break;
      case Way::kAccessibility:
        QAccessible::queryAccessibleInterface(Widget(dialog, kFieldsOK))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        Wait(20);  // the press is shown for a moment
        break;
    }
  }
};

TEST_P(ClosingFrom, TheDialogCloses) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  onHit = [](DLGRecord* d, int32_t) { MyCloseDialog(d); };
  Cause(dialog);
  EXPECT_EQ(TakeHits(), Hits{kFieldsOK});
  EXPECT_FALSE(DialogIsValid(dialog));
  EXPECT_FALSE(DLGIsOpen(kFields));
  EXPECT_EQ(closeCount, 1);
}

TEST_P(ClosingFrom, TheDialogClosesAndAnotherOfTheSameIdOpens) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  onHit = [this](DLGRecord* d, int32_t) {
    onHit = nullptr;
    MyCloseDialog(d);
    Open(kFields, kDLGModeless);
  };
  Cause(dialog);
  EXPECT_EQ(TakeHits(), Hits{kFieldsOK});
  EXPECT_TRUE(DLGIsOpen(kFields));
}

TEST_P(ClosingFrom, AModalDialogRunsMeanwhile) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  onHit = [this](DLGRecord*, int32_t) {
    onHit = [](DLGRecord* d, int32_t) { MyCloseDialog(d); };
    DLGRecord* modal = Open(kDemoDialog);
    QTimer::singleShot(20, [modal] { Press(modal, kDemoCancel); });
    ModalDLG(modal);
    EXPECT_FALSE(DialogIsValid(modal));
  };
  Cause(dialog);
  EXPECT_EQ(TakeHits(), (Hits{kFieldsOK, kDemoCancel}));
  EXPECT_TRUE(DialogIsValid(dialog));
  EXPECT_EQ(GetPort(), dialog->window);
}

INSTANTIATE_TEST_SUITE_P(Ways, ClosingFrom,
                         testing::Values(Way::kClick, Way::kHotKey, Way::kFocus, Way::kTimer,
                                         Way::kAccessibility));

TEST_F(Events, AVetoKeepsTheDialog) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  mayClose = false;
  EXPECT_FALSE(MyCloseDialog(dialog));
  EXPECT_TRUE(DialogIsValid(dialog));
  EXPECT_FALSE(MyCloseDialog(nullptr));
  mayClose = true;
  EXPECT_TRUE(MyCloseDialog(dialog));
  EXPECT_FALSE(MyCloseDialog(dialog)) << "a dialog that is gone";
}

TEST_F(Events, ClosingAll) {
  onHit = [](DLGRecord* d, int32_t item) {
    if (item == d->cancelItem) MyCloseDialog(d);
  };
  DLGRecord* back = Open(kNoTabStops, kDLGModeless);
  DLGRecord* front = Open(kFields, kDLGModeless);
  const WindowRef plain = CreateNewWindow(kDocumentWindowClass, 0, {10, 10, 100, 100});
  EXPECT_TRUE(CloseAllDialogs());
  EXPECT_EQ(TakeHits(), Hits{kFieldsCancel}) << "one with a cancel item is closed by pressing it";
  EXPECT_EQ(closeCount, 2);
  EXPECT_FALSE(DialogIsValid(front) || DialogIsValid(back) || IsValidWindow(plain));
}

TEST_F(Events, ClosingAllStopsAtTheFirstRefusal) {
  DLGRecord* back = Open(kNoTabStops, kDLGModeless);
  Open(kFields, kDLGModeless);  // nothing closes it on Cancel
  EXPECT_FALSE(CloseAllDialogs());
  EXPECT_TRUE(DialogIsValid(back));
}

TEST_F(Events, ClosingTheWindowPressesCancel) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  EXPECT_FALSE(Window(dialog)->close());
  EXPECT_EQ(TakeHits(), Hits{kFieldsCancel});
  EXPECT_TRUE(DialogIsValid(dialog)) << "the owner decides";
  onHit = [](DLGRecord* d, int32_t) { MyCloseDialog(d); };
  EXPECT_TRUE(Window(dialog)->close()) << "nothing keeps the application from quitting";
  EXPECT_FALSE(DialogIsValid(dialog));
}

// An item that ends its dialog, or throws, when it gets a certain message.
class Unruly : public Events {
 protected:
  static void Teach(DLGRecord* dialog, int32_t item, int32_t message, void (*act)(DLGRecord* dialog)) {
    gMessage = message;
    gAct = act;
    gOriginal = DLGFindItem(dialog, item)->procedure;
    SetItemProc(dialog, item, [](DLGRecord* d, int32_t i, int32_t m, intptr_t a, intptr_t b) -> intptr_t {
      if (m != gMessage) return gOriginal(d, i, m, a, b);
      gAct(d);
      return kDLGTakesDoubleClicks;  // "yes" to every question
    });
  }

 private:
  static inline int32_t gMessage = 0;
  static inline void (*gAct)(DLGRecord*) = nullptr;
  static inline DLGItemProc gOriginal = nullptr;
};

TEST_F(Unruly, NothingReadsADialogThatAnItemEnded) {
  const struct {
    int32_t message;
    const char* name;
    void (*cause)(DLGRecord* dialog);
  } rows[] = {
      {kDLGGetText, "SetText", [](DLGRecord* d) { SetText(d, kFirst, "new", true); }},
      {kDLGSetText, "SetText", [](DLGRecord* d) { SetText(d, kFirst, "new", true); }},
      {kDLGGetText, "DLGMeasureItem", [](DLGRecord* d) { DLGMeasureItem(d, kFirst, nullptr); }},
      {kDLGHitTest, "click", [](DLGRecord* d) { Click(d, kFirst); }},
      {kDLGDoubleClick, "double click",
       [](DLGRecord* d) {
         const Rect bounds = GetControlBounds(DLGGetChildControl(d, kFirst));
         ClickAt(d, {bounds.top, bounds.left}, true);
       }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    DLGRecord* dialog = Open(kFields, kDLGModeless);
    SetFocusDLG(dialog, kFirst);
    Teach(dialog, kFirst, row.message, [](DLGRecord* d) { DisposeDLG(d); });
    row.cause(dialog);
    EXPECT_FALSE(DialogIsValid(dialog)) << "message " << row.message;
  }
}

TEST_F(Unruly, ADialogWorksAfterAnItemThrew) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  const DLGItemProc procedure = DLGFindItem(dialog, kFieldsCancel)->procedure;
  for (const int32_t message : {kDLGFocus, kDLGMouseDown, kDLGMouseStillDown, kDLGMouseUp}) {
    SetFocusDLG(dialog, kFirst);
    Teach(dialog, kFieldsCancel, message, [](DLGRecord*) { throw 1; });
    QWidget* const button = Widget(dialog, kFieldsCancel);
    QTimer::singleShot(50, button, [button] { QTest::mouseRelease(button, Qt::LeftButton); });
    QTest::mousePress(button, Qt::LeftButton);
    Wait(6);
    EXPECT_EQ(focusType, 0) << "message " << message;
    SetItemProc(dialog, kFieldsCancel, procedure);
    Press(dialog, kFieldsOK);
    EXPECT_EQ(TakeHits(), Hits{kFieldsOK}) << "message " << message;
    EXPECT_EQ(dialog->trackingItem, -1) << "message " << message;
  }
}

TEST_F(Events, AClickBehindAModalDialogBeeps) {
  DLGRecord* fields = Open(kFields, kDLGModeless);
  DLGRecord* demo = Open(kDemoDialog);
  const uint32_t beeps = GetBeepCount();
  Press(fields, kFieldsOK);
  EXPECT_EQ(GetBeepCount(), beeps + 1);
  EXPECT_EQ(TakeHits(), Hits{});
  EXPECT_EQ(FrontWindow(), demo->window);
}

TEST_F(Events, AClickIntoAWindowBehindOnlySelectsIt) {
  DLGRecord* back = Open(kNoTabStops, kDLGModeless);
  EnableDLGItem(back, 2, true);
  DLGRecord* front = Open(kFields, kDLGModeless);
  ASSERT_EQ(FrontWindow(), front->window);
  Press(back, 2);
  EXPECT_EQ(TakeHits(), Hits{});
  EXPECT_EQ(FrontWindow(), back->window);
  Press(back, 2);
  EXPECT_EQ(TakeHits(), Hits{2});
}

TEST_F(Events, FloatingWindowsTakeClicksAndHotKeys) {
  DLGRecord* floating = Open(kFloatingDialog, kDLGFloating);
  DLGRecord* fields = Open(kFields, kDLGModeless);
  BTSetDefButton(floating, 1);
  SelectWindow(floating->window);
  Press(fields, kFieldsCancel);
  EXPECT_EQ(TakeHits(), Hits{kFieldsCancel}) << "the front window but for the floating one";
  Type(fields, Qt::Key_Return);
  EXPECT_EQ(TakeHits(), Hits{1}) << "the floating window's default button is asked first";
  SelectWindow(fields->window);
  Press(floating, 2);
  EXPECT_EQ(TakeHits(), Hits{2});
}

TEST_F(Events, Timers) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  for (int i = 0; i < 10; ++i) EXPECT_TRUE(DLGRegisterTimer(dialog, kFirst, 100000));
  EXPECT_FALSE(DLGRegisterTimer(dialog, kFirst, 1));
  dialog->timers[4] = {kSecond, TickCount()};
  EXPECT_TRUE(Key(dialog, 'x')) << "a timer that is due takes the key";
  EXPECT_EQ(TakeHits(), Hits{kSecond});
  EXPECT_EQ(dialog->timerCount, 9);
}

TEST_F(Events, TimersGoOnAfterOneThrewAndWhileOneRunsTheEventLoop) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  const auto register3 = [dialog] {
    for (const int32_t item : {kFirst, kSecond, kThird}) DLGRegisterTimer(dialog, item, 1);
  };
  onHit = [](DLGRecord*, int32_t item) {
    if (item == kFirst) throw 1;
  };
  register3();
  Wait(30);
  EXPECT_EQ(TakeHits(), (Hits{kFirst, kSecond, kThird}));

  DLGRecord* other = Open(kNoTabStops, kDLGModeless);
  EnableDLGItem(other, 2, true);
  onHit = [this, other](DLGRecord*, int32_t item) {
    if (item != kFirst) return;
    DLGRegisterTimer(other, 2, 1);
    Wait(30);
  };
  register3();
  Wait(40);
  EXPECT_EQ(TakeHits(), (Hits{kFirst, kSecond, kThird, 2})) << "all but the first in the inner loop";
}

TEST_F(Events, ModalRunningEndsWithTheLastDialogOfTheId) {
  DLGRecord* first = Open(kFields, kDLGModeless);
  DLGRecord* second = Open(kFields, kDLGModeless);
  QTimer::singleShot(10, [=] { MyCloseDialog(first); });
  QTimer::singleShot(60, [=] { MyCloseDialog(second); });
  ModalDLG(first);
  EXPECT_FALSE(DialogIsValid(first) || DialogIsValid(second));
  DLGRecord* third = Open(kFields, kDLGModeless);
  gDone = true;
  ModalDLG(third);  // returns at once
  gDone = false;
  EXPECT_TRUE(DialogIsValid(third));
}

TEST_F(Events, TheDialogGoesWhileItsButtonIsHeld) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  QWidget* button = Widget(dialog, kFieldsOK);
  QTimer::singleShot(50, [=] { DisposeDLG(dialog); });
  QTest::mousePress(button, Qt::LeftButton);
  Wait(12);
  EXPECT_FALSE(DialogIsValid(dialog));
  EXPECT_EQ(TakeHits(), Hits{});
}

}  // namespace
