// Fuzzes the reading of downloaded gradebooks: encodings, tables, and what each system's columns and rows
// mean.
//
// Input: a byte that chooses the system, in the order of the table (others: the headings tell), then the
// file.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Systems/Download.h"
#include "Systems/DownloadText.h"
#include "Systems/LearningSystem.h"

namespace {

void _Check(bool holds) {
  if (!holds) __builtin_trap();
}

// The table with every cell in quotes.
std::string _Write(const DelimitedTable& table) {
  std::string text;
  for (size_t row = 0; row < table.RowCount(); ++row) {
    for (size_t i = 0; i < table.CellCount(row); ++i) {
      const DelimitedTable::Cell cell = table.At(row, i);
      if (i > 0) text += table.style.separator;
      AppendCell(&text, cell.text, true, table.style.separator);
    }
    text += table.style.carriageReturns ? "\r\n" : "\n";
  }
  const TextEncoding encoding = table.style.encoding;
  uint64_t replaced = 0;
  const std::string bytes = std::string(ByteOrderMark(encoding)) + EncodeText(text, encoding, &replaced);
  _Check(replaced == 0);
  return bytes;
}

// What was read and written reads the same again.
void _FuzzTable(std::string_view bytes) {
  const auto latin1 = [](const DelimitedTable&) { return TextEncoding::kLatin1; };
  DelimitedTable table;
  const TableFault fault = ParseTable(bytes, latin1, &table);
  _Check(fault.IsFault() == (table.RowCount() == 0) && !fault.unreadable);
  if (fault.IsFault() || table.ColumnCount() == 1) return;  // one column shows no separator

  // Without a byte-order mark a changed text may look like another encoding.
  const std::string written = _Write(table);
  if (DetectEncoding(written).value_or(TextEncoding::kLatin1) != table.style.encoding) return;
  DelimitedTable again;
  _Check(!ParseTable(written, latin1, &again).IsFault());
  _Check(again.style.separator == table.style.separator);
  _Check(again.RowCount() == table.RowCount());
  for (size_t row = 0; row < table.RowCount(); ++row) {
    _Check(again.CellCount(row) == table.CellCount(row));
    _Check(row == 0 || table.LineOf(row) >= table.LineOf(row - 1));
    for (size_t i = 0; i < table.CellCount(row); ++i) {
      _Check(again.Text(row, i) == table.Text(row, i) &&
             (again.At(row, i).quoted || !table.At(row, i).quoted));
    }
  }
}

void _FuzzGradebook(std::string_view bytes, const LearningSystem* chosen) {
  Gradebook gradebook;
  const TableFault fault = ParseGradebook(bytes, chosen, &gradebook);
  _Check(fault.IsFault() == gradebook.members.empty() && !fault.unreadable);
  if (fault.IsFault()) return;

  _Check(gradebook.columns.size() == gradebook.table.ColumnCount());
  _Check(gradebook.headerRows.front() == 0 && gradebook.pointsRow <= gradebook.headerRows.back());
  for (const CourseMember& member : gradebook.members) {
    _Check(member.row > gradebook.headerRows.back() && member.row < gradebook.table.RowCount());
    for (size_t i = 0; i < std::min<size_t>(gradebook.columns.size(), 64); ++i) {
      gradebook.Identifier(member, i);
      const auto score = gradebook.Score(member.row, i);
      _Check(!score || gradebook.HasScore(member.row, i));
      const double limit = 1e9;
      if (!score || *score < -limit || *score > limit) continue;
      _Check(ParseCellNumber(gradebook.ScoreText(*score), gradebook.decimalCommas ? ',' : '.').has_value());
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const auto systems = LearningSystems();
  // A block of exactly its size, so that any access beyond it is seen.
  const std::vector<char> bytes(data + 1, data + size);
  const std::string_view file(bytes.data(), bytes.size());
  _FuzzTable(file);
  _FuzzGradebook(file, *data < systems.size() ? systems[*data] : nullptr);
  return 0;
}
