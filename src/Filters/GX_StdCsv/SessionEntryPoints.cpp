// The entry points that show nothing: they work in any process.
#include <cstring>

#include "Filters/GX_StdCsv/FilterState.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Filters/GX_StdCsv/Session.h"
#include "gradix/QZFilter.h"

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

uint32_t QZFilter_GetExportOutcome(unsigned long id, QZEXPORTOUTCOME* record) {
  const SessionOutcome* outcome = g_sessionMgr.FindOutcome(id);
  if (outcome == nullptr || record == nullptr) return QZFILTER_FAILED;
  // As bytes: the record of a host of the first version may lie where this one could not.
  auto* const bytes = reinterpret_cast<char*>(record);
  QZEXPORTOUTCOME told = outcome->told;
  std::memcpy(&told.size, bytes, sizeof told.size);
  if (told.size < QZFILTER_FIRST_OUTCOME_SIZE) return QZFILTER_FAILED;
  const size_t known = told.size < sizeof told ? QZFILTER_FIRST_OUTCOME_SIZE : sizeof told;
  std::memcpy(bytes, &told, known);
  std::memset(bytes + known, 0, told.size - known);
  return QZFILTER_SUCCESS;
}
