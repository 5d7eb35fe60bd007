#include "Filters/GX_StdCsv/Session.h"

#include <cerrno>
#include <cstring>

#include "Filters/GX_StdCsv/CsvOutput.h"

Session::Session(const QZEXPORTBEGIN* begin) : m_begin(*begin) {}

uint32_t Session::Export(const char* path) {
  m_outcome = WriteAtomicFile(path == nullptr ? "" : path, [this](std::FILE* file) {
    ExportTo(file);
    return WriteError();
  });
  return m_outcome.begun ? QZFILTER_SUCCESS : QZFILTER_FILE_NOT_CREATED;
}

void Session::ExportTo(std::FILE* file) {
  m_outcome = {};
  m_outcome.begun = true;
  errno = 0;  // afterwards the reason of the last write that failed
  Write(file);
  if (std::fflush(file) != 0 || std::ferror(file) != 0) m_outcome.error = StreamError();
}

void Session::WriteSafeCSVString(std::FILE* file, const char* text) {
  for (;;) {
    const size_t plain = std::strcspn(text, "\"");
    std::fwrite(text, 1, plain, file);
    text += plain;
    if (*text == '\0') return;
    std::fputc('\'', file);
    ++text;
  }
}
