// Presses: from the event to the handler, from there to the widget, and what the widget made of them.
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QWheelEvent>

#include "tests/ui/DialogFixture.h"

namespace {

class PressTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    Show();
  }

  void ReleaseLater(QPoint where, int milliseconds = 30) {
    QTimer::singleShot(milliseconds, Handle(),
                       [this, where] { QTest::mouseRelease(Handle(), Qt::LeftButton, {}, where); });
  }
};

TEST_F(PressTest, EveryWayOfClickingHitsOnceBeforeItIsOver) {
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"widget", [this] { QTest::mouseClick(ItemWidget(kButton), Qt::LeftButton); }},
      {"window", [this] { QTest::mouseClick(Handle(), Qt::LeftButton, {}, MiddleOf(kButton)); }},
      {"press, then release while it is followed",
       [this] {
         ReleaseLater(MiddleOf(kButton));
         QTest::mousePress(Handle(), Qt::LeftButton, {}, MiddleOf(kButton));
       }},
      {"widget, press handled in the event loop", [this] {
         QTimer::singleShot(30, Handle(),
                            [this] { QTest::mouseRelease(ItemWidget(kButton), Qt::LeftButton); });
         QTest::mousePress(ItemWidget(kButton), Qt::LeftButton);
         RunEventPass(1);
       }}};
  for (const auto& [name, click] : ways) {
    SCOPED_TRACE(name);
    click();
    EXPECT_EQ(TakeLog(), (EventLog{"down", "hit item1"}));
    RunEventPass(0);
    EXPECT_EQ(TakeLog(), EventLog{});
    EXPECT_FALSE(ItemWidget<QPushButton>(kButton)->isDown());
  }
}

TEST_F(PressTest, DraggingDecidesAtTheRelease) {
  const QPoint inside = MiddleOf(kButton);
  const QPoint outside(200, 250);
  const struct {
    const char* name;
    std::vector<QPoint> moves;
    QPoint release;
    bool hit;
  } rows[] = {
      {"out", {outside}, outside, false},
      {"out and back", {outside, inside}, inside, true},
      {"around inside", {inside + QPoint(3, 0)}, inside + QPoint(3, 0), true},
      {"in and out again", {outside, inside, outside}, outside, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const EventLog expected = row.hit ? EventLog{"down", "hit item1"} : EventLog{"down"};

    // Followed by the widget while the events come.
    int delay = 0;
    for (const QPoint move : row.moves) {
      QTimer::singleShot(delay += 20, Handle(), [this, move] { QTest::mouseMove(Handle(), move); });
    }
    ReleaseLater(row.release, delay + 20);
    QTest::mousePress(Handle(), Qt::LeftButton, {}, inside);
    EXPECT_EQ(TakeLog(), expected);

    // All there before the press is handled.
    QWidget* const button = ItemWidget(kButton);
    const QPoint origin = button->geometry().topLeft();
    QTest::mousePress(button, Qt::LeftButton, {}, inside - origin);
    for (const QPoint move : row.moves) QTest::mouseMove(button, move - origin);
    QTest::mouseRelease(button, Qt::LeftButton, {}, row.release - origin);
    EXPECT_EQ(TakeLog(), expected);
    EXPECT_FALSE(ItemWidget<QPushButton>(kButton)->isDown());
  }
}

TEST_F(PressTest, AHandlerThatStopsFollowingLeavesNothingPressed) {
  m_onMouseDown = [this](WindowRef /*window*/, const MouseEvent& event) {
    EXPECT_TRUE(HandleControlPress(Item(kButton), event.where));
    EXPECT_TRUE(ItemWidget<QPushButton>(kButton)->isDown());
  };
  QTest::mousePress(Handle(), Qt::LeftButton, {}, MiddleOf(kButton));
  EXPECT_FALSE(ItemWidget<QPushButton>(kButton)->isDown());
  QTest::mouseRelease(Handle(), Qt::LeftButton, {}, MiddleOf(kButton));
  EXPECT_EQ(TakeLog(), EventLog{"down"});
}

TEST_F(PressTest, ThePressIsGivenInWindowCoordinates) {
  MouseEvent seen;
  m_onMouseDown = [&seen](WindowRef /*window*/, const MouseEvent& event) { seen = event; };
  QTest::mouseClick(ItemWidget(kEdit), Qt::LeftButton, Qt::ControlModifier | Qt::AltModifier, QPoint(5, 6));
  EXPECT_EQ(seen.where.h, 15);
  EXPECT_EQ(seen.where.v, 121);
  EXPECT_EQ(seen.modifiers, cmdKey | optionKey);
  EXPECT_FALSE(seen.doubleClick);
  QTest::mouseDClick(ItemWidget(kEdit), Qt::LeftButton);
  QTest::mouseRelease(ItemWidget(kEdit), Qt::LeftButton);
  EXPECT_TRUE(seen.doubleClick);
}

TEST_F(PressTest, ADoubleClickWithoutReleaseDoesNotHang) {
  QTest::mouseDClick(ItemWidget(kEdit), Qt::LeftButton);
  RunEventPass(1);
  EXPECT_EQ(TakeLog(), EventLog{"double"});
  EXPECT_EQ(ItemWidget<QLineEdit>(kEdit)->selectedText(), "abc");
}

TEST_F(PressTest, TheHandlerMayDisposeTheWindow) {
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"widget", [this] { QTest::mouseClick(ItemWidget(kButton), Qt::LeftButton); }},
      {"window", [this] { QTest::mouseClick(Handle(), Qt::LeftButton, {}, MiddleOf(kButton)); }},
      {"followed",
       [this] {
         ReleaseLater(MiddleOf(kButton));
         QTest::mousePress(Handle(), Qt::LeftButton, {}, MiddleOf(kButton));
       }},
      {"assistive technology", [this] {
         m_onAction = m_onHit;
         ItemWidget<QPushButton>(kButton)->click();
       }}};
  for (const auto& [name, click] : ways) {
    SCOPED_TRACE(name);
    const QPointer<QWidget> old = WidgetOf(m_window);
    const ControlRef button = Item(kButton);
    m_onHit = [this, button] {
      DisposeDialog(m_dialog);
      EXPECT_FALSE(IsValidControl(button));
      EXPECT_EQ(GetControlText(button), "");
      for (int i = 0; i < 3; ++i) RunEventPass(0);  // must not free a widget whose event this is
    };
    click();
    EXPECT_FALSE(IsValidWindow(m_window));
    RunEventPass(0);
    EXPECT_TRUE(old.isNull());

    m_onHit = m_onAction = nullptr;
    m_dialog = GetNewDialog(128);
    m_window = GetDialogWindow(m_dialog);
    Show();
  }
}

