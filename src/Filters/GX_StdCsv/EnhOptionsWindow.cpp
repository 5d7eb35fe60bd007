#include "Filters/GX_StdCsv/EnhOptionsWindow.h"

#include "Common/Language.h"
#include "Common/QZData/StudentFields.h"
#include "Common/help.h"
#include "Export/AssignmentSelection.h"
#include "Filters/GX_StdCsv/DialogSession.h"
#include "Filters/GX_StdCsv/QZLoadString.h"
#include "Toolkit/Buttons.h"
#include "Toolkit/CBCombo.h"
#include "Toolkit/DLGFocus.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/LBList.h"

namespace {

constexpr int32_t kEnhOptionsDialog = 30050;

enum Item : int32_t {
  kAssignmentLabel = 3,
  kAssignment = 5,
  kColumns = 6,
  kAsterisks = 7,
  kAnswerKey = 8,
  kPointsPossible = 9,
  kFieldsLabel = 11,
  kFields = 12,
  kSelectAll = 13,
  kClearAll = 14,
  kHelp = 15,
  kOK = 16,
  kCancel = 17,
};

enum ColumnsRow : int32_t { kResponsesOnly = 0, kPointsOnly = 1, kResponsesAndPoints = 2 };

constexpr int32_t kTab = 200;
constexpr int kSavedMessage = 78204;
Session* m_pSession = nullptr;
qz::ClassRecord* m_pntClass = nullptr;

// The choices, each by its name.
uint32_t s_bmExportFields = qz::kDefaultReportFields;
auto gSwitches = qz::kDefaultReportOptions;
bool& s_bExportAnswerKey = gSwitches[qz::kReportAnswerKey];
bool& s_bExportResponses = gSwitches[qz::kReportResponses];
bool& s_bExportPointsEarned = gSwitches[qz::kReportPointsEarned];
bool& s_bExportPointsPossible = gSwitches[qz::kReportPointsPossible];
bool& s_bWriteAsterisks = gSwitches[qz::kReportAsterisks];

bool _UseSession(const DLGRecord* dialog) {
  m_pSession = SessionOfDialog(dialog);
  m_pntClass = m_pSession == nullptr ? nullptr : m_pSession->GetClass();
  return m_pSession != nullptr;
}

// Enables a box with its choice, or disables and unchecks it; the choice stays.
void _SetBox(DLGRecord* dialog, int32_t item, bool enabled, bool choice) {
  CKSetCheck(dialog, item, enabled && choice ? 1 : 0, 0, false);
  EnableDLGItem(dialog, item, enabled);
}

void _EnableBoxes(DLGRecord* dialog) {
  EnableDLGItem(dialog, kAsterisks, true);
  EnableDLGItem(dialog, kAnswerKey, true);
  EnableDLGItem(dialog, kPointsPossible, true);
}

// The boxes follow the question columns.
void OnExportedResults(DLGRecord* dialog) {
  switch (CBGetSelect(dialog, kColumns)) {
    case kResponsesOnly:
      _SetBox(dialog, kAsterisks, true, s_bWriteAsterisks);
      _SetBox(dialog, kAnswerKey, true, s_bExportAnswerKey);
      _SetBox(dialog, kPointsPossible, false, s_bExportPointsPossible);
      break;
    case kPointsOnly:
      _SetBox(dialog, kAsterisks, false, s_bWriteAsterisks);
      _SetBox(dialog, kAnswerKey, false, s_bExportAnswerKey);
      _SetBox(dialog, kPointsPossible, true, s_bExportPointsPossible);
      break;
    default: _EnableBoxes(dialog); break;
  }
}

void _SetSpanishLabels(DLGRecord* dialog) {
  SetText(dialog, kAssignmentLabel, QZLoadString(70342).c_str(), true);
  SetText(dialog, kAnswerKey, QZLoadString(70500).c_str(), true);
  SetText(dialog, kPointsPossible, QZLoadString(70345).c_str(), true);
  SetText(dialog, kFieldsLabel, QZLoadString(70347).c_str(), true);
}

void _FillAssignmentPopup(DLGRecord* dialog) {
  int32_t selected = 0;
  int32_t row = 0;
  for (const qz::AssignmentRecord& assignment : m_pntClass->assignments) {
    CBInsertItem(dialog, kAssignment, assignment.name.c_str(), row);
    if (assignment.selected) selected = row;
    ++row;
  }
  CBSetSelect(dialog, kAssignment, selected);
}

void _FillColumnsPopup(DLGRecord* dialog) {
  static constexpr const char* kEnglish[] = {"Question Responses", "Points Earned", "Responses and Points"};
  static constexpr const char* kSpanish[] = {"pregunta Respuestas", "Puntos ganados", "Respuesta y Puntos"};
  for (const char* text : IsSpanish() ? kSpanish : kEnglish) CBInsertItem(dialog, kColumns, text, kRowLast);
  const int32_t row = !s_bExportPointsEarned ? kResponsesOnly
                      : s_bExportResponses   ? kResponsesAndPoints
                                             : kPointsOnly;
  CBSetSelect(dialog, kColumns, row);
}

// The rows of the check list: the other fields are in every report.
bool _IsOptional(const qz::StudentField& field) {
  return (field.reportBit & qz::kDefaultReportFields) == 0;
}

std::string _FieldName(const qz::StudentField& field) {
  return IsSpanish() && field.spanishTitleID != 0 ? QZLoadString(field.spanishTitleID)
                                                  : field.Title(*m_pntClass);
}

void _FillFields(DLGRecord* dialog) {
  LBSetTabs(dialog, kFields, 1, &kTab);
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (_IsOptional(field)) LBInsertItem(dialog, kFields, _FieldName(field).c_str(), kRowLast);
  }
  LBSelectItem(dialog, kFields, 0, true);
}

