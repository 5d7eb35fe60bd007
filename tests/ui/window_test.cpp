// Windows, the event loop, alerts and the desktop.
#include <QTimer>

#include "Platform/Core/CFString.h"
#include "Platform/Ui/Alerts.h"
#include "Platform/Ui/Launch.h"
#include "tests/support/UrlTaker.h"
#include "tests/ui/DialogFixture.h"

namespace {

WindowRef MakeWindow(const std::string& title, WindowClass windowClass = kDocumentWindowClass) {
  const WindowRef window = CreateNewWindow(windowClass, kWindowCloseBoxAttribute, {50, 60, 150, 260});
  SetWTitle(window, title);
  return window;
}

std::string Order() {
  std::string order;
  for (WindowRef window = GetWindowList(); window != nullptr; window = GetNextWindow(window)) {
    order += GetWTitle(window) + " ";
  }
  return order;
}

class WindowTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    DisposeDialog(m_dialog);
  }
};

TEST_F(WindowTest, OrderIsFrontToBack) {
  const WindowRef a = MakeWindow("a");
  const WindowRef b = MakeWindow("b");
  const WindowRef palette = MakeWindow("palette", kFloatingWindowClass);
  EXPECT_EQ(Order(), "palette b a ");
  EXPECT_EQ(FrontWindow(), nullptr);
  ShowWindow(a);
  ShowWindow(palette);
  EXPECT_EQ(FrontWindow(), palette);
  EXPECT_EQ(FrontNonFloatingWindow(), a);
  SelectWindow(a);
  EXPECT_EQ(Order(), "a palette b ");
  EXPECT_TRUE(IsWindowInFrontOf(a, b));
  EXPECT_FALSE(IsWindowInFrontOf(b, a));
  BringToFront(b);
  EXPECT_EQ(FrontWindow(), a) << "b is hidden";
  DisposeWindow(a);
  EXPECT_EQ(Order(), "b palette ");
  EXPECT_FALSE(IsWindowInFrontOf(a, b));
  EXPECT_FALSE(IsValidWindow(a));
  EXPECT_EQ(GetRootControl(a), nullptr);
  EXPECT_EQ(GetControlKind(GetRootControl(b)), kControlKindRoot);
}

