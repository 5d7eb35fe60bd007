#include "Toolkit/LBList.h"

#include <QImage>
#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "Platform/Ui/Lists.h"
#include "tests/toolkit/ToolkitFixture.h"

namespace {

class ListTest : public DemoTest {
 protected:
  // Makes the item's list anew from its data's bytes.
  intptr_t Recreate(int32_t item, std::vector<uint8_t> bytes) {
    LBItemProc(m_dialog, item, kDLGDispose, 0, 0);
    const auto* const data = reinterpret_cast<const char*>(bytes.data());
    m_dialog->dataEnd = data + bytes.size();
    const intptr_t consumed = LBItemProc(m_dialog, item, kDLGCreate, reinterpret_cast<intptr_t>(data), 0);
    m_dialog->dataEnd = nullptr;
    LBItemProc(m_dialog, item, kDLGAllCreated, 0, 0);
    return consumed;
  }

  void Fill(int32_t item, const std::vector<std::string>& rows) {
    for (const std::string& row : rows) LBInsertItem(m_dialog, item, row.c_str(), kRowLast);
  }
  void FillNumbers(int32_t item, int count) {
    for (int i = 0; i < count; ++i) LBInsertItem(m_dialog, item, std::to_string(i).c_str(), kRowLast);
  }

  std::vector<std::string> Rows(int32_t item) {
    std::vector<std::string> rows;
    for (int32_t row = 0; row < LBGetCount(m_dialog, item); ++row) {
      rows.push_back(LBGetListText(m_dialog, item, row));
    }
    return rows;
  }

  std::vector<int32_t> Selected(int32_t item) {
    std::vector<int32_t> rows;
    for (int32_t row = 0; row < LBGetCount(m_dialog, item); ++row) {
      if (LIsSelected(List(item), row)) rows.push_back(row);
    }
    return rows;
  }

  std::vector<int32_t> Checks(int32_t item, int32_t count) {
    std::vector<int32_t> states;
    for (int32_t row = 0; row < count; ++row) states.push_back(LBGetCheck(m_dialog, item, row));
    return states;
  }

  intptr_t KeyAnswer(int32_t item, uint16_t character, uint16_t modifiers = 0) {
    return ItemKey(m_dialog, item, character, modifiers);
  }
  void Type(int32_t item, const std::string& text) {
    for (const char character : text) KeyAnswer(item, static_cast<uint8_t>(character));
  }

  ListRef List(int32_t item) { return GetControlList(DLGGetChildControl(m_dialog, item)); }
  Handle Block(int32_t item) { return reinterpret_cast<Handle>(GetIRefCon(m_dialog, item)); }
  LBRecord* Record(int32_t item) { return reinterpret_cast<LBRecord*>(*Block(item)); }
  size_t Slots(int32_t item) { return (GetHandleSize(Block(item)) - 100) / 4; }

