#include "Systems/IdentifierQuality.h"

#include <string_view>
#include <utility>

#include "Common/CaseFold.h"
#include "Common/KeyGroups.h"

namespace {

constexpr std::string_view kNoBreakSpace = "\u00A0";

// What near-duplicates have in common.
std::string _NearKey(const std::string& identifier) {
  std::string key = FoldCase(identifier);
  std::erase(key, ' ');
  for (size_t at = 0; (at = key.find(kNoBreakSpace, at)) != std::string::npos;) {
    key.erase(at, kNoBreakSpace.size());
  }
  const size_t zeros = key.find_first_not_of('0');
  key.erase(0, zeros == std::string::npos && !key.empty() ? key.size() - 1 : zeros);
  return key;
}

}  // namespace

IdentifierQuality JudgeIdentifiers(const qz::ClassTexts& texts, qz::UserIDField field) {
  const qz::StudentField& studentField = qz::FindStudentField(field);
  IdentifierQuality quality;
  quality.students = texts.Record().students.size();

  // The groups refer to these texts, which stay where they are.
  std::vector<std::string> identifiers(quality.students);
  std::vector<std::string> nearKeys(quality.students);
  KeyGroups equal(quality.students);
  KeyGroups nearlyEqual(quality.students);
  for (size_t i = 0; i < quality.students; ++i) {
    identifiers[i] = texts.Student(i, studentField);
    if (identifiers[i].empty()) {
      quality.empty.push_back(i);
    } else if (equal.Add(identifiers[i], i)) {
      nearKeys[i] = _NearKey(identifiers[i]);
      nearlyEqual.Add(nearKeys[i], i);
      if (quality.example.empty()) quality.example = identifiers[i];
    }
  }
  quality.duplicates = std::move(equal).Shared();
  quality.nearDuplicates = std::move(nearlyEqual).Shared();
  return quality;
}
