#include "Filters/GX_StdCsv/OptionsWindow.h"

#include "Common/Language.h"
#include "Common/QZData/StudentFields.h"
#include "Common/help.h"
#include "Export/AssignmentSelection.h"
#include "Export/IdentifierCheck.h"
#include "Filters/GX_StdCsv/DialogMessages.h"
#include "Filters/GX_StdCsv/DialogSession.h"
#include "Filters/GX_StdCsv/FieldLine.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Filters/GX_StdCsv/QZLoadString.h"
#include "Toolkit/Alert.h"
#include "Toolkit/Buttons.h"
#include "Toolkit/CBCombo.h"
#include "Toolkit/DLGFocus.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/LBList.h"

namespace {

constexpr int32_t kOptionsDialog = 29000;

enum Item : int32_t {
  kPrompt = 3,
  kPopupLabel = 4,
  kFieldPopup = 5,
  kAssignments = 7,
  kSelectAll = 8,
  kClearAll = 9,
  kHelp = 10,
  kOK = 11,
  kCancel = 12,
  kAssignmentsLabel = 14,
  kIDName = 15,
  kFirstBlackboardItem = 16,
  kStandardFile = 18,
  kWithQuotes = 19,
  kWithoutQuotes = 20,
  kFieldLine = 21,
};

constexpr int32_t kDateTab = 200;
constexpr size_t kLongName = 30;
constexpr size_t kKeptName = 31;
constexpr int kSavedMessage = 70066;
constexpr int kAssignmentsLabelID = 70336;
constexpr int16_t kNothingChecked = 1;  // information
constexpr int16_t kText = 1;            // error
constexpr int32_t kHelpTopic = 1;       // command

Session* m_ptSession = nullptr;
qz::ClassRecord* m_ptClass = nullptr;
qz::UserIDField s_nUserIDField = qz::kUserIDAlias;  // as the last successful OK had it

// Takes up the session of the dialog at work. False when it is gone.
bool _UseSession(const DLGRecord* dialog) {
  m_ptSession = SessionOfDialog(dialog);
  m_ptClass = m_ptSession == nullptr ? nullptr : m_ptSession->GetClass();
  return m_ptSession != nullptr;
}

const FormatRow& _Format() {
  return *FindFormat(m_ptSession->GetExportInfo().formatIndex);
}

void _SetFormatTexts(DLGRecord* dialog, const FormatRow& format) {
  if (format.idName == nullptr) return;
  if (IsSpanish() && format.spanishIDName != 0) {
    SetText(dialog, kIDName, QZLoadString(format.spanishIDName).c_str(), true);
    SetText(dialog, kPrompt, QZLoadString(format.spanishPrompt).c_str(), false);
    SetText(dialog, kPopupLabel, QZLoadString(format.spanishPopupLabel).c_str(), false);
    return;
  }
  SetText(dialog, kIDName, format.idName, true);
  SetText(dialog, kPrompt, format.prompt, false);
  SetText(dialog, kPopupLabel, format.popupLabel, false);
}

// The list leaves the room at its right end to the kinds of file.
void _NarrowList(DLGRecord* dialog) {
  constexpr int32_t kGap = 16;
  Rect list;
  Rect kinds;
  GetDialogItemBounds(dialog->dialog, kFirstBlackboardItem, &kinds);
  if (!GetDialogItemBounds(dialog->dialog, kAssignments, &list)) return;
  list.right = static_cast<int16_t>(kinds.left - GetDialogWidth(dialog->dialog, kGap));
  SizeDLGItem(dialog, kAssignments, list);
}

void _SetUpBlackboardItems(DLGRecord* dialog, const FormatRow& format) {
  for (int32_t item = kStandardFile; item <= kWithoutQuotes; ++item) {
    EnableDLGItem(dialog, item, format.hasUnquotedVariant);
  }
  if (!format.isBlackboard) return;
  _NarrowList(dialog);
  for (int32_t item = kFirstBlackboardItem; item <= kWithoutQuotes; ++item) ShowDLGItem(dialog, item, true);
  CKSetCheck(dialog, kWithQuotes, 1, 0, false);  // how a new session writes
}

std::string _FieldName(const qz::StudentField& field) {
  return IsSpanish() && field.spanishTitle != nullptr ? field.spanishTitle : field.Title(*m_ptClass);
}

// The row of a field is its number less one.
void _FillFieldPopup(DLGRecord* dialog) {
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (field.CanIdentify()) CBInsertItem(dialog, kFieldPopup, _FieldName(field).c_str(), kRowLast);
  }
  CBSetSelect(dialog, kFieldPopup, _Format().defaultUserIDField - 1);
}

void _FillAssignments(DLGRecord* dialog) {
  LBSetTabs(dialog, kAssignments, 1, &kDateTab);
  for (qz::AssignmentRecord& assignment : m_ptClass->assignments) {
    // Cuts long names in the record, so the file has them cut, too. Of exactly 30 characters there is nothing
    // to cut: erase throws, and hosts know such an export as one that fails.
    if (assignment.name.size() >= kLongName) assignment.name.erase(kKeptName);
    const std::string row = std::string(assignment.name).append("\t").append(assignment.date);
    const int32_t index = LBInsertItem(dialog, kAssignments, row.c_str(), kRowLast);
    if (index >= 0) LBSetCheck(dialog, kAssignments, index, assignment.selected);
  }
  LBSelectItem(dialog, kAssignments, 0, true);
}

qz::UserIDField _ChosenField(DLGRecord* dialog) {
  const int32_t row = CBGetSelect(dialog, kFieldPopup);
  constexpr int32_t kLastRow = qz::kUserIDCustom3 - 1;
  return row >= 0 && row <= kLastRow ? static_cast<qz::UserIDField>(row + 1) : s_nUserIDField;
}

