#include <QLineEdit>
#include <QPushButton>
#include <QWindow>
#include <array>
#include <cstring>
#include <string>
#include <vector>

#include "Toolkit/Buttons.h"
#include "Toolkit/CBCombo.h"
#include "Toolkit/LBList.h"
#include "Toolkit/OtherItems.h"
#include "Toolkit/TextItems.h"
#include "tests/toolkit/ToolkitFixture.h"

namespace {

class ItemsTest : public DemoTest {
 protected:
  bool Claims(int32_t item, uint16_t character, uint16_t modifiers = 0) {
    return SendDLGItemMessage(m_dialog, item, kDLGHotKey, DLGPackKey(character, modifiers)) != 0;
  }

  // The push button that is drawn as the one that Return presses; 0 for none, -1 for several.
  int32_t MarkedItem() {
    int32_t marked = 0;
    for (int32_t item = 1; item <= m_dialog->itemCount; ++item) {
      const auto* const button = qobject_cast<QPushButton*>(Widget(m_dialog, item));
      if (button != nullptr && button->isDefault()) marked = marked == 0 ? item : -1;
    }
    return marked;
  }
};

TEST_F(ItemsTest, DefaultAndCancelButtonsClaimTheirKeys) {
  const struct {
    uint16_t character;
    uint16_t modifiers;
    bool byDefault;
    bool byCancel;
  } rows[] = {
      {kReturnChar, 0, true, false},
      {kReturnChar, shiftKey, false, false},
      {kEnterChar, 0, true, false},
      {kEnterChar, cmdKey, false, false},
      {kEscapeChar, 0, false, true},
      {kEscapeChar, shiftKey, false, false},
      {'.', cmdKey, false, true},
      {'.', 0, false, false},
      {'.', cmdKey | shiftKey, false, false},
      {' ', 0, false, false},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Claims(kDemoOK, row.character, row.modifiers), row.byDefault) << row.character;
    EXPECT_EQ(Claims(kDemoCancel, row.character, row.modifiers), row.byCancel) << row.character;
    EXPECT_FALSE(Claims(kDemoHelp, row.character, row.modifiers)) << row.character;
  }
  EnableDLGItem(m_dialog, kDemoOK, false);
  HideDLGItem(m_dialog, kDemoCancel, true);
  EXPECT_FALSE(Claims(kDemoOK, kReturnChar));
  EXPECT_FALSE(Claims(kDemoCancel, kEscapeChar));
}

TEST_F(ItemsTest, ReturnBelongsToAListThatUsesIt) {
  const struct {
    int32_t focus;
    std::vector<int32_t> hits;
  } rows[] = {
      {kDemoEdit, {kDemoOK}},   {kDemoCombo, {kDemoOK}},    {kDemoCheckList, {kDemoCheckList}},
      {kDemoList, {kDemoList}}, {kDemoMultiple, {kDemoOK}}, {kDemoHelp, {kDemoHelp}},
  };
  LBInsertItem(m_dialog, kDemoCheckList, "row", kRowLast);
  LBSetSelect(m_dialog, kDemoCheckList, 0);
  for (const auto& row : rows) {
    ASSERT_TRUE(SetFocusDLG(m_dialog, row.focus));
    const bool byButton = row.hits.front() == kDemoOK || row.hits.front() == kDemoHelp;
    EXPECT_EQ(MarkedItem(), byButton ? row.hits.front() : 0) << row.focus;
    EXPECT_TRUE(Key(m_dialog, kReturnChar));
    EXPECT_EQ(TakeHits(), row.hits) << row.focus;
    EXPECT_TRUE(Key(m_dialog, kEnterChar));
    EXPECT_EQ(TakeHits(), std::vector<int32_t>{kDemoOK}) << row.focus;
  }
}

