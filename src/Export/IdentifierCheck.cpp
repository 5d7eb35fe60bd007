#include "Export/IdentifierCheck.h"

#include <algorithm>
#include <string_view>

#include "Common/KeyIndex.h"

IdentifierCheck CheckIdentifiers(const qz::ClassRecord& record, qz::UserIDField field) {
  IdentifierCheck check;
  check.studentCount = record.students.size();

  KeyIndex<std::string_view> identifiers(check.studentCount);
  std::vector<std::vector<size_t>> studentsOf;
  constexpr size_t kNoGroup = KeyIndex<std::string_view>::kNone;
  std::vector<size_t> firstStudent;  // by number of the identifier
  std::vector<size_t> groupOf;       // the same, kNoGroup while it is unique
  for (size_t i = 0; i < check.studentCount; ++i) {
    const std::string& identifier = record.students[i].GetUserID(field);
    if (identifier.empty()) check.empty.push_back(i);
    const size_t number = identifiers.Add(identifier);
    if (number == firstStudent.size()) {
      firstStudent.push_back(i);
      groupOf.push_back(kNoGroup);
      continue;
    }
    if (groupOf[number] == kNoGroup) {
      groupOf[number] = studentsOf.size();
      studentsOf.push_back({firstStudent[number]});
    }
    studentsOf[groupOf[number]].push_back(i);
  }
  check.duplicates = std::move(studentsOf);
  return check;
}
