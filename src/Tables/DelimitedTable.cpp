#include "Tables/DelimitedTable.h"

#include <csv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <limits>
#include <memory>
#include <new>
#include <system_error>

namespace {

constexpr size_t kMostBytes = size_t{256} * 1024 * 1024;
constexpr size_t kMostCells = size_t{32} * 1024 * 1024;
constexpr std::string_view kSeparators = ",;\t:";
constexpr size_t kRowsForSeparator = 10;

bool _IsLineEnd(char character) {
  return character == '\r' || character == '\n';
}

size_t _CountLineEnds(std::string_view text) {
  size_t count = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    const bool isHalf = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    count += _IsLineEnd(text[i]) && !isHalf ? 1 : 0;
  }
  return count;
}

uint64_t _LineAt(std::string_view text, size_t offset) {
  return 1 + _CountLineEnds(text.substr(0, offset));
}

// In characters.
uint64_t _ColumnAt(std::string_view text, size_t offset) {
  uint64_t column = 1;
  while (offset > 0 && !_IsLineEnd(text[offset - 1])) {
    --offset;
    column += (static_cast<uint8_t>(text[offset]) & 0xC0U) == 0x80 ? 0 : 1;  // inside of a character
  }
  return column;
}

TableFault _FaultAt(std::string_view text, size_t offset, std::string reason) {
  return {.line = _LineAt(text, offset), .column = _ColumnAt(text, offset), .reason = std::move(reason)};
}

// The bytes behind the first row.
size_t _FirstRowEnd(std::string_view bytes) {
  bool isQuoted = false;
  bool hasText = false;
  for (size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '"') isQuoted = !isQuoted;
    if (!isQuoted && _IsLineEnd(bytes[i]) && hasText) return i;
    hasText = hasText || !_IsLineEnd(bytes[i]);
  }
  return bytes.size();
}

using SeparatorCounts = std::array<size_t, kSeparators.size()>;

// How often each separator stands outside of quotes, in each of the first rows with text.
std::vector<SeparatorCounts> _CountSeparators(std::string_view bytes) {
  std::vector<SeparatorCounts> rows;
  while (!bytes.empty() && rows.size() < kRowsForSeparator) {
    const std::string_view row = bytes.substr(0, _FirstRowEnd(bytes));
    bytes.remove_prefix(row.size());
    SeparatorCounts counts{};
    bool isQuoted = false;
    for (const char character : row) {
      if (character == '"') isQuoted = !isQuoted;
      const size_t separator = isQuoted ? std::string_view::npos : kSeparators.find(character);
      if (separator != std::string_view::npos) ++counts[separator];
    }
    if (std::any_of(row.begin(), row.end(), [](char c) { return !_IsLineEnd(c); })) rows.push_back(counts);
  }
  return rows;
}

// The separator that every row has most of: others stand in some titles or names only.
char _FindSeparator(std::string_view bytes) {
  const std::vector<SeparatorCounts> rows = _CountSeparators(bytes);
  if (rows.empty()) return kSeparators.front();
  SeparatorCounts least = rows.front();
  for (const SeparatorCounts& row : rows) {
    for (size_t i = 0; i < least.size(); ++i) least[i] = std::min(least[i], row[i]);
  }
  // Without a common one the headings count alone.
  const bool hasCommon = std::any_of(least.begin(), least.end(), [](size_t count) { return count > 0; });
  const SeparatorCounts& counts = hasCommon ? least : rows.front();
  return kSeparators[static_cast<size_t>(std::max_element(counts.begin(), counts.end()) - counts.begin())];
}

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

TableFault _SystemFault(int error) {
  return {.unreadable = true, .reason = std::generic_category().message(error != 0 ? error : EIO)};
}

TableFault _TooLarge() {
  return {.reason = "the file is larger than 256 MB"};
}

TableFault _ReadBytes(const std::string& path, std::string* bytes) {
  std::error_code unknown;  // the size of what is no plain file
  const uintmax_t size = std::filesystem::file_size(path, unknown);
  if (!unknown && size > kMostBytes) return _TooLarge();
  if (!unknown) bytes->reserve(static_cast<size_t>(size));
  errno = 0;
  const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "rbe"));
  if (file == nullptr) return _SystemFault(errno);
  std::vector<char> buffer(size_t{256} * 1024);
  for (size_t count = 0; (count = std::fread(buffer.data(), 1, buffer.size(), file.get())) > 0;) {
    bytes->append(buffer.data(), count);
    if (bytes->size() > kMostBytes) return _TooLarge();
  }
  return std::ferror(file.get()) != 0 ? _SystemFault(errno) : TableFault{};
}

