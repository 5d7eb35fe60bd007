// A class file as every program reads it: opened, read to its end, or the fault that was in the way.
#ifndef GRADIX_EXPORT_CLASSFILE_H
#define GRADIX_EXPORT_CLASSFILE_H

#include <cstdint>
#include <iosfwd>
#include <string>

#include "Common/QZData/ClassTexts.h"
#include "Common/QZData/OriginalTexts.h"
#include "Common/QZData/QZClass.h"

enum class ClassFaultCode {
  kNone,
  kCannotOpen,
  kCannotRead,           // the system gave it only in part, or not at all
  kNotAClass,            // another XML document
  kUnsupportedEncoding,  // the reason names it
  kDamaged,
  kOutOfMemory,
};

struct ClassFault {
  ClassFaultCode code = ClassFaultCode::kNone;
  uint64_t line = 0;    // 1-based; 0: the fault has no place in the text
  uint64_t column = 0;  // 1-based, in characters
  std::string reason;   // the system's or the parser's, in English
};

struct ClassFile {
  std::string path;                 // as it was given
  std::string name;                 // the class's own, UTF-8 on one line; empty when the file has none
  qz::ClassRecord record;           // the whole class, or nothing after a fault
  uint64_t replacedCharacters = 0;  // characters that the 8-bit texts of the record have as "?"
  qz::OriginalTexts originals;      // the texts with such characters
  ClassFault fault;

  // A view of this file's class; valid as long as the file stays where it is.
  qz::ClassTexts Texts() const { return {record, originals}; }
  bool IsRead() const { return fault.code == ClassFaultCode::kNone; }
};

// Any thread; reads may run at the same time.
ClassFile ReadClassFile(const std::string& path);

// The same from an open stream, to its end.
ClassFile ReadClassFile(std::istream& stream, const std::string& path);

#endif  // GRADIX_EXPORT_CLASSFILE_H
