// Checks that every student can be told apart by the identifier that an export will write.
#ifndef GRADIX_EXPORT_IDENTIFIERCHECK_H
#define GRADIX_EXPORT_IDENTIFIERCHECK_H

#include <cstddef>
#include <vector>

#include "Common/QZData/QZClass.h"
#include "Systems/ExportSubject.h"

// Students are given by their position in ClassRecord::students.
struct IdentifierCheck {
  size_t studentCount = 0;
  std::vector<size_t> empty;  // students without an identifier

  // Groups of two or more students with one identifier, compared exactly. Empty identifiers are equal, too.
  std::vector<std::vector<size_t>> duplicates;

  bool SomeEmpty() const { return !empty.empty() && !AllEmpty(); }
  bool AllEmpty() const { return empty.size() == studentCount; }  // true of a class without students
  bool HasDuplicates() const { return !duplicates.empty(); }
};

IdentifierCheck CheckIdentifiers(const qz::ClassRecord& record, qz::UserIDField field);

// The same of the identifiers as the subject's file has them. In a current file, which leaves students
// without one out, these share nothing.
IdentifierCheck CheckIdentifiers(const ExportSubject& subject);

#endif  // GRADIX_EXPORT_IDENTIFIERCHECK_H
