#include "Common/KeyGroups.h"
#include "Systems/CommonFindings.h"
#include "Systems/IdentifierQuality.h"

namespace {

using Groups = std::vector<std::vector<size_t>>;

// Identifiers that are equal in the file, where they are not what they are in the class.
Groups _EqualInFile(const ExportSubject& subject) {
  std::vector<std::string> identifiers(subject.texts.Record().students.size());
  KeyGroups groups(identifiers.size());
  for (const size_t student : subject.students) {
    identifiers[student] = FileTexts::Identifier(subject, student);
    if (!identifiers[student].empty()) groups.Add(identifiers[student], student);
  }
  return std::move(groups).Shared();
}

std::vector<FindingPlace> _PlacesOf(const std::vector<size_t>& students) {
  std::vector<FindingPlace> places;
  places.reserve(students.size());
  for (const size_t student : students) places.push_back({.student = student});
  return places;
}

std::vector<FindingPlace> _PlacesOf(const Groups& groups) {
  std::vector<FindingPlace> places;
  for (const std::vector<size_t>& group : groups) {
    for (const size_t student : group) places.push_back({.student = student});
  }
  return places;
}

}  // namespace

void FindIdentifierFaults(ExportCheck* check) {
  const ExportSubject& subject = check->subject;
  if (subject.format->IsReport() || subject.dialect == Dialect::kFilled) return;

  const CheckRules& rules = check->rules;
  const IdentifierQuality quality = JudgeIdentifiers(subject.texts, subject.identifier);
  const TextPlaces& identifiers = check->texts.identifiers;
  const bool areAltered = !identifiers.replaced.empty() || !identifiers.quotes.empty();
  check->AddForResults("id-missing", rules.idMissing, _PlacesOf(quality.empty));
  check->AddForResults("id-duplicate", rules.idDuplicate,
                       _PlacesOf(areAltered ? _EqualInFile(subject) : quality.duplicates));
  check->Add("id-near-duplicate", Consequence::kNote, _PlacesOf(quality.nearDuplicates));
  check->AddForResults("id-replaced", rules.idReplaced, identifiers.replaced);
  check->AddForResults("id-quote", rules.idReplaced, identifiers.quotes);
  check->Add("id-comma", rules.extraSeparator, identifiers.separators);
  if (rules.idAccents) check->AddForResults("id-accents", *rules.idAccents, identifiers.accents);
}
