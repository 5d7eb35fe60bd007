// The rest of a dialog's operations: showing and hiding, item fields, hooks, start-up, numbered alerts.
#include <QScreen>
#include <QTimer>

#include "Common/Language.h"
#include "Toolkit/Alert.h"
#include "Toolkit/Buttons.h"
#include "Toolkit/DLGRegister.h"
#include "Toolkit/LBList.h"
#include "Toolkit/Toolkit.h"
#include "ToolkitFixture.h"

namespace {

constexpr int32_t kFields = 501, kFloatingDialog = 504, kPlaceholder = 900;
constexpr int32_t kFirst = 3;

class State : public ToolkitTest {
 protected:
  // Answers the next message box and gives what it said.
  static QString AnswerAlert(const std::function<void()>& show) {
    QString text;
    QTimer::singleShot(20, [&text] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      text = box->text();
      gestures::PressTitled(box, box->buttons().front()->text());
    });
    show();
    return text;
  }
};

TEST_F(State, ShowingHidingAndCentring) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  EXPECT_TRUE(IsWindowVisible(dialog->window));
  HideDLG(dialog);
  EXPECT_FALSE(IsWindowVisible(dialog->window));
  CenterDLG(dialog);
  const Rect bounds = GetWindowScreenBounds(dialog->window);
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  EXPECT_NEAR((bounds.left + bounds.right) / 2, screen.center().x(), 20);
  ShowDLG(dialog);
  EXPECT_TRUE(IsWindowVisible(dialog->window));
  EXPECT_TRUE(IsWindowHilited(dialog->window));
}

TEST_F(State, AModalDialogTakesTheOthersActivityAndCollapseBoxes) {
  DLGRecord* fields = Open(kFields, kDLGModeless);
  DLGRecord* floating = Open(kFloatingDialog, kDLGFloating);
  ChangeWindowAttributes(fields->window, kWindowCollapseBoxAttribute, 0);
  DLGRecord* modal = Open(kDemoDialog);
  EXPECT_FALSE(IsWindowHilited(fields->window) || IsWindowHilited(floating->window));
  EXPECT_EQ(GetWindowAttributes(fields->window) & kWindowCollapseBoxAttribute, 0U);
  EXPECT_EQ(FrontNonFloatingWindow(), modal->window);
  ASSERT_TRUE(MyCloseDialog(modal));
  EXPECT_TRUE(IsWindowHilited(fields->window));
  EXPECT_NE(GetWindowAttributes(fields->window) & kWindowCollapseBoxAttribute, 0U);
}

TEST_F(State, APlaceholderStandsInWhileFloatingWindowsRest) {
  DLGRecord* fields = Open(kFields, kDLGModeless);
  fields->flags |= kDLGPlaceholder;
  DLGRecord* modal = Open(kDemoDialog);
  EXPECT_TRUE(DLGIsOpen(kPlaceholder));
  EXPECT_EQ(FrontWindow(), modal->window);
  MyCloseDialog(modal);
  EXPECT_FALSE(DLGIsOpen(kPlaceholder));
}

TEST_F(State, ItemFields) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  AddItemFlags(dialog, kFirst, 0x1000);
  EXPECT_EQ(GetItemFlags(dialog, kFirst) & 0x1000, 0x1000U);
  RemoveItemFlags(dialog, kFirst, 0x1000);
  EXPECT_EQ(GetItemFlags(dialog, kFirst) & 0x1000, 0U);
  SetItemType(dialog, kFirst, 18);
  EXPECT_EQ(GetItemType(dialog, kFirst), 18);
  SetIRefCon(dialog, kFirst, 4711);
  EXPECT_EQ(GetIRefCon(dialog, kFirst), 4711);
  EXPECT_NE(DLGGetChildControl(dialog, kFirst), nullptr);
  EXPECT_TRUE(IsItemVisible(dialog, kFirst));
  HideDLGItem(dialog, kFirst, true);
  EXPECT_FALSE(IsItemVisible(dialog, kFirst));
  for (const int32_t item : {0, -1, 9}) {
    AddItemFlags(dialog, item, 0x10);
    SetIRefCon(dialog, item, 1);
    EXPECT_EQ(GetItemFlags(dialog, item), 0U);
    EXPECT_EQ(GetIRefCon(dialog, item), 0);
    EXPECT_EQ(GetItemType(dialog, item), 0);
    EXPECT_EQ(DLGGetChildControl(dialog, item), nullptr);
    EXPECT_FALSE(IsItemEnabled(dialog, item) || IsItemVisible(dialog, item) || DLGNotifyChange(dialog, item));
  }
}