TEST_F(WindowTest, PlaceSizeAndAttributes) {
  const WindowRef window = MakeWindow("w");
  EXPECT_TRUE(GetWindowPortBounds(window) == (Rect{0, 0, 100, 200}));
  ShowWindow(window);
  MoveWindow(window, 30, 40);
  SizeWindow(window, 320, 240);
  RunEventPass(0);
  EXPECT_TRUE(GetWindowScreenBounds(window) == (Rect{40, 30, 280, 350}));
  EXPECT_TRUE(WidgetOf(window)->windowFlags().testFlag(Qt::WindowCloseButtonHint));
  EXPECT_FALSE(WidgetOf(window)->windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
  ChangeWindowAttributes(window, kWindowCollapseBoxAttribute, kWindowCloseBoxAttribute);
  EXPECT_FALSE(WidgetOf(window)->windowFlags().testFlag(Qt::WindowCloseButtonHint));
  EXPECT_TRUE(WidgetOf(window)->windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
  EXPECT_TRUE(GetWindowScreenBounds(window) == (Rect{40, 30, 280, 350}));
  EXPECT_EQ(GetWindowAttributes(window), uint32_t{kWindowCollapseBoxAttribute});
}

TEST_F(WindowTest, DamagedBoundsAreNoLargerThanAScreen) {
  const auto dialog = [](const Rect& bounds) { return RectData(bounds) + DialogData("w").substr(8); };
  const Rect widest{INT16_MIN, INT16_MIN, INT16_MAX, INT16_MAX};
  const OpenFork fork(
      {{"DLOG",
        {{1, dialog(widest)}, {2, dialog({90, 80, 10, 20})}, {3, dialog({30000, 30000, 32000, 32000})}}},
       {"DITL", {{100, ItemListData({{widest, 4, "a"}, {{20, 200, 10, 100}, 5, "b"}})}}}});
  for (const int16_t id : {int16_t{1}, int16_t{2}, int16_t{3}}) {
    const DialogRef opened = GetNewDialog(id);
    ASSERT_NE(opened, nullptr);
    const Rect window = GetWindowScreenBounds(GetDialogWindow(opened));
    EXPECT_LE(RectWidth(window), 4000) << id;
    EXPECT_LE(RectHeight(window), 4000) << id;
    EXPECT_LE(window.left, 4000) << id;
    const Rect large = GetControlBounds(GetDialogItemAsControl(opened, 1));
    EXPECT_TRUE(large == (Rect{-4000, -4000, 0, 0}));
    const Rect inverted = GetControlBounds(GetDialogItemAsControl(opened, 2));
    EXPECT_TRUE(inverted == (Rect{20, 200, 20, 200}));
  }
}

TEST_F(WindowTest, ActivationByOthersIsToldUnlessAPressFollows) {
  const WindowRef back = MakeWindow("back");
  const WindowRef front = MakeWindow("front");
  ShowWindow(back);
  ShowWindow(front);
  SelectWindow(front);
  QTest::qWait(150);
  EXPECT_EQ(TakeLog(), EventLog{});
  WidgetOf(back)->activateWindow();
  RunEventPass(1);
  EXPECT_EQ(TakeLog(), EventLog{});
  QTest::qWait(200);
  EXPECT_EQ(TakeLog(), EventLog{"activate back"});

  SelectWindow(front);
  QTest::qWait(150);
  WidgetOf(back)->activateWindow();
  RunEventPass(1);
  m_onMouseDown = [](WindowRef window, const MouseEvent& /*event*/) {
    EXPECT_NE(FrontWindow(), window) << "the order is the old one";
  };
  QTest::mouseClick(WidgetOf(back), Qt::LeftButton);
  QTest::qWait(200);
  EXPECT_EQ(TakeLog(), EventLog{"down"});
}

TEST_F(WindowTest, AParentMayGoFirst) {
  const WindowRef parent = MakeWindow("parent");
  const WindowRef child = MakeWindow("child");
  ShowWindow(parent);
  SetWindowParent(child, parent);
  ShowWindow(child);
  EXPECT_EQ(WidgetOf(child)->windowHandle()->transientParent(), WidgetOf(parent)->windowHandle());
  DisposeWindow(parent);
  RunEventPass(0);
  EXPECT_TRUE(IsWindowVisible(child));
  EXPECT_EQ(WidgetOf(child)->windowHandle()->transientParent(), nullptr);
}

TEST_F(WindowTest, AnEventPassWaitsNoLongerThanItMay) {
  const uint32_t start = TickCount();
  RunEventPass(6);
  const uint32_t waited = TickCount() - start;
  EXPECT_LE(waited, 12U);
  static int calls;
  calls = 0;
  const EventLoopTimerRef timer = InstallEventLoopTimer(
      5, [](void*) { ++calls; }, nullptr);
  const uint32_t end = TickCount() + 120;
  while (calls < 3 && TickCount() < end) RunEventPass(6);
  EXPECT_GE(calls, 3);
  RemoveEventLoopTimer(timer);
  const int last = calls;
  RunEventPass(2);
  EXPECT_EQ(calls, last);
}

TEST_F(WindowTest, ATimerMayRemoveItself) {
  static EventLoopTimerRef timer;
  static int calls;
  calls = 0;
  timer = InstallEventLoopTimer(
      1,
      [](void*) {
        ++calls;
        RemoveEventLoopTimer(timer);
        RunEventPass(2);
      },
      nullptr);
  for (int i = 0; i < 4; ++i) RunEventPass(2);
  EXPECT_EQ(calls, 1);
}

TEST_F(WindowTest, UrlsGoToTheDesktop) {
  UrlTaker taker({QStringLiteral("gxtest"), QStringLiteral("http")});
  EXPECT_TRUE(ExecuteURL(nullptr, "gxtest://host/caf\xC3\xA9?a=b%20c"));
  EXPECT_EQ(taker.Take(), std::vector<std::string>{"gxtest://host/caf%C3%A9?a=b%20c"});
  for (const char* url : {"", "no scheme", "http://["}) EXPECT_FALSE(ExecuteURL(nullptr, url)) << url;
  EXPECT_FALSE(ExecuteURL(nullptr, nullptr));
  EXPECT_TRUE(taker.Take().empty());
}

class AlertTest : public WindowTest {
 protected:
  void TearDown() override {
    for (const CFStringRef text : {m_message, m_explanation, m_cancel}) CFRelease(text);
    WindowTest::TearDown();
  }

  static CFStringRef String(const char* text) {
    return CFStringCreateWithCString(text, kCFStringEncodingUTF8);
  }

  static void Later(const std::function<void(QMessageBox*)>& act) {
    QTimer::singleShot(50, [act] {
      ASSERT_NE(gestures::MessageBox(), nullptr);
      act(gestures::MessageBox());
    });
  }

  const CFStringRef m_message = String("Really <b>quit</b>?");
  const CFStringRef m_explanation = String("Nothing is saved.");
  const CFStringRef m_cancel = String("Stay & wait");
};

TEST_F(AlertTest, AnswersWithTheButton) {
  const struct {
    const char* name;
    bool cancel;
    void (*act)(QMessageBox* box);
    int16_t answer;
  } rows[] = {
      {"OK", true, [](QMessageBox* box) { gestures::PressTitled(box, "OK"); }, 1},
      {"cancel", true, [](QMessageBox* box) { gestures::PressTitled(box, "Stay & wait"); }, 2},
      {"help", true, [](QMessageBox* box) { gestures::PressTitled(box, "Help"); }, 4},
      {"Return", true, [](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Return); }, 1},
      {"Escape", true, [](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); }, 2},
      {"closed", true, [](QMessageBox* box) { box->close(); }, 2},
      {"closed without cancel", false, [](QMessageBox* box) { box->close(); }, 1},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Later([&row](QMessageBox* box) {
      EXPECT_EQ(box->text(), "Really <b>quit</b>?");
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      EXPECT_EQ(box->informativeText(), "Nothing is saved.");
      EXPECT_EQ(box->icon(), QMessageBox::Warning);
      row.act(box);
    });
    AlertParameters parameters;
    parameters.helpButton = row.cancel;
    parameters.cancelText = row.cancel ? m_cancel : nullptr;
    EXPECT_EQ(StandardAlert(kAlertCautionAlert, m_message, m_explanation, parameters), row.answer);
    EXPECT_EQ(gestures::MessageBox(), nullptr);
  }
}