template <typename Action>
TableFault _WithoutException(Action action) {
  try {
    return action();
  } catch (const std::bad_alloc&) {
    return {.reason = "out of memory"};
  } catch (const std::exception& exception) {
    return {.reason = exception.what()};
  }
}

}  // namespace

// Takes the cells of a text from the parser, which calls back once for each cell and each row.
class TableBuilder {
 public:
  TableBuilder(std::string_view text, char separator, DelimitedTable* table)
      : m_text(text), m_separator(separator), m_table(table) {}

  TableFault Build() {
    m_table->m_text.reserve(m_text.size());
    csv_parser parser;
    if (csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI) != 0) throw std::bad_alloc();
    const std::unique_ptr<csv_parser, ParserCloser> closer(&parser);
    csv_set_delim(&parser, static_cast<unsigned char>(m_separator));
    csv_set_space_func(&parser, [](unsigned char) { return 0; });  // blanks belong to the cell
    csv_set_blk_size(&parser, m_text.size() / 8 + 4096);           // a cell can be all of the text
    const size_t parsed = csv_parse(&parser, m_text.data(), m_text.size(), TakeCell, TakeRow, this);
    const bool isParsed = parsed == m_text.size();
    const bool isEnded = isParsed && csv_fini(&parser, TakeCell, TakeRow, this) == 0;
    if (m_exception) std::rethrow_exception(m_exception);
    if (!m_fault.IsFault() && !isEnded) m_fault = SyntaxFault(csv_error(&parser), parsed);
    return m_fault;
  }

 private:
  struct ParserCloser {
    void operator()(csv_parser* parser) const { csv_free(parser); }
  };

  bool IsOver() const { return m_exception != nullptr || m_fault.IsFault(); }

  // The parser does not stop before its text ends: what comes behind a fault is passed over.
  template <typename Action>
  void Guard(Action action) noexcept {
    if (IsOver()) return;
    try {
      action();
    } catch (...) {
      m_exception = std::current_exception();
    }
  }

  static void TakeCell(void* text, size_t size, void* builder) {
    auto* const self = static_cast<TableBuilder*>(builder);
    self->Guard([&] { self->AddCell({static_cast<const char*>(text), size}); });
  }

  static void TakeRow(int, void* builder) {
    auto* const self = static_cast<TableBuilder*>(builder);
    self->Guard([self] { self->EndRow(); });
  }

  // The parser tells neither where a cell stands nor whether it was in quotes. As it takes no malformed text,
  // both follow from the cells before.
  void AddCell(std::string_view cell) {
    if (m_isRowNew) BeginRow();
    const bool isQuoted = m_offset < m_text.size() && m_text[m_offset] == '"';
    const auto inner = isQuoted ? std::count(cell.begin(), cell.end(), '"') : 0;
    m_offset += cell.size() + (isQuoted ? static_cast<size_t>(inner) + 2 : 0) + 1;
    m_hasText = m_hasText || !cell.empty();
    if (m_table->m_cells.size() == kMostCells) {
      m_fault = {.line = m_line, .reason = "the table has more than 32 million cells"};
      return;
    }
    m_table->m_cells.push_back({.begin = static_cast<uint32_t>(m_table->m_text.size()),
                                .size = static_cast<uint32_t>(cell.size()) & kMostSize,
                                .quoted = isQuoted ? 1U : 0U});
    m_table->m_text.append(cell);
  }

  void BeginRow() {
    m_isRowNew = false;
    while (m_offset < m_text.size() && _IsLineEnd(m_text[m_offset])) ++m_offset;
    m_line += _CountLineEnds(m_text.substr(m_counted, m_offset - m_counted));
    m_counted = m_offset;
  }

  void EndRow() {
    if (m_hasText) {
      m_table->m_rowBegins.push_back(m_table->m_cells.size());
      m_table->m_lines.push_back(m_line);
    } else {
      m_table->m_cells.resize(m_table->m_rowBegins.back());
    }
    m_isRowNew = true;
    m_hasText = false;
  }

  TableFault SyntaxFault(int error, size_t offset) {
    if (error == CSV_ENOMEM) return {.reason = "out of memory"};
    if (m_isRowNew) BeginRow();
    if (offset >= m_text.size()) return _FaultAt(m_text, m_offset, "a quote begins here and does not end");
    TableFault fault = _FaultAt(m_text, offset, "a quote (\") stands where none may stand");
    if (m_offset < m_text.size() && m_text[m_offset] == '"') {
      fault.reason = "the quote that begins in line " + std::to_string(_LineAt(m_text, m_offset)) +
                     " ends here, in the middle of a cell";
    }
    return fault;
  }

  static constexpr uint32_t kMostSize = std::numeric_limits<uint32_t>::max() >> 1U;

  std::string_view m_text;
  char m_separator;
  DelimitedTable* m_table;
  size_t m_offset = 0;   // of the next cell in the text
  size_t m_counted = 0;  // the text before has m_line - 1 line ends
  uint64_t m_line = 1;   // of the row
  bool m_isRowNew = true;
  bool m_hasText = false;  // the row
  TableFault m_fault;
  std::exception_ptr m_exception;
};

