// The messages of the options dialogs, in the session's language, UTF-8.
#ifndef GRADIX_DIALOGMESSAGES_H
#define GRADIX_DIALOGMESSAGES_H

#include <cstddef>
#include <string>

#include "Filters/GX_StdCsv/FormatTable.h"

// Of the identifier check, for `empty` of the class's students and for all of them.
std::string SomeEmptyMessage(const FormatRow& format, size_t empty, size_t students);
std::string AllEmptyMessage(const FormatRow& format);

// "Assignment results have been saved in ...", with a path in the file system's bytes. `spanishID` is the
// string id of the Spanish text.
std::string SavedMessage(int spanishID, const std::string& path);

#endif  // GRADIX_DIALOGMESSAGES_H
