#include <nlohmann/json.hpp>

#include "CommandLine/Inspect/Inspection.h"

namespace {

using Json = nlohmann::ordered_json;

constexpr int kVersion = 1;

// Groups of students by their ids.
Json _Groups(const qz::ClassRecord& record, const std::vector<std::vector<size_t>>& groups) {
  Json array = Json::array();
  for (const std::vector<size_t>& group : groups) {
    Json ids = Json::array();
    for (const size_t student : group) ids.push_back(record.students[student].id);
    array.push_back(std::move(ids));
  }
  return array;
}

Json _Labels(const qz::ClassTexts& texts) {
  Json array = Json::array();
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (field.title == nullptr) array.push_back(texts.FieldTitle(field));
  }
  return array;
}

Json _Scores(const ScoreStatistics& scores) {
  Json json = {{"count", scores.results}, {"mean", nullptr}, {"min", nullptr}, {"max", nullptr}};
  if (scores.figures) {
    json["mean"] = scores.figures->mean;
    json["min"] = scores.figures->minimum;
    json["max"] = scores.figures->maximum;
  }
  return json;
}

Json _Assignment(const qz::ClassTexts& texts, size_t position, const ScoreStatistics& scores) {
  const qz::AssignmentRecord& assignment = texts.Record().assignments[position];
  const auto text = [&](qz::AssignmentText which) { return texts.Assignment(position, which); };
  return {{"id", assignment.id},
          {"name", text(qz::AssignmentText::kName)},
          {"assignmentID", text(qz::AssignmentText::kAssignmentID)},
          {"category", text(qz::AssignmentText::kCategory)},
          {"onlineID", text(qz::AssignmentText::kOnlineID)},
          {"date", text(qz::AssignmentText::kDate)},
          {"pointsPossible", assignment.pointsPossible},
          {"questionCount", assignment.questions.size()},
          {"resultCount", assignment.results.size()},
          {"scores", _Scores(scores)}};
}

Json _Field(const qz::ClassTexts& texts, const FieldQuality& field) {
  const IdentifierQuality& quality = field.quality;
  return {{"field", field.field->key},
          {"title", texts.FieldTitle(*field.field)},
          {"filled", quality.Filled()},
          {"empty", quality.empty.size()},
          {"duplicates", _Groups(texts.Record(), quality.duplicates)},
          {"nearDuplicates", _Groups(texts.Record(), quality.nearDuplicates)},
          {"example", quality.example}};
}

Json _Student(const qz::ClassTexts& texts, size_t position) {
  Json json = {{"id", texts.Record().students[position].id}};
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (!field.isSecret) json[field.key] = texts.Student(position, field);
  }
  return json;
}

}  // namespace

std::string InspectionJson(const ClassInspection& inspection) {
  const qz::ClassTexts texts = inspection.file.Texts();
  Json json = {
      {"version", kVersion},          {"className", inspection.file.name}, {"customLabels", _Labels(texts)},
      {"assignments", Json::array()}, {"identifierFields", Json::array()}, {"students", Json::array()}};
  for (size_t i = 0; i < inspection.scores.size(); ++i) {
    json["assignments"].push_back(_Assignment(texts, i, inspection.scores[i]));
  }
  for (const FieldQuality& field : inspection.fields)
    json["identifierFields"].push_back(_Field(texts, field));
  for (size_t i = 0; i < texts.Record().students.size(); ++i) {
    json["students"].push_back(_Student(texts, i));
  }
  return json.dump(2) + "\n";
}
