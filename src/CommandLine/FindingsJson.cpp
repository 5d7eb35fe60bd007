#include "CommandLine/FindingsJson.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "Systems/FindingTexts.h"

namespace {

using Json = nlohmann::ordered_json;

Json _PlaceJson(const FindingPlace& place, const qz::ClassTexts& texts) {
  Json json = Json::object();
  if (place.student != FindingPlace::kNone) {
    const qz::StudentRecord& student = texts.Record().students[place.student];
    json["student"] = {{"id", student.id}, {"name", texts.StudentName(place.student)}};
  }
  if (place.assignment != FindingPlace::kNone) {
    const qz::AssignmentRecord& assignment = texts.Record().assignments[place.assignment];
    json["assignment"] = {{"id", assignment.id}, {"name", texts.AssignmentName(place.assignment)}};
  }
  if (!place.detail.empty()) json["detail"] = place.detail;
  return json;
}

Json _FindingJson(const Finding& finding, const ExportSubject& subject) {
  FindingText text = DescribeFinding(finding, subject, TextLanguage::kEnglish);
  Json places = Json::array();
  for (const FindingPlace& place : finding.places) places.push_back(_PlaceJson(place, subject.texts));
  return {{"code", finding.code},
          {"consequence", ConsequenceKey(finding.consequence)},
          {"text", std::move(text.what)},
          {"advice", std::move(text.advice)},
          {"places", std::move(places)}};
}

}  // namespace

Json FindingsJson(const Findings& findings, const ExportSubject& subject) {
  Json json = Json::array();
  for (const Finding& finding : findings) json.push_back(_FindingJson(finding, subject));
  return json;
}
