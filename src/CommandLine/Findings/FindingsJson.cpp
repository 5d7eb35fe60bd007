#include "CommandLine/Findings/FindingsJson.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

#include "Systems/FindingTexts.h"

namespace {

using Json = nlohmann::ordered_json;

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
  Json places = Json::array();
  for (const FindingPlace& place : finding.places) {
    places.push_back({{"student", _StudentJson(place.student, subject.texts)},
                      {"assignment", _AssignmentJson(place.assignment, subject.texts)},
                      {"detail", place.detail}});
  }
  return {{"code", finding.code},         {"consequence", ConsequenceKey(finding.consequence)},
          {"what", std::move(text.what)}, {"advice", std::move(text.advice)},
          {"places", std::move(places)},  {"arguments", finding.arguments}};
}

}  // namespace

Json FindingsJson(const Findings& findings, const ExportSubject& subject) {
  Json json = Json::array();
  for (const Finding& finding : findings) json.push_back(_FindingJson(finding, subject));
  return json;
}

Json ConsequenceCountsJson(const Findings& findings) {
  Json json;
  for (const Consequence consequence : kConsequences) {
    json[ConsequenceKey(consequence)] =
        std::count_if(findings.begin(), findings.end(),
                      [consequence](const Finding& finding) { return finding.consequence == consequence; });
  }
  return json;
}
