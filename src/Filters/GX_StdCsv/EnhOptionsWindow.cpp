#include "Filters/GX_StdCsv/EnhOptionsWindow.h"

#include "Common/Language.h"
#include "Common/help.h"
#include "Filters/GX_StdCsv/OptionsDialog.h"
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
constexpr uint32_t kAlwaysExported = 7;  // first name, last name, student ID

struct Field {
  const char* name;
  int spanishID;
  uint32_t bit;  // of ClassRecord::optionValue
};

// The rows before those of the class's own labels.
constexpr Field kOptionalFields[] = {
    {"Password", 41916, 8},
    {"Student alias", 41914, 16},
    {"Pad ID", 41918, 16384},
    {"Gender", 41920, 32},
    {"Date of birth", 41923, 64},
    {"Grade level", 41924, 128},
    {"Sociological/Economic", 41925, 256},
    {"Race/Ethnicity", 41932, 512},
    {"Other", 41939, 1024},
};
constexpr uint32_t kCustomBits[] = {2048, 4096, 8192};

Session* m_pSession = nullptr;
qz::ClassRecord* m_pntClass = nullptr;

uint32_t s_bmExportFields = kAlwaysExported;
bool s_bExportResponses = true;
bool s_bWriteAsterisks = true;
bool s_bExportAnswerKey = false;
bool s_bExportPointsEarned = false;
bool s_bExportPointsPossible = false;

bool _UseSession(const DLGRecord* dialog) {
  m_pSession = SessionOfDialog(dialog);
  m_pntClass = m_pSession == nullptr ? nullptr : m_pSession->GetClass();
  return m_pSession != nullptr;
}

void _ResetChoices() {
  s_bExportAnswerKey = false;
  s_bExportResponses = true;
  s_bExportPointsEarned = false;
  s_bExportPointsPossible = false;
  s_bWriteAsterisks = true;
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

void _FillFields(DLGRecord* dialog) {
  LBSetTabs(dialog, kFields, 1, &kTab);
  for (const Field& field : kOptionalFields) {
    const std::string text = IsSpanish() ? QZLoadString(field.spanishID) : std::string(field.name);
    LBInsertItem(dialog, kFields, text.c_str(), kRowLast);
  }
  for (const std::string& label : m_pntClass->customLabels) {
    LBInsertItem(dialog, kFields, label.c_str(), kRowLast);
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
  uint32_t fields = kAlwaysExported;
  int32_t row = 0;
  for (const Field& field : kOptionalFields) {
    if (LBGetCheck(dialog, kFields, row++) != 0) fields |= field.bit;
  }
  for (const uint32_t bit : kCustomBits) {
    if (LBGetCheck(dialog, kFields, row++) != 0) fields |= bit;
  }
  return fields;
}

void _StoreAssignment(DLGRecord* dialog) {
  const int32_t row = CBGetSelect(dialog, kAssignment);
  if (row < 0) return;
  for (size_t i = 0; i < m_pntClass->assignments.size(); ++i) {
    m_pntClass->assignments[i].selected = static_cast<int32_t>(i) == row;
  }
}

void _StoreSwitches(DLGRecord* dialog) {
  const int32_t columns = CBGetSelect(dialog, kColumns);
  s_bExportResponses = columns != kPointsOnly;
  s_bExportPointsEarned = columns != kResponsesOnly;
  s_bWriteAsterisks = CKGetCheck(dialog, kAsterisks) != 0;
  s_bExportAnswerKey = CKGetCheck(dialog, kAnswerKey) != 0;
  s_bExportPointsPossible = CKGetCheck(dialog, kPointsPossible) != 0;
  m_pntClass->options[qz::kReportAnswerKey] = s_bExportAnswerKey;
  m_pntClass->options[qz::kReportResponses] = s_bExportResponses;
  m_pntClass->options[qz::kReportPointsEarned] = s_bExportPointsEarned;
  m_pntClass->options[qz::kReportPointsPossible] = s_bExportPointsPossible;
  m_pntClass->options[qz::kReportAsterisks] = s_bWriteAsterisks;
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
  _ResetChoices();
  return ShowOptionsDialog(hostWindow, kEnhOptionsDialog, _DoEnhOptions, [](DLGRecord* dialog) {
    LBSetRedraw(dialog, kFields, true);
    _FillEnhMainOptions(dialog);
    SetFocusDLG(dialog, kFields);
  });
}
