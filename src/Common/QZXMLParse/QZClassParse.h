// The class file reader: a class file, read as a stream, becomes the records of a class.
#ifndef GRADIX_QZCLASSPARSE_H
#define GRADIX_QZCLASSPARSE_H

#include <cstdint>
#include <iosfwd>

#include "Common/QZData/QZClass.h"

// Where and why a read failed.
struct QZClassParseError {
  uint64_t line = 0;             // 1-based
  uint64_t column = 0;           // 1-based, in bytes
  const char* reason = nullptr;  // static text; null: nothing was wrong
};

// Reads a class file (XML: UTF-8, US-ASCII or a declared ISO-8859-1) from `stream` and appends to `record`.
// Returns false when the document is malformed or its document element is not class; the records completed
// before the fault stay. `error`, unless null, receives the first fault. Assignments end up sorted by
// AssignmentLess. One parse at a time: the element tables are process-wide.
bool QZClassParse(qz::ClassRecord* record, std::istream& stream, QZClassParseError* error = nullptr);

#endif  // GRADIX_QZCLASSPARSE_H
