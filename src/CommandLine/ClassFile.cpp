#include "CommandLine/ClassFile.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <new>
#include <vector>

#include "CommandLine/CommandError.h"
#include "CommandLine/TextOut.h"
#include "Common/QZXMLParse/QZClassParse.h"

namespace {

constexpr size_t kBufferSize = size_t{64} * 1024;

[[noreturn]] void _Fail(const std::string& text) {
  throw CommandError(kExitClassFile, text);
}

std::string _ReasonOf(int error) {
  return std::strerror(error != 0 ? error : EIO);
}

std::string _Place(const QZClassParseReport& report) {
  std::string place;
  if (report.line == 0) return place;
  for (const uint64_t number : {report.line, report.column}) place.append(":").append(std::to_string(number));
  return place;
}

// `name` is the file as messages call it.
void _Parse(const std::string& name, std::istream& stream, qz::ClassRecord* record) {
  QZClassParseReport report;
  errno = 0;
  const bool parsed = QZClassParse(record, stream, &report);
  // What could not be read to its end looks malformed, so this comes first.
  if (stream.bad()) _Fail("cannot read " + name + ": " + _ReasonOf(errno));
  if (parsed && report.reason == nullptr) return;
  _Fail(name + _Place(report) + ": " + (report.reason != nullptr ? report.reason : "not a class file"));
}

void _ReadFile(const std::string& path, const std::string& name, qz::ClassRecord* record) {
  std::vector<char> buffer(kBufferSize);
  std::ifstream stream;
  stream.rdbuf()->pubsetbuf(buffer.data(), static_cast<std::streamsize>(buffer.size()));
  errno = 0;
  stream.open(path, std::ios::in | std::ios::binary);
  if (!stream.is_open()) _Fail("cannot open " + name + ": " + _ReasonOf(errno));
  _Parse(name, stream, record);
}

}  // namespace

void ReadClassFile(const std::string& path, qz::ClassRecord* record) {
  const bool standardInput = path == kStandardStream;
  const std::string name = standardInput ? "(standard input)" : PrintableUtf8(path);
  try {
    if (standardInput) {
      _Parse(name, std::cin, record);
    } else {
      _ReadFile(path, name, record);
    }
  } catch (const std::bad_alloc&) {
    _Fail(name + ": out of memory");
  }
}
