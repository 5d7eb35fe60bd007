#include "Filters/GX_StdCsv/Session.h"

#include <cerrno>
#include <cstring>
#include <memory>

namespace {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

// The reason for a failed stream operation; streams do not always leave one.
int _StreamError() {
  return errno != 0 ? errno : EIO;
}

}  // namespace

Session::Session(const QZEXPORTBEGIN* begin) : m_begin(*begin) {}

uint32_t Session::Export(const char* path) {
  std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path, "wt"));
  if (file == nullptr) {
    m_writeError = _StreamError();
    return QZFILTER_FILE_NOT_CREATED;
  }
  ExportTo(file.get());
  errno = 0;
  if (std::fclose(file.release()) != 0 && m_writeError == 0) m_writeError = _StreamError();
  return QZFILTER_SUCCESS;
}

void Session::ExportTo(std::FILE* file) {
  m_writeError = 0;
  errno = 0;  // afterwards the reason of the last write that failed
  Write(file);
  if (std::fflush(file) != 0 || std::ferror(file) != 0) m_writeError = _StreamError();
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