  // In the row, that far from its left edge.
  Point InRow(int32_t item, int32_t row, int left) {
    const Rect bounds = LGetRowBounds(List(item), row);
    return {static_cast<int16_t>((bounds.top + bounds.bottom) / 2), static_cast<int16_t>(bounds.left + left)};
  }
};

TEST_F(ListTest, ReadsItsModeInEitherByteOrderAndSizesItsBlockByTheBigEndianCapacity) {
  const struct {
    uint8_t mode[2];
    uint8_t flags;
    uint16_t capacity;
    int32_t stored;
  } rows[] = {
      {{0, 0}, 0, 0, 0},
      {{0, 1}, kLBMultiple, 1, 256},
      {{1, 0}, kLBMultiple, 127, 32512},
      {{0, 2}, kLBChecks, 128, 128},
      {{2, 0}, kLBChecks, 255, 255},
      {{0, 3}, 0, 256, 1},
      {{3, 0}, 0, 0x0180, 0x0180},
      {{1, 1}, 0, 0x7F7F, 0x7F7F},
      {{0xFF, 0xFF}, 0, 0x8001, 0x180},
      {{2, 1}, 0, 0x80FF, 0x80FF - 0x10000},
  };
  for (const auto& row : rows) {
    const auto high = static_cast<uint8_t>(row.capacity >> 8);
    ASSERT_EQ(Recreate(kDemoList, {row.mode[0], row.mode[1], high, static_cast<uint8_t>(row.capacity)}), 4);
    EXPECT_EQ(Record(kDemoList)->flags, row.flags) << int{row.mode[0]} << " " << int{row.mode[1]};
    EXPECT_EQ(Record(kDemoList)->checkCapacity, row.stored) << row.capacity;
    EXPECT_EQ(Slots(kDemoList), row.capacity);
  }
}

// Against a plain model, in a block of eight states that the stored capacity overstates.
TEST_F(ListTest, CheckStatesStayWithTheirRowsAsFarAsTheBlockGoes) {
  constexpr size_t kSlots = 8;
  ASSERT_EQ(Recreate(kDemoCheckList, {0, 2, 0, kSlots}), 4);
  ASSERT_EQ(Record(kDemoCheckList)->checkCapacity, 2048);
  std::vector<int32_t> model(kSlots, 0);
  std::minstd_rand random(7);
  for (int32_t count = 0; count < 30; ++count) {
    const auto row = static_cast<int32_t>(random() % static_cast<unsigned>(count + 1));
    ASSERT_EQ(LBInsertItem(m_dialog, kDemoCheckList, "row", row), row);
    if (static_cast<size_t>(row) < kSlots) {
      model.insert(model.begin() + row, 0);
      model.pop_back();
    }
    const auto checked = static_cast<int32_t>(random() % static_cast<unsigned>(count + 1));
    const bool on = random() % 3 != 0;
    LBSetCheck(m_dialog, kDemoCheckList, checked, on);
    if (static_cast<size_t>(checked) < kSlots) model[static_cast<size_t>(checked)] = on ? 1 : 0;
    std::vector<int32_t> expected = model;
    expected.resize(40, 0);
    ASSERT_EQ(Checks(kDemoCheckList, 40), expected) << "after inserting at " << row;
  }
}

TEST_F(ListTest, RowsPastTheStoredCapacityHaveNoCheckState) {
  ASSERT_EQ(Recreate(kDemoCheckList, {0, 2, 3, 0}), 4);  // room for 768, of which 3 are used
  Fill(kDemoCheckList, {"a", "b", "c", "d"});
  for (int32_t row = -1; row < 5; ++row) LBSetCheck(m_dialog, kDemoCheckList, row, true);
  EXPECT_EQ(Checks(kDemoCheckList, 6), (std::vector<int32_t>{1, 1, 1, 0, 0, 0}));
  LBInsertItem(m_dialog, kDemoCheckList, "e", kRowTop);  // moves none any more
  EXPECT_EQ(Checks(kDemoCheckList, 6), (std::vector<int32_t>{1, 1, 1, 0, 0, 0}));
  for (const int32_t row : {-1, INT32_MIN, INT32_MAX})
    EXPECT_EQ(LBGetCheck(m_dialog, kDemoCheckList, row), 0);
}

TEST_F(ListTest, OnlyCheckListsHaveChecks) {
  ASSERT_EQ(Recreate(kDemoList, {0, 0, 0x7F, 0x7F}), 4);
  Fill(kDemoList, {"a"});
  LBSetCheck(m_dialog, kDemoList, 0, true);
  EXPECT_EQ(LBGetCheck(m_dialog, kDemoList, 0), 0);
  EXPECT_EQ(LBGetCheck(m_dialog, kDemoEdit, 0), 0);
  EXPECT_EQ(LBInsertItem(m_dialog, kDemoEdit, "a", kRowTop), 0);
  DLGRecord* const closed = m_dialog;
  DisposeDLG(closed);
  EXPECT_EQ(LBInsertItem(closed, kDemoCheckList, "a", kRowTop), 0);
  EXPECT_EQ(LBGetCount(closed, kDemoCheckList), 0);
}

TEST_F(ListTest, InsertsWhereThePositionSays) {
  const struct {
    std::vector<const char*> texts;
    int32_t position;
    std::vector<std::string> rows;
  } rows[] = {
      {{"a", "b", "c"}, kRowLast, {"a", "b", "c"}},
      {{"a", "b", "c"}, kRowTop, {"c", "b", "a"}},
      {{"a", "b", "c"}, 0, {"c", "b", "a"}},
      {{"banana", "Apple", "cherry", "apple pie", "Zoo", "zebra"},
       kRowSorted,
       {"Apple", "apple pie", "banana", "cherry", "zebra", "Zoo"}},
      {{"B", "b", "A", "a"}, kRowSorted, {"A", "a", "B", "b"}},          // an equal one comes behind
      {{"a", "_", "Z", "1", ""}, kRowSorted, {"", "1", "_", "a", "Z"}},  // "_" lies between the cases
      {{"\x8E", "z", "~"}, kRowSorted, {"z", "~", "\x8E"}},
      {{"b", nullptr}, kRowSorted, {"", "b"}},
      {{"a", "b", "c"}, 9, {"a", "b", "c"}},
      {{"a", "b", "c"}, -4, {"c", "b", "a"}},
  };
  for (const auto& row : rows) {
    DisposeDLG(m_dialog);
    m_dialog = Open(kDemoDialog);
    for (const char* text : row.texts) LBInsertItem(m_dialog, kDemoList, text, row.position);
    EXPECT_EQ(Rows(kDemoList), row.rows);
  }
}

TEST_F(ListTest, SelectsRows) {
  FillNumbers(kDemoList, 5);
  FillNumbers(kDemoMultiple, 5);
  LBSelectItem(m_dialog, kDemoList, 1, true);
  LBSelectItem(m_dialog, kDemoList, 3, true);
  EXPECT_EQ(Selected(kDemoList), std::vector<int32_t>{3});
  LBSetSelect(m_dialog, kDemoList, 5);
  EXPECT_EQ(LBGetSelect(m_dialog, kDemoList), 3);
  EXPECT_STREQ(GetText(m_dialog, kDemoList), "3");
  LBSetSelect(m_dialog, kDemoList, -1);
  EXPECT_EQ(LBGetSelect(m_dialog, kDemoList), -1);
  EXPECT_STREQ(GetText(m_dialog, kDemoList), "");

  LBSelectItem(m_dialog, kDemoMultiple, 1, true);
  LBSelectItem(m_dialog, kDemoMultiple, 3, true);
  EXPECT_EQ(Selected(kDemoMultiple), (std::vector<int32_t>{1, 3}));
  int32_t first = 0;
  int32_t last = 0;
  EXPECT_TRUE(LBGetSelectionRange(m_dialog, kDemoMultiple, &first, &last));
  EXPECT_EQ(first, 1);
  EXPECT_EQ(last, 3);
  LBSetSelectionRange(m_dialog, kDemoMultiple, 2, 99);
  EXPECT_EQ(Selected(kDemoMultiple), (std::vector<int32_t>{2, 3, 4}));
  LBInsertItem(m_dialog, kDemoMultiple, "new", 3);
  EXPECT_EQ(Selected(kDemoMultiple), (std::vector<int32_t>{2, 4, 5})) << "the selection stays with its rows";
  LBSetSelectionRange(m_dialog, kDemoMultiple, -1, -1);
  EXPECT_FALSE(LBGetSelectionRange(m_dialog, kDemoMultiple, &first, &last));
  EXPECT_EQ(first, -1);
  EXPECT_TRUE(TakeHits().empty());
}

TEST_F(ListTest, NavigatesByKeys) {
  constexpr int kRows = 20;
  FillNumbers(kDemoList, kRows);
  FillNumbers(kDemoMultiple, kRows);
  const int32_t page = LGetVisibleRowCount(List(kDemoList));
  ASSERT_EQ(page, LGetVisibleRowCount(List(kDemoMultiple)));
  ASSERT_GT(page, 1);
  ASSERT_LT(page, kRows - 5);
  const struct {
    int32_t item;
    int32_t first;
    int32_t last;
    uint16_t character;
    uint16_t modifiers;
    int32_t newFirst;
    int32_t newLast;
  } rows[] = {
      {kDemoList, -1, -1, kDownArrowChar, 0, 0, 0},
      {kDemoList, -1, -1, kUpArrowChar, 0, 0, 0},
      {kDemoList, -1, -1, kPageDownChar, 0, 0, 0},
      {kDemoList, -1, -1, kEndChar, 0, 19, 19},
      {kDemoList, 4, 4, kDownArrowChar, 0, 5, 5},
      {kDemoList, 4, 4, kUpArrowChar, 0, 3, 3},
      {kDemoList, 4, 4, kHomeChar, 0, 0, 0},
      {kDemoList, 4, 4, kEndChar, 0, 19, 19},
      {kDemoList, 4, 4, kPageDownChar, 0, 4 + page, 4 + page},
      {kDemoList, 18, 18, kPageDownChar, 0, 19, 19},
      {kDemoList, 1, 1, kPageUpChar, 0, 0, 0},
      {kDemoList, 0, 0, kUpArrowChar, 0, 0, 0},
      {kDemoList, 19, 19, kDownArrowChar, 0, 19, 19},
      {kDemoList, 4, 4, kDownArrowChar, shiftKey, 5, 5},
      {kDemoList, 4, 4, kDownArrowChar, shiftKey | optionKey, 5, 5},
      {kDemoMultiple, -1, -1, kDownArrowChar, shiftKey, 0, 0},
      {kDemoMultiple, 4, 7, kDownArrowChar, 0, 8, 8},
      {kDemoMultiple, 4, 7, kDownArrowChar, optionKey, 5, 5},
      {kDemoMultiple, 4, 7, kDownArrowChar, shiftKey, 4, 8},
      {kDemoMultiple, 4, 7, kUpArrowChar, shiftKey, 4, 6},
      {kDemoMultiple, 4, 4, kUpArrowChar, shiftKey, 4, 4},
      {kDemoMultiple, 4, 7, kEndChar, shiftKey, 4, 19},
      {kDemoMultiple, 4, 7, kHomeChar, shiftKey, 4, 4},
      {kDemoMultiple, 4, 7, kUpArrowChar, shiftKey | optionKey, 3, 7},
      {kDemoMultiple, 4, 7, kDownArrowChar, shiftKey | optionKey, 5, 7},
      {kDemoMultiple, 7, 7, kDownArrowChar, shiftKey | optionKey, 7, 7},
      {kDemoMultiple, 4, 7, kHomeChar, shiftKey | optionKey, 0, 7},
      {kDemoMultiple, 0, 0, kHomeChar, 0, 0, 0},
  };
  for (const auto& row : rows) {
    LBSetSelectionRange(m_dialog, row.item, row.first, row.last);
    const bool changes = row.first != row.newFirst || row.last != row.newLast;
    const std::string what = std::to_string(row.first) + ".." + std::to_string(row.last) + " key " +
                             std::to_string(row.character) + " modifiers " + std::to_string(row.modifiers);
    EXPECT_EQ(KeyAnswer(row.item, row.character, row.modifiers), changes ? 1 : 2) << what;
    std::vector<int32_t> expected;
    for (int32_t i = row.newFirst; i <= row.newLast; ++i) expected.push_back(i);
    EXPECT_EQ(Selected(row.item), expected) << what;
  }
  for (const uint16_t character : {kTabChar, kEscapeChar, kEnterChar, kLeftArrowChar, kBackspaceChar}) {
    EXPECT_EQ(KeyAnswer(kDemoList, character), 0) << character;
  }
}

TEST_F(ListTest, ShowsTheRowThatAKeyLedTo) {
  FillNumbers(kDemoList, 50);
  KeyAnswer(kDemoList, kEndChar);
  EXPECT_EQ(LGetTopRow(List(kDemoList)), 50 - LGetVisibleRowCount(List(kDemoList)));
  KeyAnswer(kDemoList, kHomeChar);
  EXPECT_EQ(LGetTopRow(List(kDemoList)), 0);
  Type(kDemoList, "3");
  const Rect row = LGetRowBounds(List(kDemoList), LBGetSelect(m_dialog, kDemoList));
  const Rect list = GetControlBounds(DLGGetChildControl(m_dialog, kDemoList));
  EXPECT_GE(row.top, list.top);
  EXPECT_LE(row.bottom, list.bottom);
  EXPECT_EQ(KeyAnswer(kDemoCheckList, kDownArrowChar), 2) << "an empty list";
}

TEST_F(ListTest, FindsRowsByTheirFirstCharacters) {
  constexpr int kMostTyped = 14;
  Fill(kDemoList, {"Algebra", "Biology", "biochemistry", "Chem 2", "Chemistry", "A dog",
                   std::string(kMostTyped, 'q'), std::string(kMostTyped, 'q') + "z"});
  const struct {
    const char* typed;
    int32_t row;
  } rows[] = {
      {"b", 1}, {"BI", 1},  {"bioc", 2}, {"chemi", 4}, {"chem ", 3},
      {"a", 0}, {"a d", 5}, {"x", -1},   {"chex", 3},  {"qqqqqqqqqqqqqqz", 6},
  };
  for (const auto& row : rows) {
    LBSetSelect(m_dialog, kDemoList, -1);
    SendDLGItemMessage(m_dialog, kDemoList, kDLGFocus, 1);  // begins anew
    Type(kDemoList, row.typed);
    EXPECT_EQ(LBGetSelect(m_dialog, kDemoList), row.row) << row.typed;
  }
  SendDLGItemMessage(m_dialog, kDemoList, kDLGFocus, 1);
  EXPECT_EQ(KeyAnswer(kDemoList, ' '), 2) << "the first character of a search";
  SendDLGItemMessage(m_dialog, kDemoList, kDLGFocus, 1);
  EXPECT_EQ(KeyAnswer(kDemoList, 'c'), 1);
  EXPECT_EQ(KeyAnswer(kDemoList, 'h'), 2) << "the same row";
  EXPECT_EQ(KeyAnswer(kDemoList, 'a', cmdKey), 0);
  KeyAnswer(kDemoList, kHomeChar);
  EXPECT_EQ(KeyAnswer(kDemoList, 'b'), 1) << "navigation begins a new search";
}

TEST_F(ListTest, APauseBeginsANewSearch) {
  Fill(kDemoList, {"Algebra", "Biology", "Aachen", "Berlin"});
  SetFocusDLG(m_dialog, kDemoList);
  KeyAnswer(kDemoList, 'a');
  Wait(30);
  EXPECT_EQ(KeyAnswer(kDemoList, 'a'), 1);
  EXPECT_EQ(LBGetSelect(m_dialog, kDemoList), 2);
  Wait(30);
  KeyAnswer(kDemoList, kTabChar);  // any key counts
  Wait(30);
  KeyAnswer(kDemoList, 'b');
  EXPECT_EQ(LBGetSelect(m_dialog, kDemoList), 2) << "still looking for aab";
  Wait(42);
  EXPECT_EQ(KeyAnswer(kDemoList, 'b'), 1);
  EXPECT_EQ(LBGetSelect(m_dialog, kDemoList), 1);
}

TEST_F(ListTest, TypingReplacesAMultipleSelection) {
  Fill(kDemoMultiple, {"a", "b", "c"});
  LBSetSelectionRange(m_dialog, kDemoMultiple, 0, 2);
  SetFocusDLG(m_dialog, kDemoMultiple);
  EXPECT_EQ(KeyAnswer(kDemoMultiple, 'b'), 1);
  EXPECT_EQ(Selected(kDemoMultiple), std::vector<int32_t>{1});
}

TEST_F(ListTest, ReturnAndSpaceToggleChecks) {
  Fill(kDemoCheckList, {"a b", "a c"});
  EXPECT_EQ(KeyAnswer(kDemoCheckList, kReturnChar), 2) << "no row is selected";
  LBSetSelect(m_dialog, kDemoCheckList, 1);
  EXPECT_EQ(KeyAnswer(kDemoCheckList, kReturnChar), 1);
  EXPECT_EQ(Checks(kDemoCheckList, 2), (std::vector<int32_t>{0, 1}));
  EXPECT_EQ(KeyAnswer(kDemoCheckList, ' '), 1);
  EXPECT_EQ(Checks(kDemoCheckList, 2), (std::vector<int32_t>{0, 0}));
  Type(kDemoCheckList, "a c");  // here the space is part of a text
  EXPECT_EQ(Checks(kDemoCheckList, 2), (std::vector<int32_t>{0, 0}));
  EXPECT_EQ(LBGetSelect(m_dialog, kDemoCheckList), 1);
  EnableDLGItem(m_dialog, kDemoCheckList, false);
  EXPECT_EQ(KeyAnswer(kDemoCheckList, kReturnChar), 0);
  EXPECT_EQ(Checks(kDemoCheckList, 2), (std::vector<int32_t>{0, 0}));
}

TEST_F(ListTest, ReturnAndDoubleClicksActivateASingleSelectionList) {
  FillNumbers(kDemoList, 3);
  EXPECT_EQ(KeyAnswer(kDemoList, kReturnChar), 1);
  EXPECT_EQ(Record(kDemoList)->activated, 1);
  KeyAnswer(kDemoList, kDownArrowChar);
  EXPECT_EQ(Record(kDemoList)->activated, 0);
  EXPECT_EQ(KeyAnswer(kDemoMultiple, kReturnChar), 0);
  EXPECT_EQ(Record(kDemoMultiple)->activated, 0);
  const struct {
    int32_t row;
    bool doubleClick;
  } clicks[] = {{1, false}, {1, true}, {0, false}};
  for (const auto& click : clicks) {
    ClickAt(m_dialog, InRow(kDemoList, click.row, 20), click.doubleClick);
    EXPECT_EQ(Record(kDemoList)->activated, click.doubleClick ? 1 : 0);
    EXPECT_EQ(LBGetSelect(m_dialog, kDemoList), click.row);
    EXPECT_EQ(TakeHits(), std::vector<int32_t>{kDemoList});
  }
}

TEST_F(ListTest, PressesToggleChecksAndSelect) {
  Fill(kDemoCheckList, {"a", "b", "c"});
  const struct {
    int32_t row;
    int left;
    bool doubleClick;
    int32_t selected;
    std::vector<int32_t> checks;
    std::vector<int32_t> hits;
  } steps[] = {
      {1, 6, false, 1, {0, 1, 0}, {kDemoCheckList}},   // the check mark
      {2, 0, false, 2, {0, 1, 1}, {kDemoCheckList}},   // the edge beside it
      {2, 6, true, 2, {0, 1, 0}, {kDemoCheckList}},    // again at once
      {0, 60, false, 0, {0, 1, 0}, {kDemoCheckList}},  // the text: selects only
      {0, 60, true, 0, {1, 1, 0}, {kDemoCheckList}},  {0, 60, false, 0, {1, 1, 0}, {}},  // selected already
  };
  for (const auto& step : steps) {
    ClickAt(m_dialog, InRow(kDemoCheckList, step.row, step.left), step.doubleClick);
    EXPECT_EQ(LBGetSelect(m_dialog, kDemoCheckList), step.selected) << step.row << " " << step.left;
    EXPECT_EQ(Checks(kDemoCheckList, 3), step.checks) << step.row << " " << step.left;
    EXPECT_EQ(TakeHits(), step.hits) << step.row << " " << step.left;
  }
  for (const uint32_t flag : {kDLGEnabled, kDLGVisible}) {
    RemoveItemFlags(m_dialog, kDemoCheckList, flag);
    const intptr_t where = DLGPackPoint(InRow(kDemoCheckList, 1, 6));
    EXPECT_EQ(SendDLGItemMessage(m_dialog, kDemoCheckList, kDLGMouseDown, where), 0);
    AddItemFlags(m_dialog, kDemoCheckList, flag);
  }
  EXPECT_EQ(Checks(kDemoCheckList, 3), (std::vector<int32_t>{1, 1, 0}));
}

TEST_F(ListTest, ADoubleClickInTheScrollBarChecksNothing) {
  FillNumbers(kDemoCheckList, 50);
  const Rect bounds = GetControlBounds(DLGGetChildControl(m_dialog, kDemoCheckList));
  const Point inScrollBar{static_cast<int16_t>(bounds.bottom - 25), static_cast<int16_t>(bounds.right - 6)};
  ASSERT_TRUE(LIsInScrollBar(List(kDemoCheckList), inScrollBar));
  for (const bool doubleClick : {false, true}) ClickAt(m_dialog, inScrollBar, doubleClick);
  EXPECT_EQ(Checks(kDemoCheckList, 50), std::vector<int32_t>(50, 0));
  EXPECT_EQ(LBGetSelect(m_dialog, kDemoCheckList), -1);
  EXPECT_GT(LGetTopRow(List(kDemoCheckList)), 0);
}

TEST_F(ListTest, AssistiveTechnologyChecksLikeAClick) {
  Fill(kDemoCheckList, {"a\tA", "b\tB"});
  const auto* const view = qobject_cast<QAbstractItemView*>(Widget(m_dialog, kDemoCheckList));
  ASSERT_NE(view, nullptr);
  const auto check = [&](int row) {
    return view->model()->setData(view->model()->index(row, 0), Qt::Checked, Qt::CheckStateRole);
  };
  check(1);
  EXPECT_EQ(TakeHits(), std::vector<int32_t>{kDemoCheckList});
  check(1);
  EnableDLGItem(m_dialog, kDemoCheckList, false);
  check(0);
  EXPECT_EQ(Checks(kDemoCheckList, 3), (std::vector<int32_t>{0, 1, 0}));
  EXPECT_TRUE(TakeHits().empty());
}

TEST_F(ListTest, TellsItsGeometry) {
  const Rect bounds = {10, 20, 110, 320};
  EXPECT_EQ(SendDLGItemMessage(m_dialog, kDemoList, kDLGGrowPoint, reinterpret_cast<intptr_t>(&bounds)),
            (107 << 16) | 317);
  SizeDLGItem(m_dialog, kDemoList, bounds);
  EXPECT_TRUE(Record(kDemoList)->bounds == bounds);
  EXPECT_EQ(Record(kDemoList)->heightExcess, RectHeight(GetWindowPortBounds(m_dialog->window)) - 100);
}

// Where a list's picture differs between two texts of its only row: columns of pixels, from the row's left.
std::vector<int> ChangedColumns(const QImage& before, const QImage& after) {
  std::vector<int> columns;
  for (int x = 0; x < before.width(); ++x) {
    for (int y = 0; y < before.height(); ++y) {
      if (before.pixel(x, y) == after.pixel(x, y)) continue;
      columns.push_back(x);
      break;
    }
  }
  return columns;
}

// The room that the last column does not need goes to the first one.
TEST_F(ListTest, DrawsColumnsAtTheTabStops) {
  const int32_t stops[] = {40, 70};
  LBSetTabs(m_dialog, kDemoMultiple, 2, stops);
  Fill(kDemoMultiple, {""});
  QWidget* const widget = Widget(m_dialog, kDemoMultiple);
  ASSERT_NE(widget, nullptr);
  const int edge = LGetRowBounds(List(kDemoMultiple), 0).left -
                   GetControlBounds(DLGGetChildControl(m_dialog, kDemoMultiple)).left;
  const QImage empty = widget->grab().toImage();
  const struct {
    const char* text;
    int from;
    int to;
  } rows[] = {{"WWWWWWWWWWWWWWWWWWWW\t", 0, 32},
              {"\tWWWWWWWWWWWWWWWW\t", 40, 62},
              {"\t\tWWWW", 70, 110},
              {"\tW\tx", 62, 110},
              {"WWWWWW", 0, 110}};
  for (const auto& row : rows) {
    LSetCell(List(kDemoMultiple), 0, row.text);
    const std::vector<int> changed = ChangedColumns(empty, widget->grab().toImage());
    ASSERT_FALSE(changed.empty()) << row.text;
    EXPECT_GE(changed.front() - edge, row.from) << row.text;
    EXPECT_LT(changed.front() - edge, row.from + 10) << row.text;
    EXPECT_LT(changed.back() - edge, row.to) << row.text;
  }
}

}  // namespace
