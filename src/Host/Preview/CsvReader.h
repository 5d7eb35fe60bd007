// Delimited values, read for showing them.
#ifndef GRADIX_CSVREADER_H
#define GRADIX_CSVREADER_H

#include <string>
#include <string_view>
#include <vector>

namespace host {

using CsvRow = std::vector<std::string>;

// The rows of a text by RFC 4180, bytes unchanged: a value that begins with a double quote runs to the next
// single one, with delimiters, line ends and doubled quotes in it; a quote elsewhere is text. Lines end with
// CR, LF or both. An empty line is a row of one empty value; a line end at the end of the text begins no row.
std::vector<CsvRow> ReadCsv(std::string_view text, char delimiter = ',');

}  // namespace host

#endif  // GRADIX_CSVREADER_H
