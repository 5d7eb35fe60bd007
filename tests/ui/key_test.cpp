// Keys: their characters, their way to the handler and from there to the widget; the keyboard focus.
#include <QAccessible>
#include <QInputMethodEvent>
#include <QLineEdit>

#include "tests/ui/DialogFixture.h"

namespace {

class KeyTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    Show();
  }

  void Focus(int16_t item) {
    SetKeyboardFocus(m_window, Item(item));
    m_keyReceiver = Item(item);
    ASSERT_TRUE(ItemWidget(item)->hasFocus());
  }

  void SendKey(int key, Qt::KeyboardModifiers modifiers, const QString& text, bool repeated = false) {
    QWidget* const focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text, repeated);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text, repeated);
    QCoreApplication::sendEvent(focus, &press);
    QCoreApplication::sendEvent(focus, &release);
  }
};

TEST_F(KeyTest, EveryKeyHasItsCharacter) {
  const struct {
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    const char* expected;  // null: the handler is not called
  } rows[] = {
      {Qt::Key_Return, Qt::NoModifier, "\r", "key 13 0"},
      {Qt::Key_Enter, Qt::KeypadModifier, "\r", "key 3 0"},
      {Qt::Key_Tab, Qt::NoModifier, "\t", "key 9 0"},
      {Qt::Key_Backtab, Qt::NoModifier, "", "key 9 512"},
      {Qt::Key_Backtab, Qt::ShiftModifier, "", "key 9 512"},
      {Qt::Key_Escape, Qt::NoModifier, "\x1B", "key 27 0"},
      {Qt::Key_Left, Qt::NoModifier, "", "key 28 0"},
      {Qt::Key_Right, Qt::ShiftModifier, "", "key 29 512"},
      {Qt::Key_Up, Qt::NoModifier, "", "key 30 0"},
      {Qt::Key_Down, Qt::AltModifier, "", "key 31 2048"},
      {Qt::Key_PageUp, Qt::NoModifier, "", "key 11 0"},
      {Qt::Key_PageDown, Qt::NoModifier, "", "key 12 0"},
      {Qt::Key_Home, Qt::NoModifier, "", "key 1 0"},
      {Qt::Key_End, Qt::NoModifier, "", "key 4 0"},
      {Qt::Key_Backspace, Qt::NoModifier, "\b", "key 8 0"},
      {Qt::Key_Delete, Qt::NoModifier, "\x7F", "key 127 0"},
      {Qt::Key_Space, Qt::NoModifier, " ", "key 32 0"},
      {Qt::Key_A, Qt::NoModifier, "a", "key 97 0"},
      {Qt::Key_A, Qt::ShiftModifier, "A", "key 65 512"},
      {Qt::Key_A, Qt::ControlModifier, "\x01", "key 97 256"},
      {Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier, "\x01", "key 65 768"},
      {Qt::Key_Period, Qt::ControlModifier, ".", "key 46 256"},
      {Qt::Key_N, Qt::AltModifier, "n", "key 110 2048"},
      {Qt::Key_W, Qt::MetaModifier, "w", "key 119 4096"},
      {Qt::Key_Eacute, Qt::NoModifier, "é", "key 142 0"},
      {0x416, Qt::NoModifier, "Ж", "key 63 0"},
      {0, Qt::NoModifier, "😀", "key 63 0"},
      {Qt::Key_Shift, Qt::ShiftModifier, "", nullptr},
      {Qt::Key_Control, Qt::ControlModifier, "", nullptr},
      {Qt::Key_F5, Qt::NoModifier, "", nullptr},
      {Qt::Key_Insert, Qt::NoModifier, "", nullptr},
  };
  for (const auto& row : rows) {
    SendKey(row.key, row.modifiers, QString::fromUtf8(row.text));
    EXPECT_EQ(TakeLog(), row.expected != nullptr ? EventLog{row.expected} : EventLog{})
        << "key " << row.key << " text " << row.text;
  }
}

TEST_F(KeyTest, HeldKeysRepeatWhereTheyMay) {
  const struct {
    int16_t focus;
    int key;
    const char* text;
    bool repeats;
  } rows[] = {
      {kButton, Qt::Key_Return, "\r", false}, {kButton, Qt::Key_Enter, "\r", false},
      {kButton, Qt::Key_Escape, "", false},   {kButton, Qt::Key_Space, " ", false},
      {kEdit, Qt::Key_Space, " ", true},      {kEdit, Qt::Key_Return, "\r", false},
      {kList, Qt::Key_Down, "", true},        {kButton, Qt::Key_Tab, "\t", true},
  };
  for (const auto& row : rows) {
    SetKeyboardFocus(m_window, Item(row.focus));
    SendKey(row.key, Qt::NoModifier, row.text, true);
    EXPECT_EQ(!TakeLog().empty(), row.repeats) << "item " << row.focus << " key " << row.key;
  }
}

