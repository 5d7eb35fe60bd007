// The export filter as a loaded module.
#ifndef GRADIX_FILTERMODULE_H
#define GRADIX_FILTERMODULE_H

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "Filters/GX_StdCsv/FormatTable.h"
#include "gradix/QZFilter.h"

namespace host {

struct ExportFormat {
  uint32_t index;
  QString name;
  QString extension;  // without a dot
};

// What this program knows of the format; null when it does not know it.
const FormatRow* RowOf(const ExportFormat& format);

enum class FilterFault { kNone, kNotFound, kNotLoadable, kMissingSymbol };

struct FilterLoadError {
  FilterFault fault = FilterFault::kNone;
  QString detail;  // the missing symbol, or the loader's reason
};

// The entry points of a filter. A loaded module stays in the process: windows and objects that it made may
// outlive every export.
class FilterModule {
 public:
  // `../lib/gradix/GX_StdCsv.so` seen from the program's folder, or what the environment variable
  // GRADIX_FILTER names.
  static QString DefaultPath();

  // Null when the module cannot be used; `error`, unless null, tells why.
  static std::unique_ptr<FilterModule> Load(const QString& path, FilterLoadError* error);

  // Leaves the session's language English. Ends before the first format that the filter tells nothing of.
  std::vector<ExportFormat> Formats() const;

  void SetSpanish(bool spanish) const;
  uint32_t ExportBegin(const QZEXPORTBEGIN* begin, unsigned long* id) const;
  uint32_t ExportFile(void* hostWindow, unsigned long id, const QZEXPORTFILE* file) const;
  uint32_t ExportEnd(unsigned long id) const;

  // What became of an export; nothing when the filter is too old to tell and for a session that it does not
  // know.
  std::optional<QZEXPORTOUTCOME> Outcome(unsigned long id) const;

 private:
  struct EntryPoints {
    decltype(&QZFilter_GetNumExportFormatsA) getNumExportFormats;
    decltype(&QZFilter_GetExportFormatInfoA) getExportFormatInfo;
    decltype(&QZFilter_ExportBeginA) exportBegin;
    decltype(&QZFilter_ExportFileA) exportFile;
    decltype(&QZFilter_ExportEnd) exportEnd;
    decltype(&DllMain) dllMain;
    QZFilter_GetExportOutcomeProc getExportOutcome;  // null in an older filter
    int16_t* language;
  };

  explicit FilterModule(void* handle) : m_handle(handle), m_entries() {}
  bool FindEntryPoints(FilterLoadError* error);

  void* m_handle;
  EntryPoints m_entries;
};

}  // namespace host

#endif  // GRADIX_FILTERMODULE_H
