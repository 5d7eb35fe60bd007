#include "CommandLine/Arguments/ReportArguments.h"

#include <CLI/CLI.hpp>

#include "CommandLine/Arguments/ChoiceArguments.h"
#include "CommandLine/Arguments/KeyLists.h"
#include "CommandLine/Arguments/Suggestion.h"

namespace {

const char* const kReportGroup = "Options of the detailed report";

struct ReportColumns {
  const char* key;
  bool responses;
  bool points;
};
constexpr ReportColumns kReportColumns[] = {
    {"responses", true, false}, {"points", false, true}, {"both", true, true}};

uint32_t _ParseReportField(const std::string& key) {
  const qz::StudentField* field = qz::FindStudentField(key);
  if (field != nullptr) return field->reportBit;
  FailUsage(UnknownText(
      "unknown student field '" + key + "' for --fields", key, ReportFieldKeys(),
      "the fields are " + Listed(ReportFieldKeys()) + "; or it is one of the words all and none"));
}

uint32_t _ParseReportFields(const std::string& list) {
  uint32_t mask = 0;
  if (list == "none") return mask;
  if (list == "all") {
    for (const qz::StudentField& field : qz::kStudentFields) mask |= field.reportBit;
    return mask;
  }
  for (const std::string& key : Split(list, ',')) mask |= _ParseReportField(key);
  return mask;
}

const ReportColumns& _ParseReportColumns(const std::string& text) {
  for (const ReportColumns& columns : kReportColumns) {
    if (columns.key == text) return columns;
  }
  FailUsage("unknown value '" + text + "' for --columns; it takes responses, points or both");
}

std::string _DefaultFields() {
  return Join(
      KeysOf(qz::kStudentFields,
             [](const qz::StudentField& row) { return (row.reportBit & qz::kDefaultReportFields) != 0; }),
      ",");
}

std::string _DefaultColumns() {
  return Listed(KeysOf(kReportColumns, [](const ReportColumns& row) {
    const auto& options = qz::kDefaultReportOptions;
    return row.responses == options[qz::kReportResponses] && row.points == options[qz::kReportPointsEarned];
  }));
}

}  // namespace

void DefineReportOptions(CLI::App* command, ReportArguments* arguments) {
  arguments->fields = _DefaultFields();
  arguments->columns = _DefaultColumns();
  command->option_defaults()->group(kReportGroup);
  command
      ->add_option("--fields", arguments->fields,
                   "The student fields to write, separated by commas; or all, or none. Without it: " +
                       arguments->fields + ".")
      ->type_name("LIST");
  command
      ->add_option("--columns", arguments->columns,
                   "What to write of each question: responses, points, or both. Without it: " +
                       arguments->columns + ".")
      ->type_name("WHAT");
  command->add_flag("--answer-key", arguments->answerKey, "Add a line with the correct answers.");
  command->add_flag("--points-possible", arguments->pointsPossible,
                    "Add a line with the points that each question is worth.");
  command->add_flag("--no-asterisks", arguments->noAsterisks,
                    "Do not mark fully correct responses with an asterisk.");
}

void RequireReport(const CLI::App& command, const FormatRow& format) {
  if (format.IsReport()) return;
  for (const CLI::Option* option : command.get_options()) {
    if (option->get_group() != kReportGroup || option->count() == 0) continue;
    FailUsage(option->get_name() + " applies to the format " + FindFormat(kDetailedResultsFormat)->key +
              " only");
  }
}

ReportChoices MakeReportChoices(const ReportArguments& arguments) {
  const ReportColumns& columns = _ParseReportColumns(arguments.columns);
  if (arguments.answerKey && !columns.responses) {
    Warn("--answer-key has no effect without the responses; see --columns");
  }
  if (arguments.pointsPossible && !columns.points) {
    Warn("--points-possible has no effect without the points; see --columns");
  }
  ReportChoices report;
  report.fields = _ParseReportFields(arguments.fields);
  report.options[qz::kReportResponses] = columns.responses;
  report.options[qz::kReportPointsEarned] = columns.points;
  report.options[qz::kReportAnswerKey] = arguments.answerKey;
  report.options[qz::kReportPointsPossible] = arguments.pointsPossible;
  report.options[qz::kReportAsterisks] = columns.responses && !arguments.noAsterisks;
  return report;
}
