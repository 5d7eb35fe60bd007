#include "CommandLine/Findings/FindingsJson.h"

#include <algorithm>
#include <utility>

#include "Systems/FindingTexts.h"

namespace {

constexpr Consequence kConsequences[] = {Consequence::kRefused, Consequence::kWrong, Consequence::kLost,
                                         Consequence::kChanged, Consequence::kNote};

Json _StudentJson(size_t student, const qz::ClassTexts& texts) {
  if (student == FindingPlace::kNone) return nullptr;
  return {{"id", texts.Record().students[student].id}, {"name", texts.StudentName(student)}};
}

Json _AssignmentJson(size_t assignment, const qz::ClassTexts& texts) {
  if (assignment == FindingPlace::kNone) return nullptr;
  return {{"id", texts.Record().assignments[assignment].id}, {"name", texts.AssignmentName(assignment)}};
}

Json _FindingJson(const Finding& finding, const ExportSubject& subject) {
  FindingText text = DescribeFinding(finding, subject, TextLanguage::kEnglish);
  Json places = Json::List();
  for (const FindingPlace& place : finding.places) {
    places.Add({{"student", _StudentJson(place.student, subject.texts)},
                {"assignment", _AssignmentJson(place.assignment, subject.texts)},
                {"detail", place.detail}});
  }
  return {{"code", finding.code},         {"consequence", ConsequenceKey(finding.consequence)},
          {"what", std::move(text.what)}, {"advice", std::move(text.advice)},
          {"places", std::move(places)},  {"arguments", finding.arguments}};
}

}  // namespace

Json FindingsJson(const Findings& findings, const ExportSubject& subject) {
  Json json = Json::List();
  for (const Finding& finding : findings) json.Add(_FindingJson(finding, subject));
  return json;
}

Json ConsequenceCountsJson(const Findings& findings) {
  Json json;
  for (const Consequence consequence : kConsequences) {
    json.Set(ConsequenceKey(consequence), std::ranges::count(findings, consequence, &Finding::consequence));
  }
  return json;
}
