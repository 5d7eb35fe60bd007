// The writing of an export whose session is complete.
#ifndef GRADIX_EXPORT_EXPORTWRITER_H
#define GRADIX_EXPORT_EXPORTWRITER_H

#include <cstdio>
#include <string>

#include "Common/AtomicFile.h"
#include "Filters/GX_StdCsv/Session.h"

enum class TextEncoding {
  kMacRoman,  // the program's own: the bytes as the sessions write them
};

// Writes the file as WriteAtomicFile does.
FileOutcome WriteExport(Session* session, const std::string& path, TextEncoding encoding);

// The same to an open stream, which stays open.
FileOutcome WriteExport(Session* session, std::FILE* stream, TextEncoding encoding);

#endif  // GRADIX_EXPORT_EXPORTWRITER_H
