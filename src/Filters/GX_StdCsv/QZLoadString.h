// The filter's texts: numbered strings from the host's string tables, and the resource file of a language.
#ifndef GRADIX_QZLOADSTRING_H
#define GRADIX_QZLOADSTRING_H

#include <string>

#include "Platform/Core/CFString.h"

// Opens a resource file of the main bundle, its name with extension, and makes it the current one. False,
// with the current one as it was, when there is no such file. The file stays open for the life of the
// process.
bool _LoadExtraResourceFile(const char* name);

// The resource file of the session's language.
const char* _ExtraResourceFileName();

// The text of a string id in the session's language, Mac OS Roman; the id's decimal digits when the table has
// no such entry, empty without a main bundle.
std::string QZLoadString(int id);
// The string itself, the caller's to release; null without a main bundle.
CFStringRef QZLoadCFString(int id);

// In Mac OS Roman; empty when the string has a character that it lacks.
std::string VeyCFStringToCString(CFStringRef string);

#endif  // GRADIX_QZLOADSTRING_H
