// The class file reader: a class file, read as a stream, becomes the records of a class.
#ifndef GRADIX_QZCLASSPARSE_H
#define GRADIX_QZCLASSPARSE_H

#include <cstdint>
#include <iosfwd>
#include <string>

#include "Common/QZData/OriginalTexts.h"
#include "Common/QZData/QZClass.h"

enum QZClassFault : int32_t {
  kClassFaultNone = 0,
  kClassFaultMalformed = 1,
  kClassFaultOutOfMemory = 2,
  kClassFaultEncoding = 3,      // neither UTF-8 nor US-ASCII nor ISO-8859-1
  kClassFaultNotAClass = 5,     // the document element is not class
  kClassFaultDeclarations = 6,  // declares more than the parser can handle in bounded time and memory
};

// What a read can tell beyond its records.
struct QZClassParseReport {
  // The first fault, and where the parser stood. Without a fault the place is 0 and the reason null.
  QZClassFault fault = kClassFaultNone;
  uint64_t line = 0;             // 1-based
  uint64_t column = 0;           // 1-based, in bytes
  const char* reason = nullptr;  // static text
  std::string encoding;          // the one that is not supported, as far as it is known

  std::string className;            // UTF-8, as written, up to about 800 bytes; empty when there is none
  uint64_t replacedCharacters = 0;  // became "?" in a text of the records because Mac OS Roman lacks them

  // The texts with such characters, as written, at the positions in the record after the read. Kept when the
  // caller sets this before the read; what it held is dropped.
  qz::OriginalTexts* originals = nullptr;
};

// Reads a class file (XML: UTF-8, US-ASCII or a declared ISO-8859-1) from `stream` and appends to `record`.
// Returns false when the document is malformed or its document element is not class; the records completed
// before the fault stay. `report`, unless null, is overwritten. Assignments end up sorted by AssignmentLess.
// Any thread, with a record and a report of its own; parses may run at the same time.
bool QZClassParse(qz::ClassRecord* record, std::istream& stream, QZClassParseReport* report = nullptr);

#endif  // GRADIX_QZCLASSPARSE_H
