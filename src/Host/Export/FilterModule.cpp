#include "Host/Export/FilterModule.h"

#include <dlfcn.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstring>

#include "Host/ClassView/RomanText.h"

namespace host {

namespace {

constexpr int16_t kEnglish = 0;

// A text field of a record, which the filter may have filled to its end.
template <size_t size>
QString _FieldText(const char (&field)[size]) {
  return LineFromRoman({field, ::strnlen(field, size)});
}

void _SetError(FilterLoadError* error, FilterFault fault, const QString& detail) {
  if (error != nullptr) *error = {fault, detail};
}

template <typename Pointer>
bool _Find(void* handle, const char* name, Pointer* pointer) {
  *pointer = reinterpret_cast<Pointer>(::dlsym(handle, name));
  return *pointer != nullptr;
}

template <typename Pointer>
bool _Find(void* handle, const char* name, Pointer* pointer, FilterLoadError* error) {
  if (_Find(handle, name, pointer)) return true;
  _SetError(error, FilterFault::kMissingSymbol, QString::fromLatin1(name));
  return false;
}

}  // namespace

// A filter of another version may have another format at the index.
const FormatRow* RowOf(const ExportFormat& format) {
  const FormatRow* const row = FindFormat(format.index);
  return row != nullptr && format.name == QLatin1String(row->name) ? row : nullptr;
}

QString FilterModule::DefaultPath() {
  QString named = qEnvironmentVariable("GRADIX_FILTER");
  if (!named.isEmpty()) return named;
  return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                         QLatin1String("/../lib/gradix/GX_StdCsv.so"));
}

std::unique_ptr<FilterModule> FilterModule::Load(const QString& path, FilterLoadError* error) {
  const QFileInfo file(path);
  if (!file.isFile()) {
    _SetError(error, FilterFault::kNotFound, path);
    return nullptr;
  }
  // An absolute path: the loader would look for a bare name in the system's folders.
  void* const handle =
      ::dlopen(QFile::encodeName(file.absoluteFilePath()).constData(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) {
    _SetError(error, FilterFault::kNotLoadable, QString::fromLocal8Bit(::dlerror()));
    return nullptr;
  }
  std::unique_ptr<FilterModule> filter(new FilterModule(handle));
  if (!filter->FindEntryPoints(error)) {
    ::dlclose(handle);
    return nullptr;
  }
  filter->m_entries.dllMain(handle, QZFILTER_ATTACH, nullptr);
  return filter;
}

bool FilterModule::FindEntryPoints(FilterLoadError* error) {
  EntryPoints& entries = m_entries;
  _Find(m_handle, "QZFilter_GetExportOutcome", &entries.getExportOutcome);
  return _Find(m_handle, "QZFilter_GetNumExportFormatsA", &entries.getNumExportFormats, error) &&
         _Find(m_handle, "QZFilter_GetExportFormatInfoA", &entries.getExportFormatInfo, error) &&
         _Find(m_handle, "QZFilter_ExportBeginA", &entries.exportBegin, error) &&
         _Find(m_handle, "QZFilter_ExportFileA", &entries.exportFile, error) &&
         _Find(m_handle, "QZFilter_ExportEnd", &entries.exportEnd, error) &&
         _Find(m_handle, "DllMain", &entries.dllMain, error) &&
         _Find(m_handle, "gLang", &entries.language, error);
}

std::vector<ExportFormat> FilterModule::Formats() const {
  std::vector<ExportFormat> formats;
  const uint32_t count = m_entries.getNumExportFormats();
  for (uint32_t index = 0; index < count; ++index) {
    QZEXPORTFORMAT info{};
    // The first refusal ends the list: without its resource file the filter refuses every format, each time
    // with an alert.
    if (m_entries.getExportFormatInfo(&info, index) != 1) break;
    formats.push_back({index, _FieldText(info.name), _FieldText(info.extension)});
  }
  return formats;
}

void FilterModule::SetSpanish(bool spanish) const {
  *m_entries.language = spanish ? QZFILTER_SPANISH : kEnglish;
}

uint32_t FilterModule::ExportBegin(const QZEXPORTBEGIN* begin, unsigned long* id) const {
  return m_entries.exportBegin(nullptr, begin, id);
}

uint32_t FilterModule::ExportFile(void* hostWindow, unsigned long id, const QZEXPORTFILE* file) const {
  return m_entries.exportFile(hostWindow, id, file, m_handle);
}

uint32_t FilterModule::ExportEnd(unsigned long id) const {
  return m_entries.exportEnd(id);
}

std::optional<QZEXPORTOUTCOME> FilterModule::Outcome(unsigned long id) const {
  QZEXPORTOUTCOME outcome{};
  outcome.size = sizeof outcome;
  if (m_entries.getExportOutcome == nullptr) return std::nullopt;
  if (m_entries.getExportOutcome(id, &outcome) != QZFILTER_SUCCESS) return std::nullopt;
  return outcome;
}

}  // namespace host
