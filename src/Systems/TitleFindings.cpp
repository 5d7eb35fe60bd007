#include <algorithm>

#include "Common/KeyGroups.h"
#include "Systems/CommonFindings.h"

std::vector<FindingPlace> EqualTitles(const ExportCheck& check, const std::vector<std::string>& titles) {
  KeyGroups groups(titles.size());
  for (size_t i = 0; i < titles.size(); ++i) {
    if (!titles[i].empty()) groups.Add(titles[i], check.subject.assignments[i]);
  }
  std::vector<FindingPlace> places;
  for (const std::vector<size_t>& group : std::move(groups).Shared()) {
    for (const size_t assignment : group) places.push_back({.assignment = assignment});
  }
  return places;
}

void FindTitleFaults(ExportCheck* check) {
  const CheckRules& rules = check->rules;
  const FileTexts& texts = check->texts;
  const TextPlaces& places = texts.inTitles;
  check->Add("title-comma", rules.extraSeparator, places.separators);
  check->Add("title-replaced", Consequence::kChanged, places.replaced);
  check->Add("title-quote", Consequence::kNote, places.quotes);
  if (rules.titleAccents) check->Add("title-accents", *rules.titleAccents, places.accents);

  // What the system reads of a title.
  const auto plain = [&](std::string_view title) {
    return rules.plainTitle != nullptr ? rules.plainTitle(title) : title;
  };
  std::vector<std::string> read;
  for (const std::string& title : texts.titles) read.emplace_back(plain(title));
  check->Add("title-equal", rules.titleEqual, EqualTitles(*check, read));
  check->Add("title-empty", rules.titleEmpty,
             check->Titles([&](std::string_view title) { return plain(title).empty(); }));
  if (!texts.titlesStandAlone) return;
  check->Add("title-heading", rules.titleHeading, check->Titles([&](std::string_view title) {
    return std::ranges::find(texts.headings, plain(title)) != texts.headings.end() ||
           std::ranges::find(rules.headings, plain(title)) != rules.headings.end();
  }));
}