bool _IsChosen(DLGRecord* dialog, size_t assignment) {
  return LBGetCheck(dialog, kAssignments, static_cast<int32_t>(assignment)) == 1;
}

FieldLineChoices _Choices(DLGRecord* dialog) {
  FieldLineChoices choices{.field = _ChosenField(dialog), .assignments = {}, .useQuotes = true};
  if (const Session* const session = SessionOfDialog(dialog)) choices.useQuotes = session->m_bUseQuotes;
  const auto count = static_cast<size_t>(LBGetCount(dialog, kAssignments));
  for (size_t i = 0; i < count; ++i) {
    if (_IsChosen(dialog, i)) choices.assignments.push_back(i);
  }
  return choices;
}

void _FillMainOptions(DLGRecord* dialog) {
  StartFieldLine(dialog, kFieldLine, _Choices);  // in the language of the dialog's resources
  if (IsSpanish()) SetText(dialog, kAssignmentsLabel, QZLoadString(kAssignmentsLabelID).c_str(), true);
  SetExportTitle(dialog, *m_ptSession);  // from here on the language is English
  _SetFormatTexts(dialog, _Format());
  _SetUpBlackboardItems(dialog, _Format());
  _FillFieldPopup(dialog);
  _FillAssignments(dialog);
  ShowFieldLine(dialog, kFieldLine);
}

bool _IsAnyChecked(DLGRecord* dialog) {
  for (int32_t row = 0; row < LBGetCount(dialog, kAssignments); ++row) {
    if (LBGetCheck(dialog, kAssignments, row) != 0) return true;
  }
  return false;
}

// Warns of students without an identifier. False when the export cannot go on; the dialog may be gone.
bool _CheckIdentifiers(DLGRecord* dialog, qz::UserIDField field) {
  const IdentifierCheck check = CheckIdentifiers(*m_ptClass, field);
  const DLGWatch watch(dialog);
  if (check.SomeEmpty()) {
    ErrorAlert(kText, Utf8Text{SomeEmptyMessage(_Format(), check.empty.size(), check.studentCount)});
  } else if (check.AllEmpty()) {
    ErrorAlert(kText, Utf8Text{AllEmptyMessage(_Format())});
    return false;
  }
  return watch.IsLive() && !check.HasDuplicates();  // duplicates stop without a word
}

void _StoreChoices(DLGRecord* dialog, qz::UserIDField field, const std::string& path) {
  m_ptClass->exportPath = path;
  SelectAssignments(m_ptClass,
                    [dialog](size_t i, const qz::AssignmentRecord&) { return _IsChosen(dialog, i); });
  s_nUserIDField = field;
  m_ptClass->userIDField = field;
}

void OnOK(DLGRecord* dialog) {
  if (!_IsAnyChecked(dialog)) {
    InfoAlert(kNothingChecked);
    return;
  }
  const qz::UserIDField field = _ChosenField(dialog);
  if (!_CheckIdentifiers(dialog, field)) return;
  std::string path;
  if (!ChooseOutputFile(dialog, &path) || !_UseSession(dialog)) return;
  _StoreChoices(dialog, field, path);
  ExportAndClose(dialog, kSavedMessage);
}

void OnCancel(DLGRecord* dialog) {
  MyCloseDialog(dialog);
}

void OnSelectAll(DLGRecord* dialog) {
  CheckAllRows(dialog, kAssignments, true);
}

void OnClearAll(DLGRecord* dialog) {
  CheckAllRows(dialog, kAssignments, false);
}

// Of the three kinds of file the one that was chosen last is marked.
void _ChooseFileKind(DLGRecord* dialog, int32_t chosen) {
  m_ptSession->m_bUseQuotes = chosen != kWithoutQuotes;
  for (int32_t item = kStandardFile; item <= kWithoutQuotes; ++item) {
    CKSetCheck(dialog, item, item == chosen ? 1 : 0, 0, false);
  }
}

bool _ChangesFile(int32_t item) {
  switch (item) {
    case kFieldPopup:
    case kAssignments:
    case kSelectAll:
    case kClearAll:
    case kStandardFile:
    case kWithQuotes:
    case kWithoutQuotes: return true;
    default: return false;
  }
}

intptr_t _DoOptions(DLGRecord* dialog, int32_t item) {
  if (!_UseSession(dialog) && item != kCancel) return 0;
  switch (item) {
    case kSelectAll: OnSelectAll(dialog); break;
    case kClearAll: OnClearAll(dialog); break;
    case kHelp: Help(dialog->window, kHelpTopic, _Format().helpTopic); break;
    case kOK: OnOK(dialog); break;
    case kCancel: OnCancel(dialog); break;
    case kStandardFile:
      _ChooseFileKind(dialog, item);
      EnableDLGItem(dialog, kWithQuotes, false);
      EnableDLGItem(dialog, kWithQuotes, false);
      break;
    case kWithQuotes:
    case kWithoutQuotes: _ChooseFileKind(dialog, item); break;
    default: break;
  }
  if (_ChangesFile(item)) ShowFieldLineSoon(dialog, kFieldLine);
  return 0;
}

}  // namespace

bool DisplayOptionsDialog(void* hostWindow, Session* session, qz::ClassRecord* record) {
  m_ptSession = session;
  m_ptClass = record;
  return ShowOptionsDialog(hostWindow, kOptionsDialog, _DoOptions, [](DLGRecord* dialog) {
    LBSetRedraw(dialog, kAssignments, true);
    _FillMainOptions(dialog);
    SetFocusDLG(dialog, kAssignments);
    CenterDLG(dialog);
    dialog->changed = 0;
  });
}
