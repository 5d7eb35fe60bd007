// Tables and encodings: what a file is understood as, and the fault when it makes no sense.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "Tables/DelimitedTable.h"
#include "tests/platform/temp_folder.h"

namespace {

using namespace std::string_literals;
using enum TextEncoding;

TextEncoding _Latin1(const DelimitedTable&) {
  return kLatin1;
}

// Rows apart by "/", cells by "|"; a cell that was quoted in brackets.
std::string _Cells(const DelimitedTable& table) {
  std::string text;
  for (size_t row = 0; row < table.RowCount(); ++row) {
    text += row == 0 ? "" : "/";
    for (size_t i = 0; i < table.CellCount(row); ++i) {
      const DelimitedTable::Cell cell = table.At(row, i);
      text.append(i == 0 ? "" : "|");
      text.append(cell.quoted ? "[" : "").append(cell.text).append(cell.quoted ? "]" : "");
    }
  }
  return text;
}

std::string _Utf16(std::string_view ascii, bool bigEndian) {
  std::string bytes;
  for (const char character : ascii) {
    bytes += bigEndian ? '\0' : character;
    bytes += bigEndian ? character : '\0';
  }
  return bytes;
}

TEST(Table, IsUnderstood) {
  const struct {
    const char* name;
    std::string bytes;
    TextEncoding encoding;
    char separator;
    bool carriageReturns;
    const char* cells;
  } rows[] = {
      {"ASCII is the system's own", "a,b\n1,2\n", kLatin1, ',', false, "a|b/1|2"},
      {"UTF-8", "a,\xC3\xA9\r\n1,2", kUtf8, ',', true, "a|é/1|2"},
      {"UTF-8 with mark", "\xEF\xBB\xBF\"a\",b", kUtf8WithBom, ',', false, "[a]|b"},
      {"own encoding", "a;\xE9\r\n", kLatin1, ';', true, "a|é"},
      {"UTF-16", "\xFF\xFE" + _Utf16("\"a\"\t\"b\"\r\n", false), kUtf16LE, '\t', true, "[a]|[b]"},
      {"UTF-16, big end first", "\xFE\xFF" + _Utf16("a,b", true), kUtf16BE, ',', false, "a|b"},
      {"UTF-16 without mark", _Utf16("a:b", false), kUtf16LE, ':', false, "a|b"},
      {"one column", "a\nb\n", kLatin1, ',', false, "a/b"},
      {"commas in titles and names", "x;y;Quiz, part\nBell, A;1;2\n", kLatin1, ';', false,
       "x|y|Quiz, part/Bell, A|1|2"},
      {"colons in titles", "a,b,Quiz: 1,Quiz: 2\n1,2,3,4\n", kLatin1, ',', false,
       "a|b|Quiz: 1|Quiz: 2/1|2|3|4"},
      {"decimal commas", "a;b\n1,5;2,5\n1,5;2,5", kLatin1, ';', false, "a|b/1,5|2,5/1,5|2,5"},
      {"separators in quotes", "\"a;;;\"\",b\",c\n\"1;;\",2", kLatin1, ',', false, "[a;;;\",b]|c/[1;;]|2"},
      {"blanks belong to cells", "  a , b\n", kLatin1, ',', false, "  a | b"},
      {"empty cells and rows", "a,b,c\n\n,,\n\"\",1,\n", kLatin1, ',', false, "a|b|c/[]|1|"},
      {"ragged", "a,b\n1\n1,2,3", kLatin1, ',', false, "a|b/1/1|2|3"},
      {"line end in quotes", "a,b\r\n\"1\r\n2\",3\r\n", kLatin1, ',', true, "a|b/[1\r\n2]|3"},
      {"quote beside quote", "\"\"\"\",\"\"\"a\"\"\"", kLatin1, ',', false, "[\"]|[\"a\"]"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    DelimitedTable table;
    EXPECT_EQ(ParseTable(row.bytes, _Latin1, &table).reason, "");
    EXPECT_EQ(table.style.encoding, row.encoding);
    EXPECT_EQ(table.style.separator, row.separator);
    EXPECT_EQ(table.style.carriageReturns, row.carriageReturns);
    EXPECT_EQ(_Cells(table), row.cells);
  }
}

TEST(Table, TellsTheFault) {
  const struct {
    const char* name;
    std::string bytes;
    const char* fault;
  } rows[] = {
      {"nothing", "", "0:0 the file is empty"},
      {"a mark only", "\xEF\xBB\xBF", "0:0 the file is empty"},
      {"no text", ",,\r\n\"\",\n", "0:0 the file is empty"},
      {"zero byte", "a,b\r\n1,\0"s, "2:3 a zero byte stands in the text"},
      {"not in the encoding of its mark",
       "\xEF\xBB\xBF"
       "a\r\n\xC3\xA9,\xE9\n",
       "2:3 the text is not UTF-8 with a byte-order mark as expected; another program may have saved the "
       "file anew"},
      {"half a character",
       "\xFF\xFE"
       "a\0\n\0b"s,
       "2:1 the text is not UTF-16 as expected; another program may have saved the file anew"},
      {"quote without end", "a,b\r\n\r\n1,\"2\n3\n4", "3:3 a quote begins here and does not end"},
      {"quote inside", "a,b\n1,5\" nail\n", "2:4 a quote (\") stands where none may stand"},
      {"text behind a quote", "a,b\n\"1\n2\n3\"x,4\n",
       "4:3 the quote that begins in line 2 ends here, in the middle of a cell"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    DelimitedTable table;
    const TableFault fault = ParseTable(row.bytes, _Latin1, &table);
    EXPECT_EQ(std::to_string(fault.line) + ":" + std::to_string(fault.column) + " " + fault.reason,
              row.fault);
    EXPECT_EQ(table.RowCount(), 0U);
    EXPECT_FALSE(fault.unreadable);
  }
}

TEST(Table, TellsTheLineOfRows) {
  DelimitedTable table;
  EXPECT_FALSE(ParseTable("\r\na\r\n\"1\n2\"\r\n\r\n3\r4", _Latin1, &table).IsFault());
  ASSERT_EQ(table.RowCount(), 4U);
  const uint64_t lines[] = {2, 3, 6, 7};
  for (size_t row = 0; row < 4; ++row) EXPECT_EQ(table.LineOf(row), lines[row]) << row;
}

TEST(Table, IsReadFromAFile) {
  const TempFolder folder;
  const std::string path = folder.Write("table.csv", "a,b\n");
  DelimitedTable table;
  EXPECT_FALSE(ReadTable(path, _Latin1, &table).IsFault());
  EXPECT_EQ(_Cells(table), "a|b");
  for (const std::string& unreadable : {folder.Path(), folder.Path("missing")}) {
    EXPECT_TRUE(ReadTable(unreadable, _Latin1, &table).unreadable) << unreadable;
  }
  std::filesystem::resize_file(path, (size_t{256} << 20) + 1);
  EXPECT_EQ(ReadTable(path, _Latin1, &table).reason, "the file is larger than 256 MB");
}

TEST(Encoding, GoesBothWays) {
  const struct {
    TextEncoding encoding;
    std::string bytes;  // of é–Łz
    uint64_t replaced;
    const char* again;
  } rows[] = {
      {kUtf8, "\xC3\xA9\xE2\x80\x93\xC5\x81z", 0, "é–Łz"},
      {kLatin1, "\xE9??z", 2, "é??z"},
      {kMacRoman, "\x8E\xD0?z", 1, "é–?z"},
      {kUtf16LE, "\xE9\0\x13\x20\x41\x01z\0"s, 0, "é–Łz"},
      {kUtf16BE, "\0\xE9\x20\x13\x01\x41\0z"s, 0, "é–Łz"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(EncodingName(row.encoding));
    uint64_t replaced = 99;
    EXPECT_EQ(EncodeText("é–Łz", row.encoding, &replaced), row.bytes);
    EXPECT_EQ(replaced, row.replaced);
    EXPECT_EQ(DecodeText(row.bytes, row.encoding), row.again);
  }
}

TEST(Cells, AreQuotedWhereTheyNeedIt) {
  const struct {
    const char* text;
    bool quoted;
    const char* cell;
  } rows[] = {{"a b", false, "a b"}, {"a b", true, "\"a b\""},    {"a;b", false, "\"a;b\""},
              {"a,b", false, "a,b"}, {"a\nb", false, "\"a\nb\""}, {"a\"b", false, "\"a\"\"b\""},
              {"", false, ""},       {"", true, "\"\""}};
  for (const auto& row : rows) {
    std::string line;
    AppendCell(&line, row.text, row.quoted, ';');
    EXPECT_EQ(line, row.cell);
  }
}

}  // namespace
