// Lists: rows, selection, places and drawing.
#include <QListView>
#include <QToolTip>

#include "Platform/Ui/HelpTags.h"
#include "tests/ui/DialogFixture.h"

namespace {

class ListTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    m_list = GetControlList(Item(kList));
    ASSERT_NE(m_list, nullptr);
  }

  void Fill(int count) {
    for (int i = 0; i < count; ++i) LSetCell(m_list, LAddRow(m_list, i), "row " + std::to_string(i));
  }

  std::string Cells() const {
    std::string cells;
    for (int32_t row = 0; row < LGetCount(m_list); ++row) {
      if (LIsSelected(m_list, row)) cells += '*';
      cells.append(LGetCell(m_list, row)).append("|");
    }
    return cells;
  }

  QListView* View() const { return ItemWidget<QListView>(kList); }

  void ClickRow(int32_t row, Qt::KeyboardModifiers modifiers = {}) {
    gestures::ClickRow(View(), row, modifiers);
  }

  ListRef m_list = nullptr;
};

TEST_F(ListTest, SelectionStaysWithItsRows) {
  EXPECT_EQ(LAddRow(m_list, -5), 0);
  LSetCell(m_list, 0, "b");
  EXPECT_EQ(LAddRow(m_list, 99), 1);
  LSetCell(m_list, 1, std::string(1000, 'd'));
  LSetMultipleSelection(m_list, true);
  for (const int32_t row : {0, 1}) LSetSelect(m_list, row, true);
  EXPECT_EQ(LAddRow(m_list, 1), 1);
  LAddRow(m_list, 0);
  EXPECT_EQ(Cells(), "|*b||*" + std::string(1000, 'd') + "|");
  LSetMultipleSelection(m_list, false);
  LSetSelect(m_list, 2, true);
  LSetCell(m_list, 2, "c");
  LSetCell(m_list, 3, "d");
  LSetCell(m_list, -1, "x");
  EXPECT_EQ(Cells(), "|b|*c|d|");
  EXPECT_EQ(TakeLog(), EventLog{});
}

TEST_F(ListTest, PlacesFollowTheScrolling) {
  Fill(50);
  for (const bool shown : {false, true}) {  // the rows have their places before the window is shown
    SCOPED_TRACE(shown);
    if (shown) Show();
    const int32_t visible = LGetVisibleRowCount(m_list);
    ASSERT_GT(visible, 2);
    LScrollTo(m_list, 0);
    EXPECT_EQ(LGetTopRow(m_list), 0);
    const Rect first = LGetRowBounds(m_list, 0);
    const Rect second = LGetRowBounds(m_list, 1);
    EXPECT_EQ(first.bottom, second.top);
    EXPECT_GE(first.top, 10);
    EXPECT_LE(first.top, 12);
    LScrollTo(m_list, visible - 1);
    EXPECT_EQ(LGetTopRow(m_list), 0);
    LScrollTo(m_list, visible);
    EXPECT_EQ(LGetTopRow(m_list), 1);
    EXPECT_TRUE(LGetRowBounds(m_list, 1) == first);
    LScrollTo(m_list, 49);
    EXPECT_EQ(LGetTopRow(m_list), 50 - visible);
    EXPECT_EQ(LRowAt(m_list, {second.top, static_cast<int16_t>(second.left + 3)}), 51 - visible);
    EXPECT_EQ(LRowAt(m_list, {5, 170}), -1);
    EXPECT_TRUE(LIsInScrollBar(m_list, {50, 285}));
    EXPECT_FALSE(LIsInScrollBar(m_list, {50, 200}));
    LSetScrollBarVisible(m_list, false);
    EXPECT_FALSE(LIsInScrollBar(m_list, {50, 285}));
    LSetScrollBarVisible(m_list, true);
  }
}

TEST_F(ListTest, PressesSelect) {
  Fill(3);
  Show();
  ClickRow(1);
  EXPECT_EQ(Cells(), "row 0|*row 1|row 2|");
  EXPECT_EQ(TakeLog(), (EventLog{"down", "hit item7"}));
  ClickRow(1);
  EXPECT_EQ(TakeLog(), EventLog{"down"});
  QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, QPoint(20, 140));
  EXPECT_EQ(Cells(), "row 0|*row 1|row 2|") << "beside the rows";
  LSetMultipleSelection(m_list, true);
  TakeLog();
  ClickRow(2, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "row 0|*row 1|*row 2|");
  ClickRow(0);
  ClickRow(2, Qt::ShiftModifier);
  EXPECT_EQ(Cells(), "*row 0|*row 1|*row 2|");
  LClearSelection(m_list);
  EXPECT_EQ(Cells(), "row 0|row 1|row 2|");
  EXPECT_EQ(TakeLog(), (EventLog{"down", "hit item7", "down", "hit item7", "down", "hit item7"}));
  View()->selectionModel()->select(View()->model()->index(0, 0), QItemSelectionModel::Select);
  EXPECT_EQ(TakeLog(), EventLog{"action item7"});
}

TEST_F(ListTest, ACutRowHasAToolTip) {
  LSetCell(m_list, LAddRow(m_list, 0), "short");
  LSetCell(m_list, LAddRow(m_list, 1), std::string(60, 'W') + "\tend");
  HMSetControlHelpContent(Item(kList), "Helps");
  HMSetTagDelay(10);
  Show();
  View()->grab();
  const std::string expected[] = {"Helps", std::string(60, 'W') + ", end", "Helps"};
  for (int row = 0; row < 3; ++row) {  // the last one is below the rows
    const QPoint where(row + 20, View()->visualRect(View()->model()->index(0, 0)).height() * row + 8);
    QTest::mouseMove(Handle(), View()->viewport()->mapTo(View()->window(), where));
    QTest::qWait(100);
    EXPECT_EQ(QToolTip::text().toStdString(), expected[row]) << row;
  }
  HMSetTagDelay(500);
}

TEST_F(ListTest, DeadListsAreIgnored) {
  Fill(2);
  DisposeDialog(m_dialog);
  EXPECT_EQ(LGetCount(m_list), 0);
  EXPECT_EQ(LAddRow(m_list, 0), -1);
  EXPECT_EQ(LGetCell(m_list, 0), "");
  EXPECT_EQ(GetListControl(m_list), nullptr);
  LScrollTo(m_list, 0);
  LSetSelect(nullptr, 0, true);
  EXPECT_EQ(LNextSelected(nullptr, 0), -1);
}

}  // namespace
