#include "Export/IdentifierCheck.h"

#include <string>
#include <utility>

#include "Common/KeyGroups.h"

IdentifierCheck CheckIdentifiers(const qz::ClassRecord& record, qz::UserIDField field) {
  IdentifierCheck check;
  check.studentCount = record.students.size();

  KeyGroups identifiers(check.studentCount);
  for (size_t i = 0; i < check.studentCount; ++i) {
    const std::string& identifier = record.students[i].GetUserID(field);
    if (identifier.empty()) check.empty.push_back(i);
    identifiers.Add(identifier, i);
  }
  check.duplicates = std::move(identifiers).Shared();
  return check;
}