namespace {

TextEncoding _OwnEncoding(std::string_view bytes, const EncodingOf& ownEncoding) {
  const std::string_view row = bytes.substr(0, _FirstRowEnd(bytes));
  const std::string text = DecodeText(row, TextEncoding::kLatin1).value_or("");
  DelimitedTable headings;
  headings.style.separator = _FindSeparator(bytes);
  TableBuilder(text, headings.style.separator, &headings).Build();
  return ownEncoding(headings);
}

TableFault _Parse(std::string_view bytes, const EncodingOf& ownEncoding, DelimitedTable* table) {
  if (bytes.size() > kMostBytes) return _TooLarge();
  TableStyle style;
  const auto detected = DetectEncoding(bytes);
  style.encoding = detected ? *detected : _OwnEncoding(bytes, ownEncoding);

  size_t offset = 0;
  const auto text = DecodeText(bytes, style.encoding, &offset);
  if (!text) {
    const std::string before = DecodeText(bytes.substr(0, offset), style.encoding).value_or("");
    return _FaultAt(before, before.size(),
                    std::string("the text is not ") + EncodingName(style.encoding) +
                        " as expected; another program may have saved the file anew");
  }
  if (const size_t zero = text->find('\0'); zero != std::string::npos) {
    return _FaultAt(*text, zero, "a zero byte stands in the text");
  }
  style.separator = _FindSeparator(*text);
  const size_t lineEnd = _FirstRowEnd(*text);
  style.carriageReturns = std::string_view(*text).substr(lineEnd).starts_with("\r\n");
  table->style = style;
  TableFault fault = TableBuilder(*text, style.separator, table).Build();
  if (!fault.IsFault() && table->RowCount() == 0) fault.reason = "the file is empty";
  return fault;
}

}  // namespace

DelimitedTable::Cell DelimitedTable::At(size_t row, size_t column) const {
  if (row >= RowCount() || column >= CellCount(row)) return {};
  const Extent& cell = m_cells[m_rowBegins[row] + column];
  return {std::string_view(m_text).substr(cell.begin, cell.size), cell.quoted != 0};
}

TableFault ParseTable(std::string_view bytes, const EncodingOf& ownEncoding, DelimitedTable* table) {
  TableFault fault = _WithoutException([&] {
    *table = {};
    return _Parse(bytes, ownEncoding, table);
  });
  if (fault.IsFault()) *table = {};
  return fault;
}

TableFault ReadTable(const std::string& path, const EncodingOf& ownEncoding, DelimitedTable* table) {
  std::string bytes;
  TableFault fault = _WithoutException([&] { return _ReadBytes(path, &bytes); });
  return fault.IsFault() ? fault : ParseTable(bytes, ownEncoding, table);
}

void AppendCell(std::string* line, std::string_view text, bool quoted, char separator) {
  const bool needsQuotes = text.find_first_of("\"\r\n") != std::string_view::npos ||
                           text.find(separator) != std::string_view::npos;
  if (!quoted && !needsQuotes) {
    line->append(text);
    return;
  }
  *line += '"';
  for (const char character : text) line->append(character == '"' ? 2 : 1, character);
  *line += '"';
}
