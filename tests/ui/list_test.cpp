// Lists: rows, selection, places and drawing.
#include <QAccessible>
#include <QListView>
#include <QScrollBar>
#include <QToolTip>
#include <set>

#include "Platform/Ui/HelpTags.h"
#include "tests/ui/DialogFixture.h"

namespace {

class ListTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    m_list = GetControlList(Item(kList));
    ASSERT_NE(m_list, nullptr);
    gChecked.clear();
    gDrawn.clear();
  }
  void TearDown() override {
    RegisterListDefinition(kListDefinitionID, {});
    DialogTest::TearDown();
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

  static bool IsChecked(ListRef /*list*/, int32_t row) { return gChecked.contains(row); }
  static void SetChecked(ListRef /*list*/, int32_t row, bool on) {
    on ? static_cast<void>(gChecked.insert(row)) : static_cast<void>(gChecked.erase(row));
  }
  static void Draw(DrawContext* context, ListRef list, int32_t row, const Rect& bounds, bool selected,
                   bool hasFocus) {
    const DrawState state{selected, hasFocus, true};
    DrawThemeRow(context, bounds, state);
    DrawThemeCheckBox(context, {bounds.top, bounds.left, bounds.bottom, 20}, IsChecked(list, row), state);
    DrawThemeText(context, LGetCell(list, row), bounds, state);
    gDrawn.insert(row);
    gDrawnBounds = bounds;
  }

  ListRef m_list = nullptr;
  static inline std::set<int32_t> gChecked;
  static inline std::set<int32_t> gDrawn;
  static inline Rect gDrawnBounds;
};

TEST_F(ListTest, SelectionStaysWithItsRows) {
  EXPECT_EQ(LAddRow(m_list, -5), 0);
  LSetCell(m_list, 0, "b");
  EXPECT_EQ(LAddRow(m_list, 99), 1);
  LSetCell(m_list, 1, std::string(1000, 'd'));
  EXPECT_EQ(LGetCell(m_list, 1).size(), 1000U);
  LSetCell(m_list, 1, "d");
  LSetMultipleSelection(m_list, true);
  LSetSelect(m_list, 0, true);
  LSetSelect(m_list, 1, true);
  EXPECT_EQ(LAddRow(m_list, 1), 1);
  LSetCell(m_list, 1, "c");
  LAddRow(m_list, 0);
  EXPECT_EQ(Cells(), "|*b|c|*d|");
  EXPECT_EQ(LNextSelected(m_list, -1), 1);
  EXPECT_EQ(LNextSelected(m_list, 2), 3);
  EXPECT_EQ(LNextSelected(m_list, 4), -1);
  LDelRow(m_list, 1);
  EXPECT_EQ(Cells(), "|c|*d|");
  LSetMultipleSelection(m_list, false);
  LSetSelect(m_list, 1, true);
  EXPECT_EQ(Cells(), "|*c|d|");
  LDelRow(m_list, 1);
  EXPECT_EQ(Cells(), "|d|") << "no neighbour takes its place";
  LDelRow(m_list, 7);
  LSetCell(m_list, -1, "x");
  EXPECT_EQ(Cells(), "|d|");
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

TEST_F(ListTest, TheScrollBarIsWorkedByItsOwnWidget) {
  Fill(50);
  Show();
  QScrollBar* const bar = View()->verticalScrollBar();
  QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() / 2, bar->height() - 25));
  EXPECT_GT(LGetTopRow(m_list), 0);
  EXPECT_EQ(LNextSelected(m_list, 0), -1);
  EXPECT_EQ(TakeLog(), EventLog{"down"});
}

TEST_F(ListTest, DefinitionsDrawRowsAndKeepTheChecks) {
  RegisterListDefinition(kListDefinitionID, {Draw, true, IsChecked, SetChecked});
  EXPECT_EQ(GetListDefinitionID(m_list), kListDefinitionID);
  LSetCell(m_list, LAddRow(m_list, 0), "Ana\tA");
  LSetCell(m_list, LAddRow(m_list, 1), "Ben\tB");
  Show();
  View()->grab();
  EXPECT_EQ(gDrawn, (std::set<int32_t>{0, 1}));
  EXPECT_EQ(RectHeight(gDrawnBounds), RectHeight(LGetRowBounds(m_list, 1)));

  QAbstractItemModel& model = *View()->model();
  const QModelIndex second = model.index(1, 0);
  EXPECT_EQ(second.data(Qt::AccessibleTextRole).toString(), "Ben, B");
  EXPECT_TRUE(model.setData(second, Qt::Checked, Qt::CheckStateRole));
  EXPECT_EQ(gChecked, std::set<int32_t>{1});
  QAccessibleInterface* const rows = QAccessible::queryAccessibleInterface(View());
  EXPECT_EQ(rows->child(1)->text(QAccessible::Name), "Ben, B");
  EXPECT_TRUE(rows->child(1)->state().checked);
  EXPECT_FALSE(rows->child(0)->state().checked);

  QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, QPoint(8, 8));
  EXPECT_EQ(gChecked, std::set<int32_t>{1}) << "a press checks nothing by itself";
  gDrawn.clear();
  LSetCell(m_list, 0, "Zoe");
  RunEventPass(2);
  EXPECT_TRUE(gDrawn.contains(0));
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
