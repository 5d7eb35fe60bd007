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

constexpr int32_t kPlaceholder = 900;

class State : public FieldsTest {
 protected:
  // Answers the next message box and gives what it said.
  static QString AnswerAlert(const std::function<void()>& show) {
    QString text;
    QTimer::singleShot(20, [&text] {
      QMessageBox* const box = gestures::MessageBox();
      if (box == nullptr) return;
      text = box->text();
      gestures::PressTitled(box, "OK");
    });
    show();
    return text;
  }
};

TEST_F(State, ShowingHidingAndCentring) {
  HideDLG(m_dialog);
  EXPECT_FALSE(IsWindowVisible(m_dialog->window));
  CenterDLG(m_dialog);
  const Rect bounds = GetWindowScreenBounds(m_dialog->window);
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  EXPECT_NEAR((bounds.left + bounds.right) / 2.0, screen.center().x(), 20);
  ShowDLG(m_dialog);
  EXPECT_TRUE(IsWindowVisible(m_dialog->window));
  EXPECT_TRUE(IsWindowHilited(m_dialog->window));
}

TEST_F(State, AModalDialogTakesTheOthersActivityAndCollapseBoxes) {
  DLGRecord* floating = Open(kFloatingDialog, kDLGFloating);
  ChangeWindowAttributes(m_dialog->window, kWindowCollapseBoxAttribute, 0);
  DLGRecord* modal = Open(kDemoDialog);
  EXPECT_FALSE(IsWindowHilited(m_dialog->window) || IsWindowHilited(floating->window));
  EXPECT_EQ(GetWindowAttributes(m_dialog->window) & kWindowCollapseBoxAttribute, 0U);
  EXPECT_EQ(FrontNonFloatingWindow(), modal->window);
  ASSERT_TRUE(MyCloseDialog(modal));
  EXPECT_TRUE(IsWindowHilited(m_dialog->window));
  EXPECT_NE(GetWindowAttributes(m_dialog->window) & kWindowCollapseBoxAttribute, 0U);
}

TEST_F(State, APlaceholderStandsInWhileFloatingWindowsRest) {
  m_dialog->flags |= kDLGPlaceholder;
  DLGRecord* modal = Open(kDemoDialog);
  EXPECT_TRUE(DLGIsOpen(kPlaceholder));
  EXPECT_EQ(FrontWindow(), modal->window);
  MyCloseDialog(modal);
  EXPECT_FALSE(DLGIsOpen(kPlaceholder));
}

TEST_F(State, ItemsOutsideOfTheTableHaveNoFields) {
  EXPECT_TRUE(IsItemVisible(m_dialog, kFirst));
  HideDLGItem(m_dialog, kFirst, true);
  EXPECT_FALSE(IsItemVisible(m_dialog, kFirst));
  for (const int32_t item : {0, -1, 9}) {
    AddItemFlags(m_dialog, item, 0x10);
    SetIRefCon(m_dialog, item, 1);
    EXPECT_EQ(GetItemFlags(m_dialog, item), 0U);
    EXPECT_EQ(GetIRefCon(m_dialog, item), 0);
    EXPECT_EQ(GetItemType(m_dialog, item), 0);
    EXPECT_EQ(DLGGetChildControl(m_dialog, item), nullptr);
    EXPECT_FALSE(IsItemEnabled(m_dialog, item) || IsItemVisible(m_dialog, item) ||
                 DLGNotifyChange(m_dialog, item));
  }
}

TEST_F(State, ANewRectangleIsTold) {
  static intptr_t gSize;
  gSize = 0;
  SetItemProc(m_dialog, kFirst,
              [](DLGRecord*, int32_t, int32_t message, intptr_t param1, intptr_t) -> intptr_t {
                if (message == kDLGResize) gSize = param1;
                return 0;
              });
  SizeDLGItem(m_dialog, kFirst, {10, 20, 40, 220});
  EXPECT_EQ(gSize, (30 << 16) | 200);
  EXPECT_EQ(Widget(m_dialog, kFirst)->geometry(), QRect(20, 10, 200, 30));
}

TEST_F(State, GlobalHooks) {
  static std::vector<std::string> gCalls;
  gCalls.clear();
  DLGSetGlobalOpenProc([](DLGRecord* d) { gCalls.push_back("open " + std::to_string(d->resourceID)); });
  DLGSetGlobalCloseProc([](DLGRecord* d) { gCalls.push_back("close " + std::to_string(d->resourceID)); });
  MyCloseDialog(Open(kNoTabStops));
  DLGSetGlobalOpenProc(nullptr);
  DLGSetGlobalCloseProc(nullptr);
  EXPECT_EQ(gCalls, (std::vector<std::string>{"open 502", "close 502"}));
}

TEST_F(State, ASecondStartKeepsWhatTheFirstRegistered) {
  const int32_t rows = numRegisterItems;
  EXPECT_EQ(_InitLumoLibrary(nullptr), 0);
  EXPECT_EQ(numRegisterItems, rows);
  for (const int32_t type : {21, 23, 24, 32}) EXPECT_EQ(DLGFindItemProc(type), nullptr);
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
  QTimer::singleShot(20, [this] { DisposeDLG(m_dialog); });
  QTimer::singleShot(200, [] {
    if (QMessageBox* box = gestures::MessageBox()) box->close();
  });
  ErrorAlert(1, "gone");
  EXPECT_FALSE(DialogIsValid(m_dialog));
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
  const auto width = [&](int16_t size) {
    SetControlFontStyle(DLGGetChildControl(m_dialog, kFirst), {3, size});
    return DLGMeasureItem(m_dialog, kFirst, "Measured text") & 0xFFFF;
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
  Wait(3);
  gDrawn.clear();
  LSetCell(GetControlList(DLGGetChildControl(dialog, kDemoList)), 1, "c");
  Wait(3);
  EXPECT_FALSE(gDrawn.empty()) << "a text has changed";
}

}  // namespace
