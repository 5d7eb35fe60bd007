#include "Export/IdentifierCheck.h"

#include <string>
#include <string_view>
#include <utility>

#include "Common/KeyGroups.h"

namespace {

enum class EmptyOnes { kAreEqual, kDiffer };

// `identifierOf(student)` gives texts that outlive the check.
template <typename IdentifierOf>
IdentifierCheck _Check(size_t studentCount, EmptyOnes emptyOnes, IdentifierOf identifierOf) {
  IdentifierCheck check;
  check.studentCount = studentCount;

  KeyGroups identifiers(check.studentCount);
  for (size_t i = 0; i < check.studentCount; ++i) {
    const std::string_view identifier = identifierOf(i);
    if (identifier.empty()) check.empty.push_back(i);
    if (!identifier.empty() || emptyOnes == EmptyOnes::kAreEqual) identifiers.Add(identifier, i);
  }
  check.duplicates = std::move(identifiers).Shared();
  return check;
}

}  // namespace

IdentifierCheck CheckIdentifiers(const qz::ClassRecord& record, qz::UserIDField field) {
  return _Check(record.students.size(), EmptyOnes::kAreEqual, [&record, field](size_t student) {
    return std::string_view(record.students[student].GetUserID(field));
  });
}

IdentifierCheck CheckIdentifiers(const ExportSubject& subject) {
  const qz::ClassRecord& record = subject.texts.Record();
  if (subject.dialect != Dialect::kCurrent) return CheckIdentifiers(record, subject.identifier);
  std::vector<std::string> identifiers;
  identifiers.reserve(record.students.size());
  for (size_t i = 0; i < record.students.size(); ++i) identifiers.push_back(subject.Identifier(i));
  return _Check(identifiers.size(), EmptyOnes::kDiffer,
                [&identifiers](size_t student) { return std::string_view(identifiers[student]); });
}
