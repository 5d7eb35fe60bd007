#include "Export/ClassFile.h"

#include <cerrno>
#include <fstream>
#include <istream>
#include <new>
#include <sstream>
#include <system_error>
#include <vector>

#include "Common/QZXMLParse/QZClassParse.h"

namespace {

constexpr size_t kBufferSize = size_t{64} * 1024;

std::string _SystemReason(int error) {
  return std::generic_category().message(error != 0 ? error : EIO);
}

ClassFaultCode _CodeOf(QZClassFault fault) {
  switch (fault) {
    case kClassFaultNotAClass: return ClassFaultCode::kNotAClass;
    case kClassFaultEncoding: return ClassFaultCode::kUnsupportedEncoding;
    case kClassFaultOutOfMemory: return ClassFaultCode::kOutOfMemory;
    case kClassFaultNone:
    case kClassFaultMalformed:
    case kClassFaultDeclarations: break;
  }
  return ClassFaultCode::kDamaged;
}

std::string _ReasonOf(const QZClassParseReport& report) {
  if (report.fault == kClassFaultEncoding && !report.encoding.empty()) {
    return "the encoding " + report.encoding + " is not supported; save the file as UTF-8";
  }
  return report.reason != nullptr ? report.reason : "not a class file";
}

std::string _OnOneLine(const std::string& text) {
  std::istringstream words(text);
  std::string line;
  for (std::string word; words >> word;) line.append(line.empty() ? "" : " ").append(word);
  return line;
}

void _Read(std::istream& stream, ClassFile* file) {
  QZClassParseReport report;
  report.originals = &file->originals;
  errno = 0;
  const bool parsed = QZClassParse(&file->record, stream, &report);
  // What could not be read to its end looks damaged, so this comes first. And a parse that ran out of memory
  // may count as one that succeeded.
  if (stream.bad()) {
    file->fault = {ClassFaultCode::kCannotRead, 0, 0, _SystemReason(errno)};
  } else if (!parsed || report.reason != nullptr) {
    file->fault = {_CodeOf(report.fault), report.line, report.column, _ReasonOf(report)};
  } else {
    file->name = _OnOneLine(report.className);
    file->replacedCharacters = report.replacedCharacters;
  }
}

void _Open(ClassFile* file) {
  std::vector<char> buffer(kBufferSize);
  std::ifstream stream;
  stream.rdbuf()->pubsetbuf(buffer.data(), static_cast<std::streamsize>(buffer.size()));
  errno = 0;
  stream.open(file->path, std::ios::in | std::ios::binary);
  if (stream.is_open()) {
    _Read(stream, file);
  } else {
    file->fault = {ClassFaultCode::kCannotOpen, 0, 0, _SystemReason(errno)};
  }
}

template <typename Action>
ClassFile _Make(const std::string& path, Action action) {
  ClassFile file;
  file.path = path;
  try {
    action(&file);
  } catch (const std::bad_alloc&) {
    file.fault = {ClassFaultCode::kOutOfMemory, 0, 0, "out of memory"};
  }
  if (!file.IsRead()) {
    file.record = {};
    file.originals = {};
  }
  return file;
}

}  // namespace

ClassFile ReadClassFile(const std::string& path) {
  return _Make(path, _Open);
}

ClassFile ReadClassFile(std::istream& stream, const std::string& path) {
  return _Make(path, [&stream](ClassFile* file) { _Read(stream, file); });
}