TEST_F(KeyTest, EditTextsTakeKeysTheHandlerHandsOver) {
  Focus(kEdit);
  SelectEditText(Item(kEdit), 3, 3);
  SendKey(0x416, Qt::NoModifier, QStringLiteral("Ж"));  // has no Roman character
  EXPECT_EQ(TakeLog(), (EventLog{"key 63 0", "changed"}));
  EXPECT_EQ(ItemWidget<QLineEdit>(kEdit)->text(), QStringLiteral("abcЖ"));
  EXPECT_EQ(GetControlText(Item(kEdit)), "abc?");
  m_keyReceiver = nullptr;
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
  EXPECT_EQ(ItemWidget<QLineEdit>(kEdit)->text(), QStringLiteral("abcЖ"));
}

TEST_F(KeyTest, TabReturnAndEscapeDoNothingByThemselves) {
  SetDialogDefaultItem(m_dialog, kButton);
  Focus(kEdit);
  for (const int key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key));
    EXPECT_EQ(TakeLog().size(), 2U);
    EXPECT_TRUE(ItemWidget(kEdit)->hasFocus());
    EXPECT_TRUE(IsWindowVisible(m_window));
  }
  EXPECT_EQ(GetControlText(Item(kEdit)), "abc");
}

TEST_F(KeyTest, ControlsTellWhetherAKeyChangedThem) {
  for (const char* text : {"one", "two"}) InsertMenuItem(GetControlPopupMenuHandle(Item(kPopup)), text, 99);
  SetControlValue(Item(kPopup), 1);
  for (const bool changes : {true, false})
    EXPECT_EQ(HandleControlKey(Item(kPopup), kDownArrowChar, 0), changes);
  EXPECT_EQ(TakeLog(), EventLog{});
  HideControl(Item(kEdit));
  EXPECT_FALSE(HandleControlKey(Item(kEdit), 'x', 0));
  EXPECT_EQ(GetControlText(Item(kEdit)), "abc");
}

TEST_F(KeyTest, InputMethodsReportAnAction) {
  Focus(kEdit);
  QInputMethodEvent input;
  input.setCommitString(QStringLiteral("ñ"));
  QCoreApplication::sendEvent(ItemWidget(kEdit), &input);
  EXPECT_EQ(TakeLog(), EventLog{"action item5"});
  SetControlText(Item(kEdit), "by program");
  EXPECT_EQ(TakeLog(), EventLog{});
}

TEST_F(KeyTest, FocusMovesAreReportedUnlessAskedFor) {
  EXPECT_EQ(GetKeyboardFocus(m_window), nullptr);
  SetKeyboardFocus(m_window, Item(kList));
  EXPECT_EQ(TakeLog(), EventLog{});
  EXPECT_EQ(GetKeyboardFocus(m_window), Item(kList));

  QAccessibleInterface* const edit = QAccessible::queryAccessibleInterface(ItemWidget(kEdit));
  edit->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(TakeLog(), EventLog{"focus item5"});
  EXPECT_EQ(GetKeyboardFocus(m_window), Item(kEdit));

  QTest::mouseClick(ItemWidget(kCheck), Qt::LeftButton, {}, QPoint(8, 10));
  EXPECT_EQ(GetKeyboardFocus(m_window), Item(kEdit)) << "a press moves no focus by itself";
  HideControl(Item(kEdit));
  EXPECT_EQ(GetKeyboardFocus(m_window), nullptr);
  SetKeyboardFocus(m_window, nullptr);
  EXPECT_EQ(TakeLog(), (EventLog{"down", "hit item2"}));
}

TEST_F(KeyTest, PressesThatWaitComeBeforeTheKey) {
  QTest::mousePress(ItemWidget(kCheck), Qt::LeftButton, {}, QPoint(8, 10));
  m_onMouseDown = [](WindowRef /*window*/, const MouseEvent& /*event*/) {};
  QTest::keyClick(WidgetOf(m_window), 'q');
  EXPECT_EQ(TakeLog(), (EventLog{"down", "key 113 0"}));
  QTest::mouseRelease(ItemWidget(kCheck), Qt::LeftButton);
}

}  // namespace
