#include <nlohmann/json.hpp>

#include "CommandLine/ClassInput.h"
#include "CommandLine/Commands.h"
#include "CommandLine/OutputFile.h"
#include "CommandLine/TerminalText.h"
#include "Common/QZData/StudentFields.h"
#include "Common/RomanText.h"
#include "Export/IdentifierCheck.h"

namespace {

using Json = nlohmann::ordered_json;
using Rows = std::vector<std::vector<std::string>>;

// How well a student field serves as the identifier, in numbers of students.
struct FieldUse {
  const qz::StudentField* field;
  size_t empty = 0;
  size_t shared = 0;  // with an identifier that another student has, too
};

FieldUse _UseOf(const qz::ClassRecord& record, const qz::StudentField& field) {
  const IdentifierCheck check = CheckIdentifiers(record, field.userIDField);
  FieldUse use{&field, check.empty.size()};
  for (const std::vector<size_t>& group : check.duplicates) {
    if (!field.Value(record.students[group.front()]).empty()) use.shared += group.size();
  }
  return use;
}

std::vector<FieldUse> _FieldUses(const qz::ClassRecord& record) {
  std::vector<FieldUse> uses;
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (field.CanIdentify()) uses.push_back(_UseOf(record, field));
  }
  return uses;
}

std::string _StudentTable(const qz::ClassRecord& record) {
  Rows rows = {{"  ID", "NAME"}};
  for (const qz::StudentRecord& student : record.students) {
    rows.push_back(
        {"  " + std::to_string(student.id), PrintableRoman(student.firstName + " " + student.lastName)});
  }
  return AlignColumns(rows);
}

std::string _FieldTable(const qz::ClassRecord& record) {
  Rows rows = {{"  FIELD", "TITLE", "EMPTY", "SHARED"}};
  for (const FieldUse& use : _FieldUses(record)) {
    rows.push_back({std::string("  ") + use.field->key, PrintableRoman(use.field->Title(record)),
                    std::to_string(use.empty), std::to_string(use.shared)});
  }
  return AlignColumns(rows);
}

std::string _AssignmentTable(const qz::ClassRecord& record) {
  Rows rows = {{"  ID", "NAME", "DATE", "POINTS", "QUESTIONS", "RESULTS"}};
  for (const qz::AssignmentRecord& assignment : record.assignments) {
    rows.push_back({"  " + std::to_string(assignment.id), PrintableRoman(assignment.name),
                    PrintableRoman(assignment.date), std::to_string(assignment.pointsPossible),
                    std::to_string(assignment.questions.size()), std::to_string(assignment.results.size())});
  }
  return AlignColumns(rows);
}

std::string _AsText(const qz::ClassRecord& record) {
  return "Students: " + std::to_string(record.students.size()) + "\n" + _StudentTable(record) +
         "\nStudent fields that can be the identifier (-u), with the number of students who have none\n"
         "or who share theirs with another student; a field without any of these works best:\n" +
         _FieldTable(record) + "\nAssignments: " + std::to_string(record.assignments.size()) + "\n" +
         _AssignmentTable(record);
}

Json _Texts(const std::array<std::string, 3>& texts) {
  Json array = Json::array();
  for (const std::string& text : texts) array.push_back(Utf8FromRoman(text));
  return array;
}

Json _StudentJson(const qz::StudentRecord& student) {
  Json json = {{"id", student.id}};
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (field.recordName != nullptr) json[field.recordName] = Utf8FromRoman(field.Value(student));
  }
  json["custom"] = _Texts(student.custom);
  return json;
}

Json _AssignmentJson(const qz::AssignmentRecord& assignment) {
  return {{"id", assignment.id},
          {"name", Utf8FromRoman(assignment.name)},
          {"assignmentID", Utf8FromRoman(assignment.assignmentID)},
          {"category", Utf8FromRoman(assignment.category)},
          {"onlineID", Utf8FromRoman(assignment.onlineID)},
          {"date", Utf8FromRoman(assignment.date)},
          {"pointsPossible", assignment.pointsPossible},
          {"questionCount", assignment.questions.size()},
          {"resultCount", assignment.results.size()}};
}

Json _FieldJson(const qz::ClassRecord& record, const FieldUse& use) {
  return {{"field", use.field->key},
          {"title", Utf8FromRoman(use.field->Title(record))},
          {"empty", use.empty},
          {"shared", use.shared}};
}

std::string _AsJson(const qz::ClassRecord& record) {
  Json students = Json::array();
  for (const qz::StudentRecord& student : record.students) students.push_back(_StudentJson(student));
  Json assignments = Json::array();
  for (const qz::AssignmentRecord& row : record.assignments) assignments.push_back(_AssignmentJson(row));
  Json fields = Json::array();
  for (const FieldUse& use : _FieldUses(record)) fields.push_back(_FieldJson(record, use));
  const Json summary = {{"customLabels", _Texts(record.customLabels)},
                        {"students", std::move(students)},
                        {"assignments", std::move(assignments)},
                        {"identifierFields", std::move(fields)}};
  return summary.dump(2) + "\n";
}

}  // namespace

ExitStatus RunInspect(const InspectOptions& options) {
  const qz::ClassRecord record = ReadClassInput(options.classFile).record;
  WriteStandardOutput(options.json ? _AsJson(record) : _AsText(record));
  return kExitDone;
}
