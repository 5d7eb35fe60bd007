// The writing of an export whose session is complete.
#ifndef GRADIX_EXPORT_EXPORTWRITER_H
#define GRADIX_EXPORT_EXPORTWRITER_H

#include <cstdio>
#include <string>

#include "Common/AtomicFile.h"
#include "Filters/GX_StdCsv/Session.h"

// Writes the classic file as WriteAtomicFile does.
FileOutcome WriteExport(Session* session, const std::string& path);

// The same to an open stream, which stays open.
FileOutcome WriteExport(Session* session, std::FILE* stream);

#endif  // GRADIX_EXPORT_EXPORTWRITER_H
