#include "Toolkit/StartUp.h"

#include "Common/Language.h"
#include "Common/help.h"
#include "Toolkit/Alert.h"
#include "Toolkit/Buttons.h"
#include "Toolkit/CBCombo.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/DLGRegister.h"
#include "Toolkit/LBList.h"
#include "Toolkit/OtherItems.h"
#include "Toolkit/TextItems.h"
#include "Toolkit/Toolkit.h"

namespace {

constexpr int16_t kErrorStrings = 32500;
constexpr int16_t kCautionStrings = 32600;
constexpr int16_t kInformationStrings = 32700;
constexpr int16_t kDefaultFont = 3;
constexpr int32_t kTimerInterval = 100;  // milliseconds
constexpr int32_t kHelpContents = 2;
constexpr int32_t kNoAlternateTopic = INT32_MAX;
constexpr int16_t kPlainList = 1570;
constexpr int16_t kCheckList = 1571;

// 21, 23 and 24 are no item types: a dialog that holds one does not open.
constexpr DLGRegisterRow kItemTypes[] = {
    {1, BTItemProc},   {2, ETItemProc},  {3, STItemProc},   {4, CKItemProc},   {5, RBItemProc},
    {6, SBItemProc},   {7, LBItemProc},  {8, CBItemProc},   {9, ICItemProc},   {10, PIItemProc},
    {11, UIItemProc},  {12, BBItemProc}, {13, SLItemProc},  {14, DIItemProc},  {15, PRItemProc},
    {16, SPBItemProc}, {17, TAItemProc}, {18, DefItemProc}, {19, DefItemProc}, {20, DefItemProc},
    {22, DefItemProc}, {25, HKItemProc}, {26, WP2ItemProc}, {27, TIItemProc},  {28, TVItemProc},
    {29, BXItemProc},  {30, UBItemProc}, {31, DB2ItemProc},
};

void _RegisterHelpBook() {
  const char* startPage = IsSpanish() ? "Quizonne Help:es:Quizonne Gradix:qzmanage.htm"
                                      : "Quizonne Help:en:Quizonne Gradix:qzmanage.htm";
  RegisterLumoHelp(startPage, kHelpContents, "", kNoAlternateTopic, "qzmanage", "", "qzm");
}

}  // namespace

int _InitLumoLibrary(void* eventTarget) {
  InitAlert(eventTarget, kErrorStrings, kCautionStrings, kInformationStrings);
  if (IsSpanish()) CurrentLocale(kLanguageSpanish);
  FontCacheInit(kDefaultFont);
  WPInitFields();
  WPInitHyperLinks();
  if (!DLGInit(kTimerInterval)) return 0;
  _RegisterHelpBook();
  for (const DLGRegisterRow& row : kItemTypes) {
    if (!DLGRegisterItem(row.type, row.procedure)) return 0;
  }
  LBRegisterListDefinition(kPlainList, false);
  LBRegisterListDefinition(kCheckList, true);
  return 1;
}