TEST_F(State, ANewRectangleIsTold) {
  static intptr_t gSize;
  gSize = 0;
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  SetItemProc(dialog, kFirst,
              [](DLGRecord*, int32_t, int32_t message, intptr_t param1, intptr_t) -> intptr_t {
                if (message == kDLGResize) gSize = param1;
                return 0;
              });
  SizeDLGItem(dialog, kFirst, {10, 20, 40, 220});
  EXPECT_EQ(gSize, (30 << 16) | 200);
  EXPECT_EQ(Widget(dialog, kFirst)->geometry(), QRect(20, 10, 200, 30));
}

TEST_F(State, GlobalHooks) {
  static std::vector<std::string> gCalls;
  gCalls.clear();
  DLGSetGlobalOpenProc([](DLGRecord* d) { gCalls.push_back("open " + std::to_string(d->resourceID)); });
  DLGSetGlobalCloseProc([](DLGRecord* d) { gCalls.push_back("close " + std::to_string(d->resourceID)); });
  MyCloseDialog(Open(kFields, kDLGModeless));
  DLGSetGlobalOpenProc(nullptr);
  DLGSetGlobalCloseProc(nullptr);
  EXPECT_EQ(gCalls, (std::vector<std::string>{"open 501", "close 501"}));
}

TEST_F(State, ASecondStartKeepsWhatTheFirstRegistered) {
  const int32_t rows = numRegisterItems;
  EXPECT_EQ(_InitLumoLibrary(nullptr), 0);
  EXPECT_EQ(numRegisterItems, rows);
  EXPECT_EQ(gTimerInterval, 100);
  EXPECT_EQ(gDefaultFont, 3);
  for (const int32_t type : {21, 23, 24, 32}) EXPECT_EQ(DLGFindItemProc(type), nullptr);
  EXPECT_EQ(itemRegisterList[0].type, 1);
  EXPECT_EQ(itemRegisterList[20].type, 22);
}

TEST_F(State, NumberedAlerts) {
  // The demo's resources hold no alert strings: the argument is what there is to say.
  EXPECT_EQ(AnswerAlert([] { InfoAlert(3, Utf8Text{"Saved in \xC3\xB1.csv"}); }),
            QString::fromUtf8("Saved in \xC3\xB1.csv"));
  EXPECT_EQ(AnswerAlert([] { ErrorAlert(1, "100%s"); }), "100%s");
  const uint32_t beeps = GetBeepCount();
  InfoAlert(1);  // nothing to say, nothing to answer
  EXPECT_EQ(GetBeepCount(), beeps + 1);
}

TEST_F(State, TheDialogGoesWhileAnAlertIsUp) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  QTimer::singleShot(20, [dialog] { DisposeDLG(dialog); });
  QTimer::singleShot(200, [] {
    if (QWidget* box = QApplication::activeModalWidget()) box->close();
  });
  ErrorAlert(1, "gone");
  EXPECT_FALSE(DialogIsValid(dialog));
}

TEST_F(State, ASpanishSessionSetsTheLocale) {
  gLang = kLanguageSpanish;
  _InitLumoLibrary(nullptr);
  EXPECT_EQ(gToolkitLanguage, 6);
  gLang = 0;
  _InitLumoLibrary(nullptr);
  EXPECT_EQ(gToolkitLanguage, 6) << "an English start leaves it";
  CurrentLocale(0);
}

TEST_F(State, TextIsMeasuredInTheItemsFont) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  const auto width = [&](int16_t size) {
    SetControlFontStyle(DLGGetChildControl(dialog, kFirst), {3, size});
    return DLGMeasureItem(dialog, kFirst, "Measured text") & 0xFFFF;
  };
  const int32_t small = width(8);
  const int32_t large = width(24);
  EXPECT_GT(large, 2 * small);
  EXPECT_LT(large, 4 * small);
  EXPECT_GT(width(-1), width(-2)) << "theme fonts by number";
}

TEST_F(State, AListDrawsByItsOwnProcedure) {
  static std::vector<int32_t> gDrawn;
  gDrawn.clear();
  DLGRecord* dialog = Open(kDemoDialog);
  for (const char* text : {"a", "b"}) LBInsertItem(dialog, kDemoList, text, kRowLast);
  LBSetDrawProc(dialog, kDemoList,
                [](DrawContext*, DLGRecord*, int32_t item, int32_t row, const Rect& bounds, bool, bool) {
                  EXPECT_EQ(item, kDemoList);
                  EXPECT_GT(RectHeight(bounds), 10);
                  gDrawn.push_back(row);
                });
  LBSetRedraw(dialog, kDemoList, true);
  Widget(dialog, kDemoList)->grab();
  EXPECT_EQ(gDrawn, (std::vector<int32_t>{0, 1}));
}

}  // namespace
