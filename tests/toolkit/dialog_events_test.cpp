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

using Events = FieldsTest;
using Order = ToolkitTest;

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
  EXPECT_EQ(dialog->focusItem, kDemoSelectAll);
}

TEST_F(Events, TabGoesAround) {
  ASSERT_TRUE(SetFocusDLG(m_dialog, kFirst));
  Hits order;
  for (int i = 0; i < 5; ++i) {
    Type(m_dialog, Qt::Key_Tab);
    order.push_back(m_dialog->focusItem);
  }
  EXPECT_EQ(order, (Hits{kSecond, kThird, kFieldsOK, kFieldsCancel, kFirst}));
  SetFocusDLG(m_dialog, kFieldsOK);
  Type(m_dialog, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(m_dialog->focusItem, kThird);
  EXPECT_TRUE(Widget(m_dialog, kThird)->hasFocus()) << "the focus is visible";
  for (const int32_t item : {kFieldsOK, kFieldsCancel, kSecond}) EnableDLGItem(m_dialog, item, false);
  for (const int32_t next : {kFirst, kThird}) {
    Type(m_dialog, Qt::Key_Tab);
    EXPECT_EQ(m_dialog->focusItem, next) << "past what takes no focus";
  }
  EnableDLGItem(m_dialog, kFirst, false);
  for (const int32_t direction : {1, -1}) {
    DoTabKey(m_dialog, kThird, direction);
    EXPECT_EQ(m_dialog->focusItem, kThird) << "the only stop";
  }
  EXPECT_EQ(TakeHits(), Hits{});
}

TEST_F(Events, TabWithoutStopsAndFromNowhere) {
  EXPECT_FALSE(Key(m_dialog, kTabChar)) << "reported as not handled";
  EXPECT_EQ(m_dialog->focusItem, kFieldsOK);
  DLGRecord* dialog = Open(kNoTabStops);
  Type(dialog, Qt::Key_Tab);
  EXPECT_EQ(dialog->focusItem, -1);
}

TEST_F(Events, ReturnMovesTheFocusWhereNoButtonClaimsIt) {
  BTSetDefButton(m_dialog, -1);
  SetFocusDLG(m_dialog, kFirst);
  Type(m_dialog, Qt::Key_Return);
  EXPECT_EQ(m_dialog->focusItem, kSecond);
  Type(m_dialog, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(m_dialog->focusItem, kSecond);
  BTSetDefButton(m_dialog, kFieldsOK);
  Type(m_dialog, Qt::Key_Return);
  EXPECT_EQ(TakeHits(), Hits{kFieldsOK});
  Type(m_dialog, Qt::Key_Escape);
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
  static std::vector<std::pair<intptr_t, int32_t>> gChanges;
  gChanges.clear();
  m_dialog->event = [](DLGRecord*, int32_t event, intptr_t param1, intptr_t) -> intptr_t {
    gChanges.emplace_back(param1, event);
    return 0;
  };
  SetFocusDLG(m_dialog, kFirst);
  SetFocusDLG(m_dialog, kThird);
  SetFocusDLG(m_dialog, kThird);
  SetFocusDLG(m_dialog, -3);
  ASSERT_EQ(gChanges.size(), 3U);
  EXPECT_EQ(gChanges[1], (std::pair<intptr_t, int32_t>{(kThird << 16) | kFirst, 2}));
  EXPECT_EQ(m_dialog->focusItem, 0);
}

TEST_F(Events, TypingIntoAField) {
  SetFocusDLG(m_dialog, kFirst);
  QTest::keyClicks(Widget(m_dialog, kFirst), "Ann");
  EXPECT_STREQ(GetText(m_dialog, kFirst), "Ann");
  EXPECT_EQ(TakeHits(), (Hits{kFirst, kFirst, kFirst}));
  Type(m_dialog, Qt::Key_Left);
  Type(m_dialog, Qt::Key_Backspace);
  EXPECT_STREQ(GetText(m_dialog, kFirst), "An");
}

TEST_F(Events, Texts) {
  static int gSets;
  gSets = 0;
  static const DLGItemProc gOriginal = DLGFindItem(m_dialog, kFirst)->procedure;
  SetItemProc(m_dialog, kFirst,
              [](DLGRecord* d, int32_t item, int32_t message, intptr_t a, intptr_t b) -> intptr_t {
                gSets += message == kDLGSetText;
                return gOriginal(d, item, message, a, b);
              });
  SetText(m_dialog, kFirst, "Jos\x8E", true);
  SetText(m_dialog, kFirst, "Jos\x8E", true);
  EXPECT_EQ(gSets, 1) << "a text that is shown already is not set";
  EXPECT_STREQ(GetText(m_dialog, kFirst), "Jos\x8E");
  SetText(m_dialog, kFirst, nullptr, true);
  EXPECT_STREQ(GetText(m_dialog, kFirst), "");
  EXPECT_STREQ(GetText(m_dialog, 0), "");
  EXPECT_STREQ(GetText(m_dialog, 99), "");
  SetFocusDLG(m_dialog, kThird);
  const std::string longText(1500, 'x');
  SetText(m_dialog, kThird, longText.c_str(), true);
  EXPECT_EQ(std::string(m_dialog->focusText), std::string(1024, 'x'));
  EXPECT_EQ(std::string(GetText(m_dialog, kThird)), std::string(1000, 'x'));
}

TEST_F(Events, ShortenedTexts) {
  std::string text;
  for (int i = 0; i < 300; ++i) text += static_cast<char>('a' + i % 26);
  const auto shortened = [&](int32_t where) {
    TruncDLGItem(m_dialog, kThird, text.c_str(), where, true);
    return std::string(GetText(m_dialog, kThird));
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
  const int32_t width = DLGMeasureItem(m_dialog, kThird, end.c_str()) & 0xFFFF;
  EXPECT_LT(width, 230);
  EXPECT_GE(DLGMeasureItem(m_dialog, kThird, ("xx" + end).c_str()) & 0xFFFF, 230) << "no shorter than needed";
  TruncDLGItem(m_dialog, kThird, "fits", kTruncMiddle, true);
  EXPECT_STREQ(GetText(m_dialog, kThird), "fits");
  EXPECT_EQ(DLGMeasureItem(m_dialog, kThird, nullptr), DLGMeasureItem(m_dialog, kThird, "fits"));
  EXPECT_EQ(DLGMeasureItem(m_dialog, 0, "x"), 0);
}

TEST_F(Events, TheFocusReturnsToAnItemThatReturns) {
  const auto typed = [&](const char* text) {
    QTest::keyClicks(Window(m_dialog)->focusWidget(), text);
    return std::string(GetText(m_dialog, kFirst));
  };
  SetFocusDLG(m_dialog, kFirst);
  EXPECT_EQ(typed("a"), "a");
  EnableDLGItem(m_dialog, kFirst, false);
  EXPECT_EQ(typed("b"), "a");
  HideDLGItem(m_dialog, kFirst, true);
  EnableDLGItem(m_dialog, kFirst, true);
  EXPECT_EQ(typed("c"), "a");
  ShowDLGItem(m_dialog, kFirst, true);
  EXPECT_EQ(typed("d"), "ad");
  HideDLGItem(m_dialog, kFirst, true);
  SetFocusDLG(m_dialog, kSecond);
  ShowDLGItem(m_dialog, kFirst, true);
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
  void Cause() {
    switch (GetParam()) {
      case Way::kClick: Press(m_dialog, kFieldsOK); break;
      case Way::kHotKey: Type(m_dialog, Qt::Key_Return); break;
      case Way::kFocus:
        m_dialog->event = [](DLGRecord* d, int32_t, intptr_t, intptr_t) -> intptr_t {
          return DLGNotifyChange(d, kFieldsOK) ? 1 : 0;
        };
        SetFocusDLG(m_dialog, kFirst);
        break;
      case Way::kTimer:
        DLGRegisterTimer(m_dialog, kFieldsOK, 1);
        Wait(20);
        break;
      case Way::kAccessibility:
        QAccessible::queryAccessibleInterface(Widget(m_dialog, kFieldsOK))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        Wait(20);  // the press is shown for a moment
        break;
    }
  }
};

TEST_P(ClosingFrom, TheDialogCloses) {
  onHit = [](DLGRecord* d, int32_t) { MyCloseDialog(d); };
  Cause();
  EXPECT_EQ(TakeHits(), Hits{kFieldsOK});
  EXPECT_FALSE(DialogIsValid(m_dialog) || DLGIsOpen(kFields));
  EXPECT_EQ(closeCount, 1);
}

TEST_P(ClosingFrom, TheDialogClosesAndAnotherOfTheSameIdOpens) {
  onHit = [this](DLGRecord* d, int32_t) {
    onHit = nullptr;
    MyCloseDialog(d);
    Open(kFields, kDLGModeless);
  };
  Cause();
  EXPECT_EQ(TakeHits(), Hits{kFieldsOK});
  EXPECT_TRUE(DLGIsOpen(kFields));
}

TEST_P(ClosingFrom, AModalDialogRunsMeanwhile) {
  onHit = [this](DLGRecord*, int32_t) {
    onHit = [](DLGRecord* d, int32_t) { MyCloseDialog(d); };
    DLGRecord* modal = Open(kDemoDialog);
    QTimer::singleShot(20, [modal] { Press(modal, kDemoCancel); });
    ModalDLG(modal);
    EXPECT_FALSE(DialogIsValid(modal));
  };
  Cause();
  EXPECT_EQ(TakeHits(), (Hits{kFieldsOK, kDemoCancel}));
  EXPECT_TRUE(DialogIsValid(m_dialog));
  EXPECT_EQ(GetPort(), m_dialog->window);
}

INSTANTIATE_TEST_SUITE_P(Ways, ClosingFrom,
                         testing::Values(Way::kClick, Way::kHotKey, Way::kFocus, Way::kTimer,
                                         Way::kAccessibility));

TEST_F(Events, AVetoKeepsTheDialog) {
  mayClose = false;
  EXPECT_FALSE(MyCloseDialog(m_dialog));
  EXPECT_TRUE(DialogIsValid(m_dialog));
  EXPECT_FALSE(MyCloseDialog(nullptr));
  mayClose = true;
  EXPECT_TRUE(MyCloseDialog(m_dialog));
  EXPECT_FALSE(MyCloseDialog(m_dialog)) << "a dialog that is gone";
}

TEST_F(Order, ClosingAll) {
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

TEST_F(Order, ClosingAllStopsAtTheFirstRefusal) {
  DLGRecord* back = Open(kNoTabStops, kDLGModeless);
  Open(kFields, kDLGModeless);  // nothing closes it on Cancel
  EXPECT_FALSE(CloseAllDialogs());
  EXPECT_TRUE(DialogIsValid(back));
}

TEST_F(Events, ClosingTheWindowPressesCancel) {
  EXPECT_FALSE(Window(m_dialog)->close());
  EXPECT_EQ(TakeHits(), Hits{kFieldsCancel});
  EXPECT_TRUE(DialogIsValid(m_dialog)) << "the owner decides";
  onHit = [](DLGRecord* d, int32_t) { MyCloseDialog(d); };
  EXPECT_TRUE(Window(m_dialog)->close()) << "nothing keeps the application from quitting";
  EXPECT_FALSE(DialogIsValid(m_dialog));
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
    SetFocusDLG(m_dialog, kFirst);
    Teach(m_dialog, kFirst, row.message, [](DLGRecord* d) { DisposeDLG(d); });
    row.cause(m_dialog);
    EXPECT_FALSE(DialogIsValid(m_dialog)) << "message " << row.message;
    m_dialog = Open(kFields, kDLGModeless);
  }
}

TEST_F(Unruly, ADialogWorksAfterAnItemThrew) {
  const DLGItemProc procedure = DLGFindItem(m_dialog, kFieldsCancel)->procedure;
  for (const int32_t message : {kDLGFocus, kDLGMouseDown, kDLGMouseStillDown, kDLGMouseUp}) {
    SetFocusDLG(m_dialog, kFirst);
    Teach(m_dialog, kFieldsCancel, message, [](DLGRecord*) { throw 1; });
    QWidget* const button = Widget(m_dialog, kFieldsCancel);
    QTimer::singleShot(50, button, [button] { QTest::mouseRelease(button, Qt::LeftButton); });
    QTest::mousePress(button, Qt::LeftButton);
    Wait(6);
    EXPECT_EQ(focusType, 0) << "message " << message;
    SetItemProc(m_dialog, kFieldsCancel, procedure);
    Press(m_dialog, kFieldsOK);
    EXPECT_EQ(TakeHits(), Hits{kFieldsOK}) << "message " << message;
    EXPECT_EQ(m_dialog->trackingItem, -1) << "message " << message;
  }
}

TEST_F(Events, AClickBehindAModalDialogBeeps) {
  DLGRecord* demo = Open(kDemoDialog);
  const uint32_t beeps = GetBeepCount();
  Press(m_dialog, kFieldsOK);
  EXPECT_EQ(GetBeepCount(), beeps + 1);
  EXPECT_EQ(TakeHits(), Hits{});
  EXPECT_EQ(FrontWindow(), demo->window);
}

TEST_F(Order, AClickIntoAWindowBehindOnlySelectsIt) {
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

TEST_F(Order, FloatingWindowsTakeClicksAndHotKeys) {
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
  for (int i = 0; i < 10; ++i) EXPECT_TRUE(DLGRegisterTimer(m_dialog, kFirst, 100000));
  EXPECT_FALSE(DLGRegisterTimer(m_dialog, kFirst, 1));
  m_dialog->timers[4] = {kSecond, TickCount()};
  EXPECT_TRUE(Key(m_dialog, 'x')) << "a timer that is due takes the key";
  EXPECT_EQ(TakeHits(), Hits{kSecond});
  EXPECT_EQ(m_dialog->timerCount, 9);
}

TEST_F(Events, TimersGoOnAfterOneThrewAndWhileOneRunsTheEventLoop) {
  const auto register3 = [this] {
    for (const int32_t item : {kFirst, kSecond, kThird}) DLGRegisterTimer(m_dialog, item, 1);
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
  DLGRecord* second = Open(kFields, kDLGModeless);
  QTimer::singleShot(10, [this] { MyCloseDialog(m_dialog); });
  QTimer::singleShot(60, [=] { MyCloseDialog(second); });
  ModalDLG(m_dialog);
  EXPECT_FALSE(DialogIsValid(m_dialog) || DialogIsValid(second));
  DLGRecord* third = Open(kFields, kDLGModeless);
  gDone = true;
  ModalDLG(third);  // returns at once
  gDone = false;
  EXPECT_TRUE(DialogIsValid(third));
}

TEST_F(Events, TheDialogGoesWhileItsButtonIsHeld) {
  QWidget* button = Widget(m_dialog, kFieldsOK);
  QTimer::singleShot(50, [this] { DisposeDLG(m_dialog); });
  QTest::mousePress(button, Qt::LeftButton);
  Wait(12);
  EXPECT_FALSE(DialogIsValid(m_dialog));
  EXPECT_EQ(TakeHits(), Hits{});
}

}  // namespace
