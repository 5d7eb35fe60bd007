#include "Filters/GX_StdCsv/OptionsDialog.h"

#include <cstring>

#include "Common/Language.h"
#include "Filters/GX_StdCsv/DialogMessages.h"
#include "Filters/GX_StdCsv/start.h"
#include "Toolkit/Alert.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/LBList.h"
#include "Toolkit/StartUp.h"

namespace {

constexpr int16_t kSavedInformation = 3;
constexpr int32_t kPathSize = 256;

// The close procedure: the session goes with its dialog.
bool _CleanDialog(DLGRecord* dialog) {
  g_sessionMgr.EndSession(static_cast<uint32_t>(dialog->userValue));
  return true;
}

}  // namespace

Session* SessionOfDialog(const DLGRecord* dialog) {
  return g_sessionMgr.GetSession(static_cast<uint32_t>(dialog->userValue));
}

bool HasOptionsDialog(unsigned long sessionID) {
  for (WindowRef window = GetWindowList(); window != nullptr; window = GetNextWindow(window)) {
    const DLGRecord* dialog = DLGFromHwnd(window);
    if (dialog != nullptr && dialog->close == _CleanDialog &&
        static_cast<uint32_t>(dialog->userValue) == sessionID) {
      return true;
    }
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
  char buffer[kPathSize] = "";
  const DLGWatch watch(dialog);
  void* window = GetWindowID(dialog->window);
  if (begin.chooseFile(window, 0, buffer, kPathSize, begin.chooseFileValue) != 0) return false;
  path->assign(buffer, strnlen(buffer, sizeof buffer));
  return watch.IsLive() && SessionOfDialog(dialog) != nullptr;
}

void ExportAndClose(DLGRecord* dialog, int savedMessageID) {
  Session* session = SessionOfDialog(dialog);
  const std::string path = session->GetClass()->exportPath;
  session->Export(path.c_str());  // the message below is for every outcome
  const DLGWatch watch(dialog);
  InfoAlert(kSavedInformation, Utf8Text{SavedMessage(savedMessageID, path)});
  if (watch.IsLive()) MyCloseDialog(dialog);
}

void CheckAllRows(DLGRecord* dialog, int32_t item, bool on) {
  for (int32_t row = 0; row < LBGetCount(dialog, item); ++row) LBSetCheck(dialog, item, row, on);
}
