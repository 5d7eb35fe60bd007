#include <CLI/CLI.hpp>

#include "CommandLine/Arguments/BatchArguments.h"
#include "CommandLine/Arguments/ChoiceArguments.h"
#include "CommandLine/Arguments/CommandSyntax.h"
#include "CommandLine/Arguments/KeyLists.h"
#include "CommandLine/Arguments/ReportArguments.h"
#include "CommandLine/ClassInput.h"

namespace {

const char* const kExportExamples =
    "Examples:\n"
    "  gxexport export -f canvas -o grades.csv class.xml\n"
    "      all assignments, for Canvas\n"
    "  gxexport export -f moodle -u custom-2 -a 301,302 -o grades.csv class.xml\n"
    "      two assignments, with the identifier taken from the second custom field\n"
    "  gxexport export -f detailed -a 301 --columns both --answer-key class.xml\n"
    "      every answer to one assignment, on the screen";

struct ExportArguments {
  std::vector<std::string> classFiles;
  ChoiceArguments choices;
  std::string output = kStandardStream;
  bool force = false;
  bool strict = false;
  bool json = false;
  BatchArguments batch;
  ReportArguments report;
};

std::string _Footer() {
  return ChoicesFooter() + "\nStudent fields for --fields:\n" + IndentedList(ReportFieldKeys()) + "\n" +
         kExportExamples;
}

void _DefineOptions(CLI::App* command, ExportArguments* arguments) {
  DefineFormat(command, &arguments->choices.format)->required();
  DefineAssignments(command, &arguments->choices.assignments);
  DefineIdentifier(command, &arguments->choices.identifier);
  DefineDialect(command, &arguments->choices.dialect);
  DefineDelimiter(command, &arguments->choices.delimiter);
  DefineOutput(command, &arguments->output);
  DefineNoQuotes(command, &arguments->choices.noQuotes);
  command->add_flag("--force", arguments->force,
                    "Export even if no student has an identifier, or if students share one.");
  command->add_flag("--strict", arguments->strict,
                    "Export nothing if the check finds trouble; see 'gxexport check'.");
  command->add_flag("--json", arguments->json,
                    "Tell what was written and found as JSON on standard output, for programs.");
  DefineBatchOptions(command, &arguments->batch);
  DefineReportOptions(command, &arguments->report);
}

ExportOptions _MakeOptions(const CLI::App& command, const ExportArguments& arguments) {
  ExportOptions options;
  RequireReport(command, ParseFormat(arguments.choices.format));
  options.choices = MakeChoices(arguments.choices);
  options.choices.report = MakeReportChoices(arguments.report);
  options.classFiles = arguments.classFiles;
  options.outputFile = RequireFileName("-o", arguments.output);
  options.force = arguments.force;
  options.strict = arguments.strict;
  options.json = arguments.json;
  SetBatchOptions(arguments.batch, command.count("--output") > 0, &options);
  return options;
}

}  // namespace

CommandSyntax DefineExport(CLI::App* program) {
  CLI::App* command = program->add_subcommand("export", "Writes a gradebook file or the detailed report.");
  const auto arguments = std::make_shared<ExportArguments>();
  DefineClassFiles(command, &arguments->classFiles);
  _DefineOptions(command, arguments.get());
  command->footer(_Footer());
  return {command, [command, arguments] { return _MakeOptions(*command, *arguments); }};
}
