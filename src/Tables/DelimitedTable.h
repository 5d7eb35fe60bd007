// A table in delimited text (RFC 4180 and its relatives) as a program downloaded it: its cells, and what has
// to stay as it is when a part of it is written again.
#ifndef GRADIX_TABLES_DELIMITEDTABLE_H
#define GRADIX_TABLES_DELIMITEDTABLE_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Tables/TextEncoding.h"

// How a table is written.
struct TableStyle {
  TextEncoding encoding = TextEncoding::kUtf8;
  char separator = ',';
  bool carriageReturns = false;  // lines end with CR LF
};

class DelimitedTable {
 public:
  struct Cell {
    std::string_view text;  // UTF-8, without the quotes around it; valid as long as the table
    bool quoted = false;    // in the file
  };

  TableStyle style;

  size_t RowCount() const { return m_rowBegins.size() - 1; }
  size_t ColumnCount() const { return RowCount() == 0 ? 0 : CellCount(0); }  // of the first row, the headings
  size_t CellCount(size_t row) const { return m_rowBegins[row + 1] - m_rowBegins[row]; }

  // Empty behind the row's last cell and below the last row: programs leave out empty cells at the end.
  Cell At(size_t row, size_t column) const;
  std::string_view Text(size_t row, size_t column) const { return At(row, column).text; }
  uint64_t LineOf(size_t row) const { return m_lines[row]; }  // in the file, 1-based: where the row begins

 private:
  friend class TableBuilder;

  struct Extent {  // there can be many
    uint32_t begin;
    uint32_t size : 31;
    uint32_t quoted : 1;
  };
  std::string m_text;  // all cells, one behind the other
  std::vector<Extent> m_cells;
  std::vector<size_t> m_rowBegins = {0};
  std::vector<uint64_t> m_lines;
};

struct TableFault {
  bool IsFault() const { return !reason.empty(); }

  bool unreadable = false;  // the system did not give the file
  bool foreign = false;     // it is a table, but not one of those that were looked for
  uint64_t line = 0;        // 1-based; 0: no place
  uint64_t column = 0;      // 1-based, in characters; 0: no more than the line is known
  std::string reason;       // English
};

// The encoding to assume when the bytes of the file do not tell. Of `headings` there is the first row only,
// its characters beyond ASCII read as if they were ISO-8859-1.
using EncodingOf = std::function<TextEncoding(const DelimitedTable& headings)>;

// Reads the file at `path`, at most 256 MB and 32 million cells of it. The separator is found out among
// comma, semicolon, tab and colon. Rows need not be equally long; whoever knows the table decides. Rows
// without any text are left out. Any thread; throws nothing.
TableFault ReadTable(const std::string& path, const EncodingOf& ownEncoding, DelimitedTable* table);

// The same for bytes in memory.
TableFault ParseTable(std::string_view bytes, const EncodingOf& ownEncoding, DelimitedTable* table);

// Puts the cell into `line` as RFC 4180 wants it: in quotes when `quoted` or when the text needs them, a
// quote inside doubled. No separator is added.
void AppendCell(std::string* line, std::string_view text, bool quoted, char separator);

#endif  // GRADIX_TABLES_DELIMITEDTABLE_H
