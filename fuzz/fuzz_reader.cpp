// Reads arbitrary bytes as a class file and writes what came of it in every format.

#include <cstdint>
#include <cstdio>
#include <memory>
#include <sstream>
#include <string>

#include "Common/QZXMLParse/QZClassParse.h"
#include "Export/IdentifierCheck.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Filters/GX_StdCsv/Session.h"

namespace {

void _Require(bool condition) {
  if (!condition) __builtin_trap();
}

void _CheckRecord(const qz::ClassRecord& record) {
  for (const qz::StudentRecord& student : record.students) {
    _Require(student.firstName.size() <= 199);
    _Require(student.firstName.empty() || student.firstName.back() != ' ');
  }
  for (const std::string& label : record.customLabels) _Require(!label.empty() && label.size() <= 200);
}

void _WriteEveryFormat(const qz::ClassRecord& record, std::FILE* file) {
  for (const FormatRow& format : FormatTable()) {
    QZEXPORTBEGIN begin{};
    begin.formatIndex = format.index;
    const std::unique_ptr<Session> session = format.make(&begin);
    *session->GetClass() = record;
    session->GetClass()->optionValue = 0x7FFF;
    session->GetClass()->options = {true, true, true, true, true};
    session->GetClass()->userIDField = format.defaultUserIDField;
    session->ExportTo(file);
    _Require(session->WriteError() == 0);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static std::FILE* const sink = std::fopen("/dev/null", "wb");
  std::istringstream stream(std::string(reinterpret_cast<const char*>(data), size));
  qz::ClassRecord record;
  QZClassParseReport report;
  const bool parsed = QZClassParse(&record, stream, &report);
  _Require(parsed == (report.reason == nullptr));
  _CheckRecord(record);
  for (qz::AssignmentRecord& assignment : record.assignments) assignment.selected = true;
  CheckIdentifiers(record, qz::kUserIDAlias);
  _WriteEveryFormat(record, sink);
  return 0;
}