TEST_F(ItemsTest, TheDefaultMarkingMoves) {
  EXPECT_EQ(MarkedItem(), kDemoOK);
  EnableDLGItem(m_dialog, kDemoOK, false);
  EXPECT_EQ(MarkedItem(), 0);
  EnableDLGItem(m_dialog, kDemoOK, true);
  EXPECT_EQ(MarkedItem(), kDemoOK);
  BTSetDefButton(m_dialog, kDemoHelp);
  EXPECT_EQ(MarkedItem(), kDemoHelp);
  EXPECT_TRUE(Claims(kDemoHelp, kReturnChar));
  EXPECT_FALSE(Claims(kDemoOK, kReturnChar));
  BTSetDefButton(m_dialog, 99);
  EXPECT_EQ(m_dialog->defaultButton, kDemoHelp);
  BTSetDefButton(m_dialog, -1);
  EXPECT_EQ(MarkedItem(), 0);
  EXPECT_FALSE(Claims(kDemoHelp, kReturnChar));
  BTSetCancelItem(m_dialog, kDemoHelp);
  EXPECT_TRUE(Claims(kDemoHelp, kEscapeChar));
  EXPECT_FALSE(Claims(kDemoCancel, kEscapeChar));
}

TEST_F(ItemsTest, ClicksAndTheSpaceBarPress) {
  const struct {
    int32_t item;
    int16_t before;
    int16_t after;
    bool reported;
  } rows[] = {
      {kDemoHelp, 0, 0, true},   {kDemoCheck, 0, 1, true},   {kDemoCheck, 1, 0, true},
      {kDemoRadio1, 0, 1, true}, {kDemoRadio1, 1, 1, false}, {kDemoDisabledCheck, 0, 0, false},
  };
  for (const auto& row : rows) {
    const std::vector<int32_t> expected(row.reported ? 1 : 0, row.item);
    for (const bool byKey : {false, true}) {
      SetControlValue(DLGGetChildControl(m_dialog, row.item), row.before);
      if (byKey) {
        SetFocusDLG(m_dialog, row.item);
        if (m_dialog->focusItem == row.item) Key(m_dialog, ' ');
      } else {
        Click(m_dialog, row.item);
      }
      EXPECT_EQ(TakeHits(), expected) << row.item << (byKey ? " by key" : " by mouse");
      EXPECT_EQ(CKGetCheck(m_dialog, row.item), row.after) << row.item;
    }
  }
  EXPECT_EQ(ItemKey(m_dialog, kDemoHelp, kReturnChar), 1);
  EXPECT_EQ(ItemKey(m_dialog, kDemoHelp, kReturnChar, shiftKey), 0);
  EXPECT_EQ(ItemKey(m_dialog, kDemoHelp, ' ', cmdKey), 0);
  EXPECT_EQ(ItemKey(m_dialog, kDemoHelp, ' ', shiftKey), 1);
  EXPECT_EQ(ItemKey(m_dialog, kDemoDisabledCheck, ' '), 0);
}

TEST_F(ItemsTest, TheSecondClickOfADoubleClickCountsInBoxes) {
  const struct {
    int32_t item;
    std::vector<int32_t> hits;
    int16_t value;
  } rows[] = {{kDemoCheck, {kDemoCheck, kDemoCheck}, 0},
              {kDemoRadio2, {kDemoRadio2}, 1},
              {kDemoHelp, {kDemoHelp}, 0}};
  const int interval = QApplication::doubleClickInterval();
  QApplication::setDoubleClickInterval(400);
  for (const auto& row : rows) {
    const QPoint where = Widget(m_dialog, row.item)->geometry().topLeft() + QPoint(10, 10);
    QTest::mouseDClick(Window(m_dialog)->windowHandle(), Qt::LeftButton, {}, where);
    RunEventPass(0);
    EXPECT_EQ(TakeHits(), row.hits);
    EXPECT_EQ(CKGetCheck(m_dialog, row.item), row.value) << row.item;
  }
  QApplication::setDoubleClickInterval(interval);
}

