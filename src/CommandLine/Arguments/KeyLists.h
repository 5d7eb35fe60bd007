// The names that the command line takes, as messages and help list them: separated by commas.
#ifndef GRADIX_KEYLISTS_H
#define GRADIX_KEYLISTS_H

#include <string>
#include <string_view>
#include <vector>

#include "CommandLine/TerminalText.h"
#include "Common/QZData/StudentFields.h"
#include "Filters/GX_StdCsv/FormatTable.h"

using Keys = std::vector<std::string>;

// The keys of the rows that are `wanted`.
template <typename Rows, typename Wanted>
Keys KeysOf(const Rows& rows, Wanted wanted) {
  Keys keys;
  for (const auto& row : rows) {
    if (wanted(row)) keys.emplace_back(row.key);
  }
  return keys;
}

Keys FormatKeys();
Keys FormatAliases();
Keys IdentifierKeys();   // of the student fields that can be the identifier
Keys ReportFieldKeys();  // of all student fields

// "a, b, c"
std::string Listed(const Keys& keys);

// The same in lines for a help text, indented.
std::string IndentedList(const Keys& keys);

#endif  // GRADIX_KEYLISTS_H
