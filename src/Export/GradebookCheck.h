// The check of an export for a course whose gradebook is at hand.
#ifndef GRADIX_EXPORT_GRADEBOOKCHECK_H
#define GRADIX_EXPORT_GRADEBOOKCHECK_H

#include "Systems/Download.h"
#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

// All findings of an upload into the course, worst first: CheckExport's, and what only the gradebook tells.
Findings CheckExport(const ExportSubject& subject, const Gradebook& gradebook);

#endif  // GRADIX_EXPORT_GRADEBOOKCHECK_H
