// The host's own view of a class file.
#ifndef GRADIX_CLASSREADER_H
#define GRADIX_CLASSREADER_H

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>

#include "Common/QZData/QZClass.h"
#include "Export/ClassFile.h"
#include "Export/Statistics.h"
#include "Filters/GX_StdCsv/ResultsJoin.h"
#include "Host/App/FileKind.h"
#include "Host/App/FileStamp.h"

class QWidget;

namespace host {

struct ReadWatch;

struct OpenClass {
  QString path;     // absolute
  FileStamp stamp;  // of the file as it was read
  QString name;     // the class's; the file's base name when it has none
  qz::ClassRecord record;
  qz::OriginalTexts originals;
  uint64_t replacedCharacters = 0;  // that the record's texts have as "?"
  ScoreTable scores;                // on all assignments

  qz::ClassTexts Texts() const { return {record, originals}; }
  Scores ScoresOn(size_t assignment) const;
};

// Runs `act` once the class is the one on the disk, perhaps after asking above the window and reading it
// again; not at all when the user does not want that.
using PresentClassAsker = std::function<void(QWidget* window, std::function<void()> act)>;

struct ReadResult {
  std::shared_ptr<const OpenClass> openClass;  // null after a fault, or when cancelled
  QString path;                                // absolute
  ClassFault fault;
  FileKind kind = FileKind::kUnreadable;  // what the file is or seems to be; not known when cancelled
  bool cancelled = false;                 // before its end; there is no fault then
};

// Reads a class file completely, unless `watch` tells it to stop. Any thread.
ReadResult ReadClass(const QString& path);
ReadResult ReadClass(const QString& path, ReadWatch* watch);

}  // namespace host

#endif  // GRADIX_CLASSREADER_H
