
#include "CommandLine/Inspect/Inspection.h"
#include "CommandLine/Json.h"

namespace {

constexpr int kInspectVersion = 1;

// Groups of students by their ids.
Json _Groups(const qz::ClassRecord& record, const std::vector<std::vector<size_t>>& groups) {
  Json array = Json::List();
  for (const std::vector<size_t>& group : groups) {
    Json ids = Json::List();
    for (const size_t student : group) ids.Add(record.students[student].id);
    array.Add(std::move(ids));
  }
  return array;
}

Json _Labels(const qz::ClassTexts& texts) {
  Json array = Json::List();
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (field.title == nullptr) array.Add(texts.FieldTitle(field));
  }
  return array;
}

Json _Scores(const ScoreStatistics& scores) {
  const std::optional<ScoreFigures>& figures = scores.figures;
  return {{"count", scores.results},
          {"mean", figures ? Json(figures->mean) : Json()},
          {"min", figures ? Json(figures->minimum) : Json()},
          {"max", figures ? Json(figures->maximum) : Json()}};
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
    if (!field.isSecret) json.Set(field.key, texts.Student(position, field));
  }
  return json;
}

Json _Assignments(const qz::ClassTexts& texts, const std::vector<ScoreStatistics>& scores) {
  Json array = Json::List();
  for (size_t i = 0; i < scores.size(); ++i) array.Add(_Assignment(texts, i, scores[i]));
  return array;
}

Json _Fields(const qz::ClassTexts& texts, const std::vector<FieldQuality>& fields) {
  Json array = Json::List();
  for (const FieldQuality& field : fields) array.Add(_Field(texts, field));
  return array;
}

Json _Students(const qz::ClassTexts& texts) {
  Json array = Json::List();
  for (size_t i = 0; i < texts.Record().students.size(); ++i) array.Add(_Student(texts, i));
  return array;
}

}  // namespace

std::string InspectionJson(const ClassInspection& inspection) {
  const qz::ClassTexts texts = inspection.file.Texts();
  const Json json = {{"version", kInspectVersion},
                     {"className", inspection.file.name},
                     {"customLabels", _Labels(texts)},
                     {"assignments", _Assignments(texts, inspection.scores)},
                     {"identifierFields", _Fields(texts, inspection.fields)},
                     {"students", _Students(texts)}};
  return json.Text();
}
