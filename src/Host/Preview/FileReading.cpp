#include "Host/Preview/FileReading.h"

#include <QString>
#include <algorithm>

#include "Systems/CurrentFile.h"
#include "Systems/LearningSystem.h"
#include "Tables/DelimitedTable.h"

namespace host {

namespace {

// Only what a table shows of itself counts: one that is cut off or damaged is read as most are.
FileReading _ReadingOfTable(std::string_view bytes) {
  DelimitedTable table;
  ParseTable(
      bytes, [](const DelimitedTable&) { return TextEncoding::kLatin1; }, &table);
  return {table.style.encoding, table.style.separator};
}

}  // namespace

FileReading ReadingOf(const FormatRow& format, Dialect dialect, char delimiter, std::string_view bytes) {
  switch (dialect) {
    case Dialect::kClassic: break;
    case Dialect::kCurrent: return {FindCurrentFile(format)->encoding, delimiter};
    case Dialect::kFilled: return _ReadingOfTable(bytes);
  }
  return {};
}

std::string DecodeForReading(std::string_view bytes, TextEncoding encoding) {
  if (auto text = DecodeText(bytes, encoding)) return std::move(*text);
  return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size())).toStdString();
}

LineEnds LineEndsOf(std::string_view text) {
  const auto feeds = std::count(text.begin(), text.end(), '\n');
  const auto returns = std::count(text.begin(), text.end(), '\r');
  if (feeds == 0 && returns == 0) return LineEnds::kNone;
  if (returns == 0) return LineEnds::kLf;
  if (feeds == 0) return LineEnds::kCr;
  std::ptrdiff_t pairs = 0;
  for (size_t at = text.find("\r\n"); at != std::string_view::npos; at = text.find("\r\n", at + 2)) ++pairs;
  return pairs == feeds && pairs == returns ? LineEnds::kCrLf : LineEnds::kMixed;
}

}  // namespace host
