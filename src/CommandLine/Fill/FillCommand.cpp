#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>

#include "CommandLine/ChoiceMessages.h"
#include "CommandLine/ClassInput.h"
#include "CommandLine/Commands.h"
#include "CommandLine/Fill/FillReport.h"
#include "CommandLine/Findings/FindingReport.h"
#include "CommandLine/GradebookInput.h"
#include "CommandLine/OutputFile.h"
#include "CommandLine/TerminalText.h"
#include "Export/ExportChoices.h"
#include "Filters/GX_StdCsv/Session.h"
#include "Systems/LearningSystem.h"

namespace {

void _RefuseToOverwrite(const FillOptions& options) {
  if (options.dryRun) return;
  if (IsSameFile(options.classFile, options.outputFile)) {
    throw CommandError(kExitUsage, "the output would overwrite the class file; choose another name with -o");
  }
  if (IsSameFile(options.gradebook, options.outputFile)) {
    throw CommandError(kExitUsage,
                       "the output would overwrite the downloaded gradebook; choose another name with -o");
  }
}

ExportChoices _Choices(const FillOptions& options, const Gradebook& gradebook) {
  ExportChoices choices;
  choices.format = options.format;
  if (choices.format == nullptr) {
    choices.format = FindFormat(std::string_view(gradebook.system->formats.front().key));
  }
  choices.assignmentIDs = options.assignmentIDs;
  choices.identifier = options.identifier.value_or(choices.format->defaultUserIDField);
  choices.dialect = Dialect::kFilled;
  return choices;
}

std::string _ColumnList(const Gradebook& gradebook) {
  std::string text;
  for (size_t column = 0; column < gradebook.columns.size(); ++column) {
    if (gradebook.columns[column].role != ColumnRole::kItem) continue;
    text += "\n  " + PrintableUtf8(std::string(gradebook.Heading(column)));
  }
  return text.empty() ? "The gradebook has no columns that can be filled."
                      : "The columns that can be filled are:" + text;
}

void _RequireTitles(const FillPlan& plan, const MatchChoices& choices) {
  if (plan.match.titleFaults.empty()) return;
  using Kind = ChosenTitleFault::Kind;
  const ChosenTitleFault& fault = plan.match.titleFaults.front();
  const auto& [id, title] = choices.titles[fault.choice];
  const std::string assignment = "the assignment " + std::to_string(id);
  const std::string column = "the column '" + PrintableUtf8(title) + "'";
  const std::string columns = ". " + _ColumnList(*plan.gradebook);
  switch (fault.kind) {
    case Kind::kUnknownAssignment:
      throw CommandError(kExitUsage, "--map names " + assignment + ", which is not among those to fill. " +
                                         AssignmentList(plan.subject->texts));
    case Kind::kSeveralAssignments:
      throw CommandError(kExitUsage, "--map has more than one meaning for " + assignment);
    case Kind::kUnknownTitle:
      throw CommandError(kExitUsage, "the gradebook does not have " + column + columns);
    case Kind::kSeveralColumns:
      throw CommandError(
          kExitUsage,
          column + " stands in the gradebook several times; name one by its whole heading" + columns);
    case Kind::kReadOnly:
      throw CommandError(kExitUsage, column + " of the gradebook cannot be filled" + columns);
    case Kind::kTakenColumn:
      throw CommandError(kExitUsage, "--map gives " + column + " to several assignments");
  }
}

// The fields whose values stand in the gradebook, for whoever chose another.
std::string _FieldsInGradebook(const ExportSubject& subject, const Gradebook& gradebook) {
  std::string text;
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (!field.CanIdentify() || field.userIDField == subject.identifier) continue;
    ExportSubject other = subject;
    other.identifier = field.userIDField;
    const GradebookMatch match = MatchGradebook(other, gradebook, {});
    const auto found =
        std::ranges::count_if(match.memberOf, [](size_t member) { return member != GradebookMatch::kNone; });
    if (found > 0) text += "\n  -u " + std::string(field.key) + " finds " + std::to_string(found);
  }
  return text.empty() ? text : "\nOther fields find students of the class:" + text;
}

void _Write(const FillPlan& plan, const std::string& path) {
  TellOutcome(path, IsStandardOutput(path) ? WriteFill(plan, stdout) : WriteFill(plan, path));
}

}  // namespace

ExitStatus RunFill(const FillOptions& options) {
  _RefuseToOverwrite(options);
  ClassFile file = ReadClassInput(options.classFile);
  const Gradebook gradebook = ReadGradebookInput(options.gradebook, options.format);
  const ExportChoices choices = _Choices(options, gradebook);
  const std::unique_ptr<Session> session = MakeSession(*choices.format);
  *session->GetClass() = std::move(file.record);
  const AppliedChoices applied = Apply(choices, session.get());
  if (applied.fault != ChoiceFault::kNone)
    throw CommandError(kExitUsage, ChoiceFaultText(applied, {session->Class(), file.originals}));

  const ExportSubject subject = MakeExportSubject(choices, *session, file.originals);
  const FillPlan plan = PlanFill(subject, gradebook, options.choices);
  _RequireTitles(plan, options.choices);
  FillReport report{&options, &plan, file.name};
  const bool isTrouble = plan.IsNothingMatched() || plan.IsSomethingLeftOut() || HasTrouble(plan.findings);
  if (isTrouble) report.status = kExitTrouble;
  report.isWritten = !options.dryRun && !plan.IsNothingMatched();
  if (report.isWritten) _Write(plan, options.outputFile);
  TellFill(plan);
  for (const Finding& finding : plan.findings) {
    if (IsTrouble(finding.consequence)) Warn(FindingBlock(finding, subject));
  }
  if (!plan.match.HasStudents()) {
    Warn("no student of the class was found in the gradebook" + _FieldsInGradebook(subject, gradebook));
  }
  if (plan.IsNothingMatched()) Warn("no result has a place in the gradebook; nothing was written");
  if (options.json) WriteStandardOutput(FillJson(report));
  return report.status;
}
