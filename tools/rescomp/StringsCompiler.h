// String lists.
#ifndef GRADIX_STRINGSCOMPILER_H
#define GRADIX_STRINGSCOMPILER_H

#include <string>
#include <vector>

#include "rescomp/ByteWriter.h"
#include "rescomp/ForkWriter.h"
#include "rescomp/Source.h"

// The bytes of a 'STR#'.
ByteWriter StringListBytes(const std::vector<std::string>& texts);

// Compiles one element of "stringLists". Throws SourceError.
void CompileStringList(const Node& source, ForkWriter* file);

#endif  // GRADIX_STRINGSCOMPILER_H