TEST_F(AlertTest, KeepsEventsFromItsWindow) {
  m_dialog = GetNewDialog(128);
  m_window = GetDialogWindow(m_dialog);
  Show();
  Later([this](QMessageBox* box) {
    EXPECT_EQ(box->windowTitle(), "Café");
    EXPECT_EQ(box->windowHandle()->transientParent(), Handle());
    QTest::mouseClick(ItemWidget(kButton), Qt::LeftButton);
    QTest::keyClick(WidgetOf(m_window), 'x');
    WidgetOf(m_window)->close();
    gestures::PressTitled(box, "OK");
  });
  EXPECT_EQ(StandardAlert(kAlertStopAlert, m_message, nullptr, {}), 1);
  EXPECT_EQ(TakeLog(), EventLog{});
  QTest::mouseClick(ItemWidget(kButton), Qt::LeftButton);
  EXPECT_EQ(TakeLog(), (EventLog{"down", "hit item1"}));
}

TEST_F(AlertTest, OutlivesItsWindow) {
  for (const bool sheet : {false, true}) {
    const WindowRef window = MakeWindow("w");
    ShowWindow(window);
    if (sheet) {
      EXPECT_TRUE(StandardSheet(kAlertNoteAlert, m_message, nullptr, {}, window));
      DisposeWindow(window);
    } else {
      Later([window](QMessageBox* /*box*/) {
        DisposeWindow(window);
        RunEventPass(0);
      });
      EXPECT_EQ(StandardAlert(kAlertNoteAlert, m_message, nullptr, {}), 1);
    }
    RunEventPass(1);
    EXPECT_EQ(gestures::MessageBox(), nullptr);
  }
}

TEST_F(AlertTest, SheetsReturnAtOnceAndFreeTheWindow) {
  m_dialog = GetNewDialog(128);
  m_window = GetDialogWindow(m_dialog);
  EXPECT_FALSE(StandardSheet(kAlertNoteAlert, m_message, nullptr, {}, m_window)) << "hidden";
  Show();
  EXPECT_TRUE(StandardSheet(kAlertNoteAlert, m_message, nullptr, {}, m_window));
  ASSERT_NE(gestures::MessageBox(), nullptr);
  QTest::mouseClick(ItemWidget(kButton), Qt::LeftButton);
  EXPECT_EQ(TakeLog(), EventLog{});
  gestures::PressTitled(gestures::MessageBox(), "OK");
  EXPECT_EQ(gestures::MessageBox(), nullptr);
  QTest::mouseClick(ItemWidget(kButton), Qt::LeftButton);
  EXPECT_EQ(TakeLog(), (EventLog{"down", "hit item1"}));
}

TEST_F(AlertTest, StopAlertsComeFromResources) {
  const std::string alert = RectData({0, 0, 100, 200}) + BigEndian(100, 2) + BigEndian(0, 2);
  const std::string items = ItemListData(
      {{{0, 0, 9, 9}, 4, "Stop"}, {{0, 0, 9, 9}, 8, "Out of memory"}, {{0, 0, 9, 9}, 8, "Caf\x8E"}});
  const OpenFork fork({{"ALRT", {{1, alert}, {2, alert.substr(0, 11)}}}, {"DITL", {{100, items}}}});
  Later([](QMessageBox* box) {
    EXPECT_EQ(box->icon(), QMessageBox::Critical);
    EXPECT_EQ(box->text(), "Out of memory");
    EXPECT_EQ(box->informativeText(), "Café");
    gestures::PressTitled(box, "Stop");
  });
  EXPECT_EQ(StopAlert(1), 1);
  EXPECT_EQ(StopAlert(2), -1);
  EXPECT_EQ(StopAlert(3), -1);
}

}  // namespace
