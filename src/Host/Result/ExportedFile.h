// What is known of a file that was written, whoever wrote it.
#ifndef GRADIX_EXPORTEDFILE_H
#define GRADIX_EXPORTEDFILE_H

#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

#include "Filters/GX_StdCsv/FormatTable.h"
#include "Host/ClassView/ClassReader.h"
#include "Systems/ExportSubject.h"

namespace host {

struct ExportedFile {
  QString path;
  std::shared_ptr<const OpenClass> openClass;  // from which it was made
  const FormatRow* format = nullptr;
  Dialect dialect = Dialect::kClassic;
  char delimiter = ',';
  bool useQuotes = true;
  bool throughDialog = false;
  qz::UserIDField identifier = qz::kUserIDAlias;  // of a format that has one
  std::vector<size_t> assignments;                // positions in the record
  uint32_t replacedCharacters = 0;                // in the class, as whoever wrote the file told
  uint32_t studentsWithoutIdentifier = 0;
  QString gradebookPath;  // of a filled gradebook: the download
  size_t filledCells = 0;
};

}  // namespace host

#endif  // GRADIX_EXPORTEDFILE_H
