// Dialogs from resources, their items, and controls as such.
#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QToolTip>

#include "Platform/Ui/Drawing.h"
#include "Platform/Ui/HelpTags.h"
#include "tests/ui/DialogFixture.h"

namespace {

TEST_F(DialogTest, ItemsAreTheStandardControls) {
  EXPECT_EQ(CountDITL(m_dialog), kItemCount);
  EXPECT_EQ(GetWTitle(m_window), "Café");
  EXPECT_EQ(GetWRefCon(m_window), 77);
  EXPECT_EQ(GetWindowClass(m_window), kMovableModalWindowClass);
  EXPECT_FALSE(IsWindowVisible(m_window));
  EXPECT_TRUE(GetWindowScreenBounds(m_window) == (Rect{100, 120, 400, 420}));
  const ControlKind kinds[] = {kControlKindPushButton, kControlKindCheckBox, kControlKindRadioButton,
                               kControlKindStaticText, kControlKindEditText, kControlKindPopupButton,
                               kControlKindListBox,    kControlKindGroupBox, kControlKindSeparator,
                               kControlKindUserPane,   kControlKindNone};
  for (int16_t item = 1; item <= kItemCount; ++item) {
    EXPECT_EQ(GetControlKind(Item(item)), kinds[item - 1]) << item;
    EXPECT_EQ(FindDialogItemOfControl(m_dialog, Item(item)), item == kPicture ? 0 : item);
  }
  Rect bounds;
  EXPECT_TRUE(GetDialogItemBounds(m_dialog, kPicture, &bounds));
  EXPECT_TRUE(bounds == (Rect{230, 10, 250, 30}));
  SetDialogItemBounds(m_dialog, kCheck, {1, 2, 30, 40});
  Show();
  EXPECT_EQ(ItemWidget(kCheck)->geometry(), QRect(2, 1, 38, 29));
}

TEST_F(DialogTest, AssistiveTechnologyReadsAndWorksIt) {
  SetControlText(Item(kText), "A & B:");
  for (const int16_t labelled : {kButton, kList, kEdit}) SetControlLabel(Item(labelled), Item(kText));
  SetControlLabel(Item(kPopup), Item(kButton));  // is no text
  SetControlShortcut(Item(kButton), 'q');
  SetControlShortcut(Item(kText), 'a');
  HMSetControlHelpContent(Item(kCheck), "Helps");
  Show();
  const struct {
    int16_t item;
    QAccessible::Role role;
    const char* name;
  } rows[] = {
      {kButton, QAccessible::Button, "Save & Quit"},
      {kCheck, QAccessible::CheckBox, "Check me"},
      {kRadio, QAccessible::RadioButton, "Choose me"},
      {kText, QAccessible::StaticText, "A & B:"},
      {kEdit, QAccessible::EditableText, "A & B"},
      {kPopup, QAccessible::ComboBox, ""},
      {kList, QAccessible::List, "A & B"},
      {kGroup, QAccessible::Grouping, "Group & Co"},
  };
  for (const auto& row : rows) {
    QAccessibleInterface* const item = QAccessible::queryAccessibleInterface(ItemWidget(row.item));
    EXPECT_EQ(item->role(), row.role) << row.item;
    EXPECT_EQ(item->text(QAccessible::Name).toStdString(), row.name) << row.item;
  }
  EXPECT_EQ(ItemWidget<QPushButton>(kButton)->text(), "Save && &Quit");
  EXPECT_EQ(ItemWidget<QLabel>(kText)->buddy(), ItemWidget(kEdit));
  EXPECT_EQ(ItemWidget<QLabel>(kText)->text(), "A && B:");
  QAccessibleInterface* const check = QAccessible::queryAccessibleInterface(ItemWidget(kCheck));
  EXPECT_EQ(check->text(QAccessible::Description), "Helps");

  check->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(GetControlValue(Item(kCheck)), 1);
  EXPECT_EQ(TakeLog(), EventLog{"action item2"});
  QAccessibleInterface* const radio = QAccessible::queryAccessibleInterface(ItemWidget(kRadio));
  for (int i = 0; i < 2; ++i) radio->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(GetControlValue(Item(kRadio)), 1);
  EXPECT_EQ(TakeLog(), (EventLog{"action item3", "action item3"}));
}

TEST_F(DialogTest, IsAsLargeAsTheFontNeedsIt) {
  const QFont font = QApplication::font();
  QApplication::setFont(QFont(font.family(), 2 * font.pointSize()));
  const OpenFork more({{"DLOG", {{129, DialogData("Large") + BigEndian(0x280A, 2)}}},
                       {"DITL", {{201, ItemListData({{{10, 10, 30, 110}, 5, "New"}})}}}});
  const DialogRef large = GetNewDialog(129);
  const WindowRef window = GetDialogWindow(large);
  const Rect size = GetWindowPortBounds(window);
  EXPECT_GT(size.right, 400);
  EXPECT_GT(size.bottom, 400);
  EXPECT_EQ(GetDialogWidth(large, 300), size.right);
  EXPECT_EQ(GetDialogWidth(m_dialog, 300), 300);
  const QPoint middle = QGuiApplication::primaryScreen()->availableGeometry().center();
  const Rect place = GetWindowScreenBounds(window);
  EXPECT_NEAR((place.left + place.right) / 2.0, middle.x(), 1);
  EXPECT_NEAR((place.top + place.bottom) / 2.0, middle.y(), 1);

  QApplication::setFont(font);
  AppendDialogItemList(large, 201);
  AppendDialogItemList(m_dialog, 201);
  const Rect added = GetControlBounds(GetDialogItemAsControl(large, kItemCount + 1));
  EXPECT_EQ(added.right, GetDialogWidth(large, 110));
  EXPECT_NEAR(added.bottom, size.bottom / 10.0, 1);
  EXPECT_TRUE(GetControlBounds(Item(kItemCount + 1)) == (Rect{10, 10, 30, 110}));
}

TEST_F(DialogTest, ItemsComeAndGo) {
  const OpenFork more({{"DITL",
                        {{200, ItemListData({{{1, 1, 9, 9}, 5, "New"}, {{1, 1, 9, 9}, 7, "\1\1"}})},
                         {201, ItemListData({{{1, 1, 9, 9}, 5, "New"}})}}}});
  EXPECT_FALSE(AppendDialogItemList(m_dialog, 200)) << "names a control that does not exist";
  EXPECT_EQ(CountDITL(m_dialog), kItemCount);
  EXPECT_TRUE(AppendDialogItemList(m_dialog, 201));
  const ControlRef added = Item(kItemCount + 1);
  EXPECT_EQ(GetControlText(added), "New");
  const ControlRef pane = Item(kPane);
  ShortenDITL(m_dialog, 3);
  EXPECT_EQ(CountDITL(m_dialog), kItemCount - 2);
  EXPECT_FALSE(IsValidControl(added));
  EXPECT_FALSE(IsValidControl(pane));
  ShortenDITL(m_dialog, 1000);
  EXPECT_EQ(CountDITL(m_dialog), 0);
}

TEST_F(DialogTest, AHelpTagAppearsWhereTheMouseRests) {
  HMSetControlHelpContent(Item(kCheck), "Check <b>this</b>");
  HMSetControlHelpContent(Item(kRadio), "Plain");
  HMSetTagDelay(50);
  Show();
  QTest::mouseMove(Handle(), MiddleOf(kRadio));
  EXPECT_FALSE(QToolTip::isVisible());
  QTest::qWait(150);
  EXPECT_EQ(QToolTip::text(), "Plain");
  QTest::mouseMove(Handle(), MiddleOf(kCheck));
  QTest::qWait(150);
  EXPECT_EQ(QToolTip::text(), "<p>Check &lt;b&gt;this&lt;/b&gt;");
  QTest::mouseMove(Handle(), MiddleOf(kButton));
  QTest::qWait(500);
  EXPECT_FALSE(QToolTip::isVisible());
  HMSetTagDelay(500);
}

TEST_F(DialogTest, TextsAreMeasuredByLines) {
  const Point one = GetThemeTextDimensions("Width", 0, true);
  const Point two = GetThemeTextDimensions("Width\rW", 0, true);
  EXPECT_EQ(two.h, one.h);
  EXPECT_GE(two.v, 2 * one.v - 1);
}

// Opens the dialog with one resource replaced.
void _ExpectNoDialog(const std::string& type, int16_t id, const std::string& data, const std::string& name) {
  TestTypes types = AllKinds();
  for (auto& [typeName, resources] : types) {
    for (TestResource& resource : resources) {
      if (typeName == type && resource.id == id) resource.data = data;
    }
  }
  const OpenFork fork(types);
  EXPECT_EQ(GetNewDialog(128), nullptr) << name;
}

class DamagedDialogTest : public DialogTest {
 protected:
  void SetUp() override {}
};

TEST_F(DamagedDialogTest, IsRefusedAtEveryLength) {
  const size_t widgets = static_cast<size_t>(QApplication::allWidgets().size());
  for (const auto& [type, resources] : AllKinds()) {
    for (const TestResource& resource : resources) {
      for (size_t length = 0; length < resource.data.size(); ++length) {
        const std::string name =
            type + " " + std::to_string(resource.id) + " cut to " + std::to_string(length);
        _ExpectNoDialog(type, resource.id, resource.data.substr(0, length), name);
      }
    }
  }
  EXPECT_EQ(GetWindowList(), nullptr);
  EXPECT_EQ(static_cast<size_t>(QApplication::allWidgets().size()), widgets);
}

TEST_F(DamagedDialogTest, IsRefusedForWhatDoesNotExist) {
  const std::string button = ItemListData({{{0, 0, 9, 9}, 4, "OK"}}).substr(2);
  std::string many;
  for (int i = 0; i < 1001; ++i) many += button;
  _ExpectNoDialog("DLOG", 128, DialogData("x", 5, 999), "missing item list");
  _ExpectNoDialog("DITL", 100, ItemListData({{{0, 0, 9, 9}, 7, BigEndian(999, 2)}}), "missing control");
  _ExpectNoDialog("DITL", 100, ItemListData({{{0, 0, 9, 9}, 7, "\1"}}), "short control id");
  _ExpectNoDialog("CNTL", 352, ControlData(352, "", 999), "missing list description");
  _ExpectNoDialog("DITL", 100, BigEndian(1000, 2) + many, "too many items");
  _ExpectNoDialog("DITL", 100, BigEndian(0x8000, 2) + many, "negative count");
  EXPECT_EQ(GetNewDialog(4711), nullptr);
}

}  // namespace
