// The host's own view of a class file.
#ifndef GRADIX_CLASSREADER_H
#define GRADIX_CLASSREADER_H

#include <QString>
#include <memory>

#include "Common/QZData/QZClass.h"
#include "Export/ClassFile.h"
#include "Export/Statistics.h"
#include "Filters/GX_StdCsv/ResultsJoin.h"

namespace host {

struct OpenClass {
  QString path;  // absolute
  QString name;  // the class's; the file's base name when it has none
  qz::ClassRecord record;
  qz::OriginalTexts originals;
  ScoreTable scores;  // on all assignments

  qz::ClassTexts Texts() const { return {record, originals}; }
  Scores ScoresOn(size_t assignment) const;
};

struct ReadResult {
  std::shared_ptr<const OpenClass> openClass;  // null after a fault
  QString path;
  ClassFault fault;
};

// Reads a class file completely. Any thread.
ReadResult ReadClass(const QString& path);

}  // namespace host

#endif  // GRADIX_CLASSREADER_H
