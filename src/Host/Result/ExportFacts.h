// What is known of an exported file, in a line each.
#ifndef GRADIX_EXPORTFACTS_H
#define GRADIX_EXPORTFACTS_H

#include <QString>
#include <optional>
#include <vector>

#include "Host/Result/ExportedFile.h"
#include "Systems/ExportSubject.h"

namespace host {

struct ExportFact {
  const char* key;  // "assignments": the name of the label that shows it
  QString title;
  QString text;
  bool isMissing = false;  // something is not in the file
};

// In the current language, in the order in which they are shown. What is not known is not in it.
std::vector<ExportFact> ExportFactsOf(const ExportedFile& file);

// What stands in the file; nothing when too little is known. The file's class and format outlive it.
std::optional<ExportSubject> SubjectOf(const ExportedFile& file);

// "Canvas"; empty for a format that is not known.
QString SystemNameOf(const ExportedFile& file);

}  // namespace host

#endif  // GRADIX_EXPORTFACTS_H
