#include "Common/KeyGroups.h"
#include "Systems/CommonFindings.h"

namespace {

using PlaceList = std::vector<FindingPlace> TextPlaces::*;

// The places of all kinds of text, a student named once.
std::vector<FindingPlace> _Everywhere(const FileTexts& texts, PlaceList list) {
  std::vector<FindingPlace> places = texts.inTitles.*list;
  KeyIndex<uint64_t> named((texts.names.*list).size());
  for (const TextPlaces* kind : {&texts.names, &texts.identifiers, &texts.answers}) {
    for (const FindingPlace& place : kind->*list) {
      const size_t known = named.Count();
      if (named.Add(place.student) == known) places.push_back(place);
    }
  }
  return places;
}

}  // namespace

void FindTextFaults(ExportCheck* check) {
  const CheckRules& rules = check->rules;
  const FileTexts& texts = check->texts;
  check->Add("name-comma", rules.extraSeparator, texts.names.separators);
  check->AddForResults("name-replaced", rules.nameReplaced, texts.names.replaced);
  check->AddForResults("name-quote", rules.nameQuote, texts.names.quotes);
  check->Add("answer-replaced", Consequence::kChanged, texts.answers.replaced);
  check->Add("answer-quote", Consequence::kNote, texts.answers.quotes);
  if (rules.accents) check->Add("accents", *rules.accents, _Everywhere(texts, &TextPlaces::accents));
  check->Add("formula", Consequence::kNote, _Everywhere(texts, &TextPlaces::formulas));
}
