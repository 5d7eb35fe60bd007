// The writing of an export whose session is complete.
#ifndef GRADIX_EXPORT_EXPORTWRITER_H
#define GRADIX_EXPORT_EXPORTWRITER_H

#include <cstdio>
#include <string>

#include "Common/AtomicFile.h"
#include "Filters/GX_StdCsv/Session.h"
#include "Systems/ExportSubject.h"

// Writes the classic file as WriteAtomicFile does.
FileOutcome WriteExport(Session* session, const std::string& path);

// The same to an open stream, which stays open.
FileOutcome WriteExport(Session* session, std::FILE* stream);

// The same for the current file of the subject's format, which has to have one.
FileOutcome WriteCurrentExport(const ExportSubject& subject, const std::string& path);
FileOutcome WriteCurrentExport(const ExportSubject& subject, std::FILE* stream);

#endif  // GRADIX_EXPORT_EXPORTWRITER_H
