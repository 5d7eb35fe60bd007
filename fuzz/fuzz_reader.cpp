// Reads arbitrary bytes as a class file and writes what came of it in every format.

#include <array>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <sstream>
#include <string>

#include "Common/QZXMLParse/QZClassParse.h"
#include "Common/xmlutil.h"
#include "Export/IdentifierCheck.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Filters/GX_StdCsv/Session.h"
#include "Systems/IdentifierQuality.h"
#include "tests/support/ClassDump.h"

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

// Every original text is the one of which the record's was made.
void _CheckOriginals(const qz::ClassRecord& record, const qz::OriginalTexts& originals) {
  size_t count = 0;
  ForEachOriginal(record, originals, [&count](const std::string& text, const std::string& original) {
    std::array<char, 201> roman{};
    XmlUtf8DecodeString(roman.data(), 200, original.c_str());
    _Require(text == roman.data() && text.find('?') != std::string::npos);
    ++count;
  });
  _Require(count == originals.Count());
}

void _CheckQuality(const IdentifierQuality& quality) {
  _Require(quality.Filled() > 0 || (quality.duplicates.empty() && quality.nearDuplicates.empty()));
  _Require(quality.example.empty() == (quality.Filled() == 0));
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
  qz::OriginalTexts originals;
  report.originals = &originals;
  const bool parsed = QZClassParse(&record, stream, &report);
  _Require(parsed == (report.reason == nullptr));
  _CheckRecord(record);
  _CheckOriginals(record, originals);
  for (qz::AssignmentRecord& assignment : record.assignments) assignment.selected = true;
  CheckIdentifiers(record, qz::kUserIDAlias);
  _CheckQuality(JudgeIdentifiers({record, originals}, qz::kUserIDAlias));
  _WriteEveryFormat(record, sink);
  return 0;
}
