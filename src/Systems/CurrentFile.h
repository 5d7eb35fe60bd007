// The file that a system's present version takes, beside the classic one: UTF-8 in most cases, every text in
// quotes by RFC 4180, and the names as they are.
#ifndef GRADIX_SYSTEMS_CURRENTFILE_H
#define GRADIX_SYSTEMS_CURRENTFILE_H

#include <cstdio>

#include "Filters/GX_StdCsv/GradebookLayout.h"
#include "Systems/ExportSubject.h"
#include "Tables/TextEncoding.h"

struct CurrentFile {
  TextEncoding encoding = TextEncoding::kUtf8;
  const GradebookLayout* layout = nullptr;  // null: the detailed report, which has columns of its own
  bool quotesNumbers = false;
  int maxDecimals = -1;              // scores are rounded to so many; -1: PlainNumber's
  bool takesSemicolons = false;      // between the cells
  bool hasDecimalCommas = false;     // with semicolons
  const char* numericIdPrefix = "";  // in front of an identifier of digits only
  // The student field behind {identifier} when another was chosen, which then has a column of its own.
  qz::UserIDField (*identifierField)(qz::UserIDField chosen) = nullptr;
};

// Writes the file of the subject, whose delimiter is one that the system takes, to an open stream, which
// stays open. The report is about the subject's first assignment, and is empty without one. Returns 0, or the
// errno value of what went wrong.
int WriteCurrentFile(const CurrentFile& current, const ExportSubject& subject, std::FILE* file);

#endif  // GRADIX_SYSTEMS_CURRENTFILE_H