void _FillEnhMainOptions(DLGRecord* dialog) {
  if (IsSpanish()) _SetSpanishLabels(dialog);
  SetExportTitle(dialog, *m_pSession);  // from here on the language is English
  _FillAssignmentPopup(dialog);
  _FillColumnsPopup(dialog);
  CKSetCheck(dialog, kAnswerKey, s_bExportAnswerKey, 0, false);
  CKSetCheck(dialog, kPointsPossible, s_bExportPointsPossible, 0, false);
  CKSetCheck(dialog, kAsterisks, s_bWriteAsterisks, 0, false);
  OnExportedResults(dialog);
  _FillFields(dialog);
}

uint32_t _CheckedFields(DLGRecord* dialog) {
  uint32_t fields = qz::kDefaultReportFields;
  int32_t row = 0;
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (_IsOptional(field) && LBGetCheck(dialog, kFields, row++) != 0) fields |= field.reportBit;
  }
  return fields;
}

void _StoreAssignment(DLGRecord* dialog) {
  const int32_t row = CBGetSelect(dialog, kAssignment);
  if (row < 0) return;
  SelectAssignments(m_pntClass,
                    [row](size_t i, const qz::AssignmentRecord&) { return static_cast<int32_t>(i) == row; });
}

void _StoreSwitches(DLGRecord* dialog) {
  const int32_t columns = CBGetSelect(dialog, kColumns);
  s_bExportResponses = columns != kPointsOnly;
  s_bExportPointsEarned = columns != kResponsesOnly;
  s_bWriteAsterisks = CKGetCheck(dialog, kAsterisks) != 0;
  s_bExportAnswerKey = CKGetCheck(dialog, kAnswerKey) != 0;
  s_bExportPointsPossible = CKGetCheck(dialog, kPointsPossible) != 0;
  m_pntClass->options = gSwitches;
}

void OK(DLGRecord* dialog) {
  std::string path;
  if (!ChooseOutputFile(dialog, &path) || !_UseSession(dialog)) return;
  m_pntClass->exportPath = path;
  s_bmExportFields = _CheckedFields(dialog);
  m_pntClass->optionValue = static_cast<int32_t>(s_bmExportFields);
  _StoreAssignment(dialog);
  _StoreSwitches(dialog);
  ExportAndClose(dialog, kSavedMessage);
}

void Cancel(DLGRecord* dialog) {
  MyCloseDialog(dialog);
}

void SelectAll(DLGRecord* dialog) {
  CheckAllRows(dialog, kFields, true);
}

void ClearAll(DLGRecord* dialog) {
  CheckAllRows(dialog, kFields, false);
}

intptr_t _DoEnhOptions(DLGRecord* dialog, int32_t item) {
  if (!_UseSession(dialog) && item != kCancel) return 0;
  switch (item) {
    case kColumns: OnExportedResults(dialog); break;
    case kAsterisks: s_bWriteAsterisks = CKGetCheck(dialog, item) != 0; break;
    case kAnswerKey: s_bExportAnswerKey = CKGetCheck(dialog, item) != 0; break;
    case kPointsPossible: s_bExportPointsPossible = CKGetCheck(dialog, item) != 0; break;
    case kSelectAll: SelectAll(dialog); break;
    case kClearAll: ClearAll(dialog); break;
    case kHelp: HelpWebSite(dialog->window, kHelpWebSite); break;
    case kOK: OK(dialog); break;
    case kCancel: Cancel(dialog); break;
    default: break;
  }
  return 0;
}

}  // namespace

bool DisplayEnhOptionsDialog(void* hostWindow, Session* session, qz::ClassRecord* record) {
  m_pSession = session;
  m_pntClass = record;
  gSwitches = qz::kDefaultReportOptions;
  return ShowOptionsDialog(hostWindow, kEnhOptionsDialog, _DoEnhOptions, [](DLGRecord* dialog) {
    LBSetRedraw(dialog, kFields, true);
    _FillEnhMainOptions(dialog);
    SetFocusDLG(dialog, kFields);
  });
}
