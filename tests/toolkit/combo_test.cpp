#include "Toolkit/CBCombo.h"

#include <string>
#include <vector>

#include "Platform/Ui/Menus.h"
#include "Toolkit/RowPosition.h"
#include "tests/toolkit/ToolkitFixture.h"

namespace {

class ComboTest : public DemoTest {
 protected:
  int32_t Insert(const char* text, int32_t position = kRowLast) {
    return CBInsertItem(m_dialog, kDemoCombo, text, position);
  }

  std::vector<std::string> Rows() {
    const MenuRef menu = GetControlPopupMenuHandle(DLGGetChildControl(m_dialog, kDemoCombo));
    std::vector<std::string> rows;
    for (int32_t row = 1; row <= CountMenuItems(menu); ++row) rows.push_back(GetMenuItemText(menu, row));
    return rows;
  }

  intptr_t KeyAnswer(uint16_t character, uint16_t modifiers = 0) {
    return ItemKey(m_dialog, kDemoCombo, character, modifiers);
  }
};

TEST_F(ComboTest, InsertsWhereThePositionSays) {
  const struct {
    const char* text;
    int32_t position;
    int32_t row;
    std::vector<std::string> rows;
  } steps[] = {
      {"m", kRowLast, 0, {"m"}},
      {"x", kRowTop, 0, {"x", "m"}},
      {"b", 1, 1, {"x", "b", "m"}},
      {"z", 3, 3, {"x", "b", "m", "z"}},
      {"W", kRowSorted, 0, {"W", "x", "b", "m", "z"}},
      {"Y", kRowSorted, 4, {"W", "x", "b", "m", "Y", "z"}},
      {"y", 9, 6, {"W", "x", "b", "m", "Y", "z", "y"}},
      {nullptr, kRowLast, 7, {"W", "x", "b", "m", "Y", "z", "y", ""}},
  };
  for (const auto& step : steps) {
    EXPECT_EQ(Insert(step.text, step.position), step.row);
    EXPECT_EQ(Rows(), step.rows);
  }
  EXPECT_EQ(GetControlMaximum(DLGGetChildControl(m_dialog, kDemoCombo)), 8);
  EXPECT_EQ(CBGetSelect(m_dialog, kDemoCombo), -1) << "no row selects itself";
}

TEST_F(ComboTest, KeepsTheSelectedEntryAndTheRowsValues) {
  for (const char* text : {"a", "b", "c"}) Insert(text);
  for (int32_t row = 0; row < 3; ++row) CBSetItemData(m_dialog, kDemoCombo, row, 10 * row + 1);
  CBSetSelect(m_dialog, kDemoCombo, 1);
  const struct {
    int32_t position;
    int32_t selected;
    std::vector<intptr_t> values;
  } steps[] = {
      {kRowLast, 1, {1, 11, 21, 0}},
      {1, 2, {1, 0, 11, 21, 0}},
      {3, 2, {1, 0, 11, 0, 21, 0}},
      {kRowTop, 3, {0, 1, 0, 11, 0, 21, 0}},
  };
  for (const auto& step : steps) {
    Insert("new", step.position);
    EXPECT_EQ(CBGetSelect(m_dialog, kDemoCombo), step.selected);
    EXPECT_STREQ(GetText(m_dialog, kDemoCombo), "b");
    std::vector<intptr_t> values;
    for (int32_t row = 0; row < CBGetCount(m_dialog, kDemoCombo); ++row) {
      values.push_back(CBGetItemData(m_dialog, kDemoCombo, row));
    }
    EXPECT_EQ(values, step.values);
  }
  EXPECT_TRUE(TakeHits().empty());
}

TEST_F(ComboTest, ShowsEveryTextLiterally) {
  const std::string texts[] = {
      "Tom & Jerry", "(disabled",          "one;two", "-", "!m", "/K", "<B", "^3", "&&",
      "caf\x8E",     std::string(255, 'x')};
  for (const std::string& text : texts) {
    const int32_t row = Insert(text.c_str());
    CBSetSelect(m_dialog, kDemoCombo, row);
    EXPECT_EQ(std::string(GetText(m_dialog, kDemoCombo)), text);
  }
  EXPECT_EQ(Rows(), std::vector<std::string>(std::begin(texts), std::end(texts)));
  Insert(std::string(300, 'y').c_str(), kRowTop);
  EXPECT_EQ(Rows().front(), std::string(255, 'y'));
}

TEST_F(ComboTest, HoldsAThousandRows) {
  for (int i = 0; i < 1000; ++i) ASSERT_EQ(Insert(std::to_string(i).c_str()), i);
  CBSetItemData(m_dialog, kDemoCombo, 999, 7);
  EXPECT_EQ(Insert("one more", kRowTop), -1);
  EXPECT_EQ(CBGetCount(m_dialog, kDemoCombo), 1000);
  EXPECT_EQ(CBGetItemData(m_dialog, kDemoCombo, 999), 7);
  EXPECT_EQ(CBGetItemData(m_dialog, kDemoCombo, 1000), 0);
  EXPECT_EQ(CBGetItemData(m_dialog, kDemoCombo, -1), 0);
}

TEST_F(ComboTest, SelectsByRowAndByText) {
  for (const char* text : {"a", "b", "b", "c"}) Insert(text);
  const struct {
    int32_t row;
    int32_t selected;
  } steps[] = {{2, 2}, {4, 2}, {3, 3}, {INT32_MAX, 3}, {-1, -1}, {0, 0}, {-7, -1}};
  for (const auto& step : steps) {
    CBSetSelect(m_dialog, kDemoCombo, step.row);
    EXPECT_EQ(CBGetSelect(m_dialog, kDemoCombo), step.selected) << step.row;
  }
  SetText(m_dialog, kDemoCombo, "b", false);
  EXPECT_EQ(CBGetSelect(m_dialog, kDemoCombo), 1);
  SetText(m_dialog, kDemoCombo, "B", false);
  EXPECT_EQ(CBGetSelect(m_dialog, kDemoCombo), 1);
}

TEST_F(ComboTest, AnswersKeys) {
  for (const char* text : {"Alpha", "Beta", "Gamma"}) Insert(text);
  CBSetSelect(m_dialog, kDemoCombo, 0);
  SetFocusDLG(m_dialog, kDemoCombo);
  const struct {
    uint16_t character;
    uint16_t modifiers;
    intptr_t answer;
    int32_t selected;
  } steps[] = {
      {kDownArrowChar, 0, 1, 1}, {kEndChar, 0, 1, 2},     {kEndChar, 0, 2, 2},   {kUpArrowChar, 0, 1, 1},
      {kHomeChar, 0, 1, 0},      {kUpArrowChar, 0, 2, 0}, {'g', 0, 1, 2},        {kReturnChar, 0, 0, 2},
      {kTabChar, 0, 0, 2},       {kEscapeChar, 0, 0, 2},  {kEnterChar, 0, 0, 2}, {'a', cmdKey, 0, 2},
      {'.', cmdKey, 0, 2},       {kDeleteChar, 0, 0, 2},
  };
  for (const auto& step : steps) {
    EXPECT_EQ(KeyAnswer(step.character, step.modifiers), step.answer) << step.character;
    EXPECT_EQ(CBGetSelect(m_dialog, kDemoCombo), step.selected) << step.character;
  }
}

TEST_F(ComboTest, AnOpenListHasTheKeysOfItsDialog) {
  for (const char* text : {"Alpha", "Beta", "Gamma"}) Insert(text);
  CBSetSelect(m_dialog, kDemoCombo, 1);
  SetFocusDLG(m_dialog, kDemoCombo);
  const struct {
    uint16_t opener, modifiers;
    std::vector<Qt::Key> keys;
    int32_t selected;
    std::vector<int32_t> hits;
  } rows[] = {
      {' ', 0, {Qt::Key_Return}, 1, {}},  // the row that is chosen already
      {' ', 0, {Qt::Key_Down, Qt::Key_Return}, 2, {kDemoCombo}},
      {kDownArrowChar, optionKey, {Qt::Key_Up, Qt::Key_Escape}, 2, {}},
      {kDownArrowChar, optionKey, {Qt::Key_Home, Qt::Key_Enter}, 0, {kDemoCombo}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(KeyAnswer(row.opener, row.modifiers), 2);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    for (const Qt::Key key : row.keys) QTest::keyClick(Window(m_dialog), key);
    RunEventPass(1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(CBGetSelect(m_dialog, kDemoCombo), row.selected);
    EXPECT_EQ(TakeHits(), row.hits);
  }
  QTest::mouseClick(Widget(m_dialog, kDemoCombo), Qt::LeftButton);
  gestures::ChooseFromOpenPopup(0, 2, Input::mouse);
  RunEventPass(1);
  EXPECT_EQ(CBGetSelect(m_dialog, kDemoCombo), 2);
  EXPECT_EQ(TakeHits(), std::vector<int32_t>{kDemoCombo});
  QTest::keyClick(Window(m_dialog), Qt::Key_Escape);
  EXPECT_EQ(TakeHits(), std::vector<int32_t>{kDemoCancel}) << "the dialog's again";
}

TEST_F(ComboTest, IsOnlyWhatHasAMenu) {
  for (const int32_t item : {0, -1, 99, int32_t{kDemoEdit}, int32_t{kDemoList}, int32_t{kDemoEditLabel}}) {
    EXPECT_EQ(CBInsertItem(m_dialog, item, "a", kRowTop), -1) << item;
    EXPECT_EQ(CBGetSelect(m_dialog, item), -1) << item;
    EXPECT_EQ(CBGetCount(m_dialog, item), 0) << item;
  }
  DLGRecord* const closed = m_dialog;
  DisposeDLG(closed);
  EXPECT_EQ(CBInsertItem(closed, kDemoCombo, "a", kRowTop), -1);
  EXPECT_EQ(CBGetSelect(closed, kDemoCombo), -1);
}

}  // namespace
