#include "tests/host/fake_filter.h"

#include <cstdio>

constexpr unsigned long kSession = 0xFAA00007;

extern "C" QZFILTER_API FakeFilter g_fake;
FakeFilter g_fake;
int16_t gLang = 0;

uint32_t QZFilter_GetNumExportFormatsA() {
  return g_fake.formatCount;
}

uint32_t QZFilter_GetExportFormatInfoA(QZEXPORTFORMAT* info, unsigned long index) {
  gLang = 0;
  if (index == g_fake.failingFormat) return 0;
  std::snprintf(info->name, sizeof info->name, "Assignment Results for Caf\x8E %lu", index);
  std::snprintf(info->extension, sizeof info->extension, "csv");
  return 1;
}

uint32_t QZFilter_ExportBeginA(void* /*host*/, const QZEXPORTBEGIN* begin, unsigned long* id) {
  ++g_fake.begins;
  g_fake.begin = *begin;
  *id = kSession;
  return g_fake.beginStatus;
}

#ifndef WITHOUT_EXPORT_FILE
uint32_t QZFilter_ExportFileA(void* hostWindow, unsigned long id, const QZEXPORTFILE* file, void* module) {
  ++g_fake.files;
  g_fake.file = *file;
  g_fake.languageOfFile = gLang;
  g_fake.hostWindow = hostWindow;
  g_fake.module = module;
  if (id != kSession) return QZFILTER_FAILED;
  if (g_fake.showDialog != nullptr) g_fake.showDialog();
  return g_fake.fileStatus;
}
#endif

uint32_t QZFilter_ExportEnd(unsigned long id) {
  ++g_fake.ends;
  g_fake.endedID = id;
  return QZFILTER_SUCCESS;
}

int32_t DllMain(void* module, uint32_t reason, void* /*reserved*/) {
  if (reason == 1 && module != nullptr) ++g_fake.attached;
  return 1;
}
