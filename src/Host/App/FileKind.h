// What a file is that somebody opens or drops.
#ifndef GRADIX_FILEKIND_H
#define GRADIX_FILEKIND_H

#include <QString>
#include <string_view>

namespace host {

enum class FileKind {
  kUnreadable,  // no file, a folder, no permission
  kEmpty,       // no text in it
  kClass,       // begins as class files do; whether it is one, only reading it tells
  kDownload,    // a gradebook downloaded from a learning system, fit to be filled in
  kPicture,
  kPdf,
  kOfficeDocument,
  kArchive,
  kWebPage,
  kTable,  // another CSV file
  kOther,
};

// Any thread. Looks at the beginning; of a text that may be a download, at all of it if it is not too large.
// Only of plain files, so that nobody waits for a pipe.
FileKind KindOfFile(const QString& path);

// The same where the beginning is known already.
FileKind KindOfFile(const QString& path, std::string_view head);

}  // namespace host

#endif  // GRADIX_FILEKIND_H
