#include "CommandLine/Inspect/Inspection.h"
#include "CommandLine/TerminalText.h"
#include "Common/number.h"

namespace {

using Rows = std::vector<std::vector<std::string>>;

constexpr int32_t kDecimals = 2;
constexpr const char* kNothing = "-";

// A record's text, or what stands in its place.
std::string _Cell(const std::string& text) {
  return text.empty() ? kNothing : PrintableUtf8(text);
}

std::string _Points(double points) {
  return PlainNumber(points, kDecimals);
}

std::string _MeanText(const ScoreStatistics& scores) {
  return scores.figures ? _Points(scores.figures->mean) : kNothing;
}

std::string _RangeText(const ScoreStatistics& scores) {
  if (!scores.figures) return kNothing;
  const std::string low = _Points(scores.figures->minimum);
  const std::string high = _Points(scores.figures->maximum);
  return low == high ? low : low + " to " + high;
}

std::string _Summary(const ClassInspection& inspection) {
  Rows rows;
  if (!inspection.file.name.empty()) rows.push_back({"Class:", PrintableUtf8(inspection.file.name)});
  rows.push_back({"Students:", std::to_string(inspection.file.record.students.size())});
  rows.push_back({"Assignments:", std::to_string(inspection.file.record.assignments.size())});
  return AlignColumns(rows);
}

std::string _AssignmentTable(const ClassInspection& inspection) {
  const qz::ClassTexts texts = inspection.file.Texts();
  Rows rows = {{"  ID", "NAME", "DATE", "POINTS", "QUESTIONS", "RESULTS", "MEAN", "RANGE"}};
  for (size_t i = 0; i < inspection.scores.size(); ++i) {
    const qz::AssignmentRecord& assignment = texts.Record().assignments[i];
    const ScoreStatistics& scores = inspection.scores[i];
    rows.push_back({"  " + std::to_string(assignment.id), _Cell(texts.AssignmentName(i)),
                    _Cell(texts.Assignment(i, qz::AssignmentText::kDate)),
                    std::to_string(assignment.pointsPossible), std::to_string(assignment.questions.size()),
                    std::to_string(scores.results), _MeanText(scores), _RangeText(scores)});
  }
  return AlignColumns(rows);
}

std::string _FieldTable(const ClassInspection& inspection) {
  Rows rows = {{"  FIELD", "TITLE", "FILLED", "DUPLICATES", "NEAR-DUPLICATES", "EXAMPLE"}};
  for (const auto& [field, quality] : inspection.fields) {
    rows.push_back({std::string("  ") + field->key, _Cell(inspection.file.Texts().FieldTitle(*field)),
                    std::to_string(quality.Filled()) + " of " + std::to_string(quality.students),
                    std::to_string(quality.duplicates.size()), std::to_string(quality.nearDuplicates.size()),
                    _Cell(quality.example)});
  }
  return AlignColumns(rows);
}

// Each group of near-duplicates, with the students who have them.
std::string _NearDuplicates(const ClassInspection& inspection) {
  const qz::ClassTexts texts = inspection.file.Texts();
  std::string lines;
  for (const auto& [field, quality] : inspection.fields) {
    for (const std::vector<size_t>& group : quality.nearDuplicates) {
      std::vector<std::string> names;
      names.reserve(group.size());
      for (const size_t student : group) {
        names.push_back('"' + PrintableUtf8(texts.Student(student, *field)) + "\" (" +
                        PrintableUtf8(texts.StudentName(student)) + ")");
      }
      lines += std::string("  ") + field->key + ": " + Join(names, ", ") + "\n";
    }
  }
  return lines.empty() ? ""
                       : "\nNear-duplicates, equal but for letter case, blanks or leading zeros:\n" + lines;
}

std::string _StudentTable(const qz::ClassTexts& texts) {
  Rows rows = {{"  ID", "NAME"}};
  for (size_t i = 0; i < texts.Record().students.size(); ++i) {
    rows.push_back({"  " + std::to_string(texts.Record().students[i].id), _Cell(texts.StudentName(i))});
  }
  return AlignColumns(rows);
}

}  // namespace

std::string InspectionText(const ClassInspection& inspection) {
  return _Summary(inspection) +
         "\nAssignments (-a), with the mean and the range of the points that students have:\n" +
         _AssignmentTable(inspection) +
         "\nStudent fields that can be the identifier (-u): for how many students each is filled, how many\n"
         "values several students share, and how many are nearly another's:\n" +
         _FieldTable(inspection) + _NearDuplicates(inspection) + "\nStudents:\n" +
         _StudentTable(inspection.file.Texts());
}
