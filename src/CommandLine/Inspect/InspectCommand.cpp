#include <utility>

#include "CommandLine/ClassInput.h"
#include "CommandLine/Commands.h"
#include "CommandLine/Inspect/Inspection.h"
#include "CommandLine/OutputFile.h"
#include "Filters/GX_StdCsv/ResultsJoin.h"

namespace {

std::vector<FieldQuality> _JudgeFields(const qz::ClassTexts& texts) {
  std::vector<FieldQuality> fields;
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (field.CanIdentify()) fields.push_back({&field, JudgeIdentifiers(texts, field.userIDField)});
  }
  return fields;
}

std::vector<ScoreStatistics> _ComputeScores(const qz::ClassRecord& record) {
  std::vector<const qz::AssignmentRecord*> assignments;
  for (const qz::AssignmentRecord& assignment : record.assignments) assignments.push_back(&assignment);
  const ScoreTable table(record.students, assignments);
  std::vector<Scores> scores(assignments.size());
  for (size_t i = 0; i < record.students.size(); ++i) {
    for (const ScoreTable::Score& score : table.ScoresOf(i))
      scores[score.assignment].emplace_back(score.points);
  }
  std::vector<ScoreStatistics> statistics;
  statistics.reserve(scores.size());
  for (const Scores& ofAssignment : scores) statistics.push_back(ComputeStatistics(ofAssignment));
  return statistics;
}

}  // namespace

ExitStatus RunInspect(const InspectOptions& options) {
  ClassInspection inspection{ReadClassInput(options.classFile), {}, {}};
  inspection.fields = _JudgeFields(inspection.file.Texts());
  inspection.scores = _ComputeScores(inspection.file.record);
  WriteStandardOutput(options.json ? InspectionJson(inspection) : InspectionText(inspection));
  return kExitDone;
}