TEST_F(ItemsTest, ArrowKeysGoAroundAGroupOfRadioButtons) {
  onHit = [](DLGRecord* dialog, int32_t item) {  // as its owner excludes them from each other
    for (const int32_t radio : {kDemoRadio1, kDemoRadio2}) CKSetCheck(dialog, radio, radio == item, 0, false);
  };
  SetFocusDLG(m_dialog, kDemoRadio1);
  Key(m_dialog, ' ');
  TakeHits();
  const struct {
    uint16_t character;
    uint16_t modifiers;
    bool otherIsDisabled;
    int32_t focus;
    std::vector<int32_t> hits;
  } steps[] = {
      {kDownArrowChar, 0, false, kDemoRadio2, {kDemoRadio2}},
      {kRightArrowChar, 0, false, kDemoRadio1, {kDemoRadio1}},
      {kUpArrowChar, 0, false, kDemoRadio2, {kDemoRadio2}},
      {kLeftArrowChar, 0, false, kDemoRadio1, {kDemoRadio1}},
      {kLeftArrowChar, cmdKey, false, kDemoRadio1, {}},
      {kDownArrowChar, 0, true, kDemoRadio1, {}},
  };
  for (const auto& step : steps) {
    EnableDLGItem(m_dialog, kDemoRadio2, !step.otherIsDisabled);
    Key(m_dialog, step.character, step.modifiers);
    EXPECT_EQ(m_dialog->focusItem, step.focus) << step.character;
    EXPECT_EQ(TakeHits(), step.hits) << step.character;
    EXPECT_EQ(CKGetCheck(m_dialog, step.focus), 1) << step.character;
  }
}

TEST_F(ItemsTest, CheckValueMarksTheDialogChangedWhenAsked) {
  CKSetCheck(m_dialog, kDemoCheck, 1, 0, false);
  EXPECT_EQ(CKGetCheck(m_dialog, kDemoCheck), 1);
  EXPECT_EQ(m_dialog->changed, 0);
  CKSetCheck(m_dialog, kDemoCheck, 1, 0, true);
  EXPECT_EQ(m_dialog->changed, 1);
  CKSetCheck(m_dialog, 99, 1, 0, true);
  EXPECT_EQ(CKGetCheck(m_dialog, 99), 0);
  EXPECT_TRUE(TakeHits().empty());
  DLGRecord* const closed = m_dialog;
  DisposeDLG(closed);
  CKSetCheck(closed, kDemoCheck, 1, 0, true);
  EXPECT_EQ(CKGetCheck(closed, kDemoCheck), 0);
}

TEST_F(ItemsTest, LabelsNameTheirItems) {
  EXPECT_EQ(Widget(m_dialog, kDemoEdit)->accessibleName(), "Name");
  EXPECT_EQ(Widget(m_dialog, kDemoCheckList)->accessibleName(), "Assignments to export");
  SetText(m_dialog, kDemoEditLabel, "Caf\x8E::", true);
  EXPECT_EQ(Widget(m_dialog, kDemoEdit)->accessibleName(), QString::fromUtf8("Café:"));
  SetText(m_dialog, kDemoEditLabel, "Plain", true);
  EXPECT_EQ(Widget(m_dialog, kDemoEdit)->accessibleName(), "Plain");
}

TEST_F(ItemsTest, StaticTextIsNeverHit) {
  const Rect bounds = GetControlBounds(DLGGetChildControl(m_dialog, kDemoParagraph));
  const Point inside = {static_cast<int16_t>(bounds.top + 2), static_cast<int16_t>(bounds.left + 2)};
  EXPECT_EQ(SendDLGItemMessage(m_dialog, kDemoParagraph, kDLGHitTest, DLGPackPoint(inside)), 0);
  const Rect button = GetControlBounds(DLGGetChildControl(m_dialog, kDemoOK));
  EXPECT_EQ(SendDLGItemMessage(m_dialog, kDemoOK, kDLGHitTest, DLGPackPoint({button.top, button.left})), 1);
  EXPECT_EQ(SendDLGItemMessage(m_dialog, kDemoOK, kDLGHitTest, DLGPackPoint({button.top, button.right})), 0);
}

