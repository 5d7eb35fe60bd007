#include <algorithm>
#include <cstring>
#include <fstream>
#include <limits>

#include "Common/Language.h"
#include "Common/QZXMLParse/QZClassParse.h"
#include "Export/AssignmentSelection.h"
#include "Filters/GX_StdCsv/DialogSession.h"
#include "Filters/GX_StdCsv/EnhOptionsWindow.h"
#include "Filters/GX_StdCsv/FilterState.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Filters/GX_StdCsv/OptionsWindow.h"
#include "Filters/GX_StdCsv/QZLoadString.h"
#include "Filters/GX_StdCsv/Session.h"
#include "Platform/Core/Files.h"
#include "Platform/Ui/Alerts.h"
#include "Toolkit/Application.h"
#include "Toolkit/DLGEvents.h"
#include "Toolkit/DLGManager.h"
#include "gradix/QZFilter.h"

namespace {

constexpr int16_t kMissingResourcesAlert = 10001;  // of the host
constexpr uint32_t kFormatFlags = 14;
constexpr size_t kMaxPath = 1024;

void _FillFormatInfo(QZEXPORTFORMAT* info, const char* name) {
  std::memset(info->name, 0, sizeof info->name);
  std::memset(info->extension, 0, sizeof info->extension);
  std::strncpy(info->name, name, sizeof info->name - 1);
  std::strncpy(info->extension, "csv", sizeof info->extension - 1);
  info->flags = kFormatFlags;
}

// The Spanish name where there is one and the language asks for it.
std::string _FormatName(const FormatRow& format) {
  return IsSpanish() && format.spanishNameID != 0 ? QZLoadString(format.spanishNameID) : format.name;
}

// Reads the class file into the session under way. False when it cannot be opened or is malformed.
bool _ReadClassFile(const FSRef* file, Session* session) {
  char path[kMaxPath] = "";
  FSRefMakePath(file, path, sizeof path);
  std::ifstream stream(path, std::ios::binary);
  QZClassParseReport report;
  report.originals = session->GetOriginals();
  const bool parsed = QZClassParse(session->GetClass(), stream, &report);
  constexpr uint64_t kMost = std::numeric_limits<uint32_t>::max();
  g_sessionMgr.FindOutcome(ncontextID)->told.replacedCharacters =
      static_cast<uint32_t>(std::min(report.replacedCharacters, kMost));
  return parsed;
}

void _SelectAssignment(qz::ClassRecord* record, int32_t id) {
  SelectAssignments(record, [id](size_t, const qz::AssignmentRecord& row) { return row.id == id; });
}

uint32_t _ExportFile(void* hostWindow, const QZEXPORTFILE* file) {
  if (!_LoadExtraResourceFile(_ExtraResourceFileName())) return 0;
  Session* session = g_sessionMgr.GetSession(ncontextID);
  // A session whose dialog is open has its class already.
  if (session == nullptr || HasOptionsDialog(ncontextID)) return QZFILTER_FAILED;
  qz::ClassRecord* record = session->GetClass();
  *record = {};
  if (file == nullptr || !_ReadClassFile(&file->classFile, session)) return 0;
  _SelectAssignment(record, file->assignmentID);
  if (session->GetExportInfo().formatIndex == kDetailedResultsFormat) {
    DisplayEnhOptionsDialog(hostWindow, session, record);
  } else {
    DisplayOptionsDialog(hostWindow, session, record);
  }
  return 1;
}

}  // namespace

int32_t DllMain(void* module, uint32_t reason, void* /*reserved*/) {
  if (reason == QZFILTER_ATTACH) ghDllInstance = module;
  if (reason != QZFILTER_DETACH) return 1;
  try {
    DLGDisposeAll();
  } catch (...) {  // what could not be closed stays
    return 1;
  }
  return 1;
}

uint32_t QZFilter_GetExportFormatInfoA(QZEXPORTFORMAT* info, unsigned long index) {
  try {
    gLang = 0;  // hosts rely on English names here; everything that follows in this session is English, too
    if (!_LoadExtraResourceFile(_ExtraResourceFileName())) {
      StopAlert(kMissingResourcesAlert);
      return 0;
    }
    const FormatRow* format =
        index < FormatTable().size() ? FindFormat(static_cast<uint32_t>(index)) : nullptr;
    if (format == nullptr || info == nullptr) return 0;
    _FillFormatInfo(info, _FormatName(*format).c_str());
    return 1;
  } catch (...) {
    return 0;
  }
}

uint32_t QZFilter_ExportFileA(void* hostWindow, unsigned long id, const QZEXPORTFILE* file, void* module) {
  ncontextID = id;
  ghDllInstance = module;
  try {
    return _ExportFile(hostWindow, file);
  } catch (...) {
    return QZFILTER_FAILED;
  }
}

int32_t QuitApplication() {
  try {
    if (CloseAllDialogs()) gDone = true;
  } catch (...) {
    return gDone;
  }
  return gDone;
}

void OpenApplication() {}

void OpenDataFile(const char* /*path*/) {}

int32_t PrintDataFile(const char* /*path*/) {
  return 0;
}

int32_t DoCommand(int32_t /*command*/) {
  return 1;
}

void UpdateMenus() {}
