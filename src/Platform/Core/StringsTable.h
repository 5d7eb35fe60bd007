// The text of a string table: entries `"key" = "value";` with C comments between them.
#ifndef GRADIX_STRINGSTABLE_H
#define GRADIX_STRINGSTABLE_H

#include <map>
#include <string>
#include <string_view>

using StringsTable = std::map<std::u16string, std::u16string>;

// The entries up to the first malformed one; of two with the same key the first counts. A backslash stands
// before n, r, t, Uxxxx (a UTF-16 unit) or a character that means itself.
StringsTable ParseStringsTable(std::u16string_view text);

// The same for a file's bytes: UTF-8, or UTF-16 when a byte order mark says so. Malformed text is an empty
// table.
StringsTable ParseStringsBytes(std::string_view bytes);

#endif  // GRADIX_STRINGSTABLE_H
