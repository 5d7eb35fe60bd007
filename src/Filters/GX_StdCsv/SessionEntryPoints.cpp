// The entry points that show nothing: they work in any process.
#include <algorithm>
#include <cstring>

#include "Filters/GX_StdCsv/FilterState.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Filters/GX_StdCsv/Session.h"
#include "gradix/QZFilter.h"

namespace {

constexpr size_t kFirstOutcomeSize = 296;  // of the record's first version, which every host has

}  // namespace

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
  const QZEXPORTOUTCOME* outcome = g_sessionMgr.FindOutcome(id);
  if (outcome == nullptr || record == nullptr || record->size < kFirstOutcomeSize) return QZFILTER_FAILED;
  const size_t size = record->size;
  const size_t known = std::min(size, sizeof *outcome);
  auto* const bytes = reinterpret_cast<char*>(record);
  std::memcpy(bytes, outcome, known);
  std::memset(bytes + known, 0, size - known);
  record->size = static_cast<uint32_t>(size);
  return QZFILTER_SUCCESS;
}
