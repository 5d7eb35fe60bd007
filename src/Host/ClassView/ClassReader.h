// The host's own view of a class file.
#ifndef GRADIX_CLASSREADER_H
#define GRADIX_CLASSREADER_H

#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

#include "Common/QZData/QZClass.h"
#include "Host/ClassView/Statistics.h"

namespace host {

struct OpenClass {
  QString path;  // absolute
  QString name;  // the class's; the file's base name when it has none
  qz::ClassRecord record;
  std::vector<Scores> scores;  // by assignment
};

enum class ReadFault { kNone, kCannotOpen, kCannotRead, kMalformed, kNotAClass, kOutOfMemory };

struct ReadResult {
  std::shared_ptr<const OpenClass> openClass;  // null after a fault
  ReadFault fault = ReadFault::kNone;
  QString path;
  QString reason;       // the system's or the parser's, in English
  uint64_t line = 0;    // 1-based, of what is malformed
  uint64_t column = 0;  // 1-based, in bytes
};

// Reads a class file completely. Any thread, but one call at a time.
ReadResult ReadClassFile(const QString& path);

}  // namespace host

#endif  // GRADIX_CLASSREADER_H
