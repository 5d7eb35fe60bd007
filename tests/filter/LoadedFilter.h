// The loaded filter, as a host has it: the entry points, found by name.
#ifndef GRADIX_TESTS_LOADEDFILTER_H
#define GRADIX_TESTS_LOADEDFILTER_H

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "gradix/QZFilter.h"

struct LoadedFilter {
  void* handle = nullptr;
  decltype(&QZFilter_GetNumExportFormatsA) formatCount = nullptr;
  decltype(&QZFilter_GetExportFormatInfoA) formatInfo = nullptr;
  decltype(&QZFilter_ExportBeginA) begin = nullptr;
  decltype(&QZFilter_ExportFileA) exportFile = nullptr;
  decltype(&QZFilter_ExportEnd) end = nullptr;
  QZFilter_GetExportOutcomeProc outcome = nullptr;
  decltype(&QZFilter_GetCustomMessageA) customMessage = nullptr;
  decltype(&DllMain) dllMain = nullptr;
  int32_t (*quit)() = nullptr;
  int16_t* language = nullptr;

  // Loads the module and finds everything in it.
  void Load() {
    handle = dlopen(FILTER_MODULE, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(handle, nullptr) << dlerror();
    Find("QZFilter_GetNumExportFormatsA", &formatCount);
    Find("QZFilter_GetExportFormatInfoA", &formatInfo);
    Find("QZFilter_ExportBeginA", &begin);
    Find("QZFilter_ExportFileA", &exportFile);
    Find("QZFilter_ExportEnd", &end);
    Find("QZFilter_GetExportOutcome", &outcome);
    Find("QZFilter_GetCustomMessageA", &customMessage);
    Find("DllMain", &dllMain);
    Find("QuitApplication", &quit);
    Find("gLang", &language);
    ASSERT_EQ(dllMain(handle, QZFILTER_ATTACH, nullptr), 1);
  }

 private:
  template <typename Symbol>
  void Find(const char* name, Symbol* symbol) {
    *symbol = reinterpret_cast<Symbol>(dlsym(handle, name));
    ASSERT_NE(*symbol, nullptr) << name;
  }
};

#endif  // GRADIX_TESTS_LOADEDFILTER_H
