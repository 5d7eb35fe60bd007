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
  std::shared_ptr<const OpenClass> openClass;  // from which it was made; null: not known as it was then
  const FormatRow* format = nullptr;           // null: one that this program does not know
  Dialect dialect = Dialect::kClassic;
  char delimiter = ',';
  bool useQuotes = true;
  bool throughDialog = false;
  qz::UserIDField identifier = qz::kUserIDAlias;  // of a format that has one
  std::vector<size_t> assignments;                // positions in the record; none: not known which
  uint32_t assignmentCount = 0;                   // where it is not known which
  uint32_t studentCount = 0;                      // of the class, where that is not known; 0: not told
  uint32_t replacedCharacters = 0;                // in the class, as whoever wrote the file told
  uint32_t studentsWithoutIdentifier = 0;
  QString gradebookPath;  // of a filled gradebook: the download
  size_t filledCells = 0;
};

}  // namespace host

#endif  // GRADIX_EXPORTEDFILE_H
