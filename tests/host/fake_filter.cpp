#include "tests/host/fake_filter.h"

#include <cstdio>

constexpr unsigned long kSession = 0xFAA00007;

extern "C" QZFILTER_API FakeFilter gFake;
FakeFilter gFake;
int16_t gLang = 0;

uint32_t QZFilter_GetNumExportFormatsA() {
  return gFake.formatCount;
}

uint32_t QZFilter_GetExportFormatInfoA(QZEXPORTFORMAT* info, unsigned long index) {
  gLang = 0;
  if (index == gFake.failingFormat) return 0;
  std::snprintf(info->name, sizeof info->name, "Assignment Results for Caf\x8E %lu", index);
  std::snprintf(info->extension, sizeof info->extension, "csv");
  return 1;
}

uint32_t QZFilter_ExportBeginA(void* /*host*/, const QZEXPORTBEGIN* begin, unsigned long* id) {
  ++gFake.begins;
  gFake.begin = *begin;
  *id = kSession;
  return gFake.beginStatus;
}

#ifndef WITHOUT_EXPORT_FILE
uint32_t QZFilter_ExportFileA(void* hostWindow, unsigned long id, const QZEXPORTFILE* file, void* module) {
  ++gFake.files;
  gFake.file = *file;
  gFake.languageOfFile = gLang;
  gFake.hostWindow = hostWindow;
  gFake.module = module;
  if (id != kSession) return QZFILTER_FAILED;
  if (gFake.showDialog != nullptr) gFake.showDialog();
  return gFake.fileStatus;
}
#endif

uint32_t QZFilter_ExportEnd(unsigned long id) {
  ++gFake.ends;
  gFake.endedID = id;
  return QZFILTER_SUCCESS;
}

#ifndef WITHOUT_OUTCOME
uint32_t QZFilter_GetExportOutcome(unsigned long id, QZEXPORTOUTCOME* record) {
  gFake.askedID = id;
  if (id != kSession || record->size != sizeof *record) return QZFILTER_FAILED;
  *record = gFake.outcome;
  return QZFILTER_SUCCESS;
}
#endif

int32_t DllMain(void* module, uint32_t reason, void* /*reserved*/) {
  if (reason == 1 && module != nullptr) ++gFake.attached;
  return 1;
}