TEST_F(PressTest, PressesDuringAPressWaitForTheirTurn) {
  int depth = 0;
  m_onMouseDown = [&](WindowRef /*window*/, const MouseEvent& event) {
    EXPECT_EQ(depth++, 0);
    if (HandleControlPress(Item(kCheck), event.where)) {
      if (m_log.size() == 1) QTest::mouseClick(ItemWidget(kCheck), Qt::LeftButton, {}, QPoint(8, 10));
      RunEventPass(0);
      EXPECT_FALSE(StillDown());
      HandleControlRelease(Item(kCheck), event.where);
    }
    --depth;
  };
  QTest::mouseClick(ItemWidget(kCheck), Qt::LeftButton, {}, QPoint(8, 10));
  RunEventPass(0);
  EXPECT_EQ(TakeLog(), (EventLog{"down", "down"}));
  EXPECT_EQ(GetControlValue(Item(kCheck)), 0);
}

TEST_F(PressTest, HidingTheWindowEndsThePress) {
  QTimer::singleShot(20, Handle(), [this] { HideWindow(m_window); });
  const QPoint where = MiddleOf(kButton);
  QTest::mousePress(Handle(), Qt::LeftButton, {}, where);
  EXPECT_EQ(TakeLog(), EventLog{"down"});
  ShowWindow(m_window);
  QTest::mouseRelease(Handle(), Qt::LeftButton, {}, where);  // the button of the later tests is up
  EXPECT_EQ(TakeLog(), EventLog{});
}

TEST_F(PressTest, APressCanBeMadeWithoutAnEvent) {
  const QPoint middle = MiddleOf(kCheck);
  const Point inside{static_cast<int16_t>(middle.y()), 18};
  EXPECT_TRUE(HandleControlPress(Item(kCheck), inside));
  EXPECT_FALSE(StillDown());
  EXPECT_TRUE(HandleControlRelease(Item(kCheck), inside));
  EXPECT_EQ(GetControlValue(Item(kCheck)), 1);
  EXPECT_EQ(TakeLog(), EventLog{});
}

TEST_F(PressTest, OtherButtonsAndTheWheelReachOnlyWhatTheyMay) {
  MenuRef menu = GetControlPopupMenuHandle(Item(kPopup));
  for (const char* text : {"one", "two", "three"}) InsertMenuItem(menu, text, 99);
  SetControlValue(Item(kPopup), 2);
  QComboBox* const combo = ItemWidget<QComboBox>(kPopup);
  QWheelEvent wheel(QPointF(5, 5), combo->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(combo, &wheel);
  EXPECT_EQ(GetControlValue(Item(kPopup)), 2);
  QTest::mouseClick(ItemWidget(kButton), Qt::RightButton);
  QTest::mouseClick(ItemWidget(kCheck), Qt::MiddleButton);
  EXPECT_EQ(TakeLog(), EventLog{});
}

}  // namespace
