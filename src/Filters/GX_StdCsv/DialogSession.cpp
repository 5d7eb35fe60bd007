#include "Filters/GX_StdCsv/DialogSession.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>

#include "Common/Language.h"
#include "Filters/GX_StdCsv/DialogMessages.h"
#include "Filters/GX_StdCsv/FilterState.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Toolkit/Alert.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/LBList.h"
#include "Toolkit/StartUp.h"

namespace {

constexpr int16_t kSavedInformation = 3;

unsigned long _SessionID(const DLGRecord* dialog) {
  return static_cast<uint32_t>(dialog->userValue);
}

// The close procedure: the session goes with its dialog.
bool _CleanDialog(DLGRecord* dialog) {
  g_sessionMgr.EndSession(_SessionID(dialog));
  return true;
}

template <typename Count>
uint32_t _Number(Count count) {
  constexpr auto kMost = std::numeric_limits<uint32_t>::max();
  return static_cast<uint32_t>(std::min<uint64_t>(static_cast<uint64_t>(count), kMost));
}

void _DescribeAssignments(const qz::ClassRecord& record, SessionOutcome* outcome) {
  std::vector<uint32_t>& chosen = outcome->chosenAssignments;
  chosen.clear();
  for (size_t i = 0; i < record.assignments.size(); ++i) {
    if (record.assignments[i].selected) chosen.push_back(_Number(i));
  }
  outcome->told.assignments = _Number(chosen.size());
  outcome->told.chosenAssignments = chosen.empty() ? nullptr : chosen.data();
}

void _DescribeChoices(const Session& session, QZEXPORTOUTCOME* outcome) {
  const qz::ClassRecord& record = session.Class();
  outcome->useQuotes = session.m_bUseQuotes ? 1 : 0;
  outcome->students = _Number(record.students.size());
  std::memset(outcome->path, 0, sizeof outcome->path);
  record.exportPath.copy(outcome->path, sizeof outcome->path - 1);
  if (FindFormat(outcome->formatIndex)->IsReport()) return;
  outcome->userIDField = record.userIDField;
  outcome->studentsWithoutIdentifier =
      _Number(std::ranges::count_if(record.students, [&record](const qz::StudentRecord& student) {
        return student.GetUserID(record.userIDField).empty();
      }));
}

// Writes the file and keeps for the host what became of it.
void _Export(Session* session, SessionOutcome* kept) {
  QZEXPORTOUTCOME* const outcome = &kept->told;
  _DescribeAssignments(session->Class(), kept);
  _DescribeChoices(*session, outcome);
  outcome->state = QZFILTER_NOT_WRITTEN;
  outcome->error = ENOMEM;  // should writing throw
  const uint32_t status = session->Export(session->GetClass()->exportPath.c_str());
  outcome->error = session->WriteError();
  outcome->incomplete = session->Outcome().incomplete ? 1 : 0;
  if (status == QZFILTER_SUCCESS && outcome->error == 0) outcome->state = QZFILTER_WRITTEN;
}

}  // namespace

Session* SessionOfDialog(const DLGRecord* dialog) {
  return g_sessionMgr.GetSession(_SessionID(dialog));
}

bool HasOptionsDialog(unsigned long sessionID) {
  for (WindowRef window = GetWindowList(); window != nullptr; window = GetNextWindow(window)) {
    const DLGRecord* dialog = DLGFromHwnd(window);
    if (dialog != nullptr && dialog->close == _CleanDialog && _SessionID(dialog) == sessionID) return true;
  }
  return false;
}

bool ShowOptionsDialog(void* hostWindow, int32_t resourceID, DLGHitProc itemHit,
                       const std::function<void(DLGRecord*)>& fill) {
  _InitLumoLibrary(ghDllInstance);
  DLGRecord* dialog =
      GetDialogResource(nullptr, kDLGModal, ghDllInstance, resourceID, 0, itemHit, _CleanDialog, nullptr);
  if (dialog == nullptr) return false;
  dialog->userValue = static_cast<int32_t>(static_cast<uint32_t>(ncontextID));
  dialog->flags |= kDLGInvalidateAtOnce;
  SetWindowHostParent(dialog->window, hostWindow);
  try {
    fill(dialog);
  } catch (...) {
    MyCloseDialog(dialog);
    throw;
  }
  ShowDLG(dialog);
  return true;
}

void SetExportTitle(DLGRecord* dialog, const Session& session) {
  QZEXPORTFORMAT format = {};
  QZFilter_GetExportFormatInfoA(&format, session.GetExportInfo().formatIndex);
  SetWTitle(dialog->window, std::string(IsSpanish() ? "Exportar " : "Export ").append(format.name));
}

bool ChooseOutputFile(DLGRecord* dialog, std::string* path) {
  const Session* session = SessionOfDialog(dialog);
  if (session == nullptr) return false;
  const QZEXPORTBEGIN begin = session->GetExportInfo();
  if (begin.chooseFile == nullptr) return false;
  char buffer[QZFILTER_PATH_SIZE] = "";
  const DLGWatch watch(dialog);
  void* window = GetWindowID(dialog->window);
  if (begin.chooseFile(window, 0, buffer, QZFILTER_PATH_SIZE, begin.chooseFileValue) != 0) return false;
  path->assign(buffer, strnlen(buffer, sizeof buffer));
  return watch.IsLive() && SessionOfDialog(dialog) != nullptr;
}

void ExportAndClose(DLGRecord* dialog, int savedMessageID) {
  Session* session = SessionOfDialog(dialog);
  const std::string path = session->GetClass()->exportPath;
  _Export(session, g_sessionMgr.FindOutcome(_SessionID(dialog)));  // the message below is for every outcome
  const DLGWatch watch(dialog);
  InfoAlert(kSavedInformation, Utf8Text{SavedMessage(savedMessageID, path)});
  if (watch.IsLive()) MyCloseDialog(dialog);
}

void CheckAllRows(DLGRecord* dialog, int32_t item, bool on) {
  for (int32_t row = 0; row < LBGetCount(dialog, item); ++row) LBSetCheck(dialog, item, row, on);
}