TEST_F(ItemsTest, EditTextAnswersKeys) {
  SetText(m_dialog, kDemoEdit, "ab", true);
  SetFocusDLG(m_dialog, kDemoEdit);
  const struct {
    uint16_t character;
    uint16_t modifiers;
    intptr_t answer;
    const char* text;
  } steps[] = {
      {'x', 0, 1, "x"},  // replaces the whole text, which the focus selected
      {'y', 0, 1, "xy"},
      {kLeftArrowChar, 0, 2, "xy"},
      {kHomeChar, shiftKey, 2, "xy"},
      {'c', cmdKey, 2, "xy"},
      {kBackspaceChar, 0, 1, "y"},
      {kBackspaceChar, 0, 2, "y"},
      {kUpArrowChar, 0, 0, "y"},
      {kPageDownChar, 0, 0, "y"},
      {kTabChar, shiftKey, 0, "y"},
      {kReturnChar, 0, 0, "y"},
      {kEnterChar, 0, 0, "y"},
      {kEscapeChar, 0, 0, "y"},
      {kUpArrowChar, shiftKey, 2, "y"},
  };
  for (const auto& step : steps) {
    EXPECT_EQ(ItemKey(m_dialog, kDemoEdit, step.character, step.modifiers), step.answer) << step.character;
    EXPECT_STREQ(GetText(m_dialog, kDemoEdit), step.text) << step.character;
  }
}

TEST_F(ItemsTest, EditTextIsSelectedUnlessTheMouseCame) {
  auto* const edit = qobject_cast<QLineEdit*>(Widget(m_dialog, kDemoEdit));
  ASSERT_NE(edit, nullptr);
  SetText(m_dialog, kDemoEdit, "some text", true);
  for (const int32_t how : {0, int32_t{kFocusBackward}, int32_t{kFocusForward}, int32_t{kFocusByMouse}}) {
    edit->deselect();
    SendDLGItemMessage(m_dialog, kDemoEdit, kDLGFocus, 1, how);
    EXPECT_EQ(edit->selectedText(), how == kFocusByMouse ? "" : "some text") << how;
  }
}

TEST_F(ItemsTest, EditTextTakesAsMuchAsItsDataSays) {
  for (int i = 0; i < 70; ++i) ItemKey(m_dialog, kDemoEdit, 'a');
  EXPECT_EQ(std::strlen(GetText(m_dialog, kDemoEdit)), 64U);
}

TEST_F(ItemsTest, TextsFitTheBuffer) {
  SetText(m_dialog, kDemoEdit, "abcdef", false);
  for (const int32_t item : {int32_t{kDemoEdit}, int32_t{kDemoParagraph}, int32_t{kDemoOK}}) {
    for (const size_t capacity : {size_t{0}, size_t{2}}) {
      std::array<char, 4> buffer;
      buffer.fill('#');
      SendDLGItemMessage(m_dialog, item, kDLGGetText, reinterpret_cast<intptr_t>(buffer.data()),
                         static_cast<intptr_t>(capacity));
      EXPECT_EQ(buffer[capacity], '\0') << item;
      EXPECT_EQ(buffer[capacity + 1], '#') << item;
    }
  }
}

// Every type with data of its own, asked to read past the end of the descriptions.
TEST_F(ItemsTest, DataIsReadAsFarAsItGoes) {
  const struct {
    DLGItemProc procedure;
    int32_t item;
    size_t size;
  } rows[] = {
      {BTItemProc, kDemoHelp, 2},  {ETItemProc, kDemoEdit, 2},   {STItemProc, kDemoParagraph, 2},
      {CKItemProc, kDemoCheck, 0}, {RBItemProc, kDemoRadio1, 0}, {LBItemProc, kDemoList, 4},
      {CBItemProc, kDemoCombo, 0}, {DefItemProc, kDemoGroup, 0}, {SLItemProc, kDemoGroup, 0},
  };
  for (const auto& row : rows) {
    row.procedure(m_dialog, row.item, kDLGDispose, 0, 0);
    for (size_t size = 0; size <= row.size; ++size) {
      const std::vector<char> data(size, '\0');
      m_dialog->dataEnd = data.data() + size;
      const intptr_t consumed =
          row.procedure(m_dialog, row.item, kDLGCreate, reinterpret_cast<intptr_t>(data.data()), 0);
      m_dialog->dataEnd = nullptr;
      EXPECT_EQ(consumed, size < row.size ? -1 : static_cast<intptr_t>(row.size)) << row.item;
    }
  }
}

}  // namespace
