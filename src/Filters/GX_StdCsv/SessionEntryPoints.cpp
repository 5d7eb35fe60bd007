// The entry points that show nothing: they work in any process.
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Filters/GX_StdCsv/Session.h"
#include "Filters/GX_StdCsv/start.h"
#include "gradix/QZFilter.h"

SessionMgr g_sessionMgr;

uint32_t QZFilter_GetNumExportFormatsA() {
  return static_cast<uint32_t>(FormatTable().size());
}

uint32_t QZFilter_ExportBeginA(void* /*host*/, const QZEXPORTBEGIN* begin, unsigned long* id) {
  if (begin == nullptr || id == nullptr) return QZFILTER_FAILED;
  try {
    *id = g_sessionMgr.CreateSession(begin);
    return QZFILTER_SUCCESS;
  } catch (...) {
    return QZFILTER_FAILED;  // no exception crosses into the host
  }
}

uint32_t QZFilter_ExportEnd(unsigned long /*id*/) {
  return QZFILTER_SUCCESS;
}

uint32_t QZFilter_GetCustomMessageA(void* /*host*/, unsigned long /*id*/, char* /*buffer*/,
                                    uint32_t /*size*/) {
  return 0;
}
