#include <CLI/CLI.hpp>

#include "CommandLine/Arguments/ChoiceArguments.h"
#include "CommandLine/Arguments/CommandSyntax.h"
#include "CommandLine/ClassInput.h"
#include "CommandLine/OutputFile.h"

namespace {

const char* const kFillExamples =
    "Examples:\n"
    "  gxexport fill --gradebook Grades.csv -o upload.csv class.xml\n"
    "      all results into the gradebook that was downloaded from Canvas\n"
    "  gxexport fill --gradebook Grades.csv --map \"301=Quiz 1\" --dry-run class.xml\n"
    "      tells only what would be filled, with one column named by hand";

struct FillArguments {
  std::string format;  // empty: not given
  std::vector<std::string> assignments;
  std::optional<std::string> identifier;
  std::vector<std::string> titles;
  FillOptions options;  // what needs no parsing
};

std::pair<int32_t, std::string> _ParseTitle(const std::string& text) {
  const size_t equals = text.find('=');
  if (equals == std::string::npos || equals + 1 == text.size()) {
    FailUsage("'" + text + "' names no column; --map takes ID=TITLE, such as 301=\"Quiz 1\"");
  }
  return {ParseAssignment(text.substr(0, equals), "--map"), text.substr(equals + 1)};
}

void _DefineChoices(CLI::App* command, FillArguments* arguments) {
  command
      ->add_option("--gradebook", arguments->options.gradebook,
                   "The gradebook file that was downloaded from the learning system.")
      ->required()
      ->type_name("FILE");
  DefineFormat(command, &arguments->format);
  DefineAssignments(command, &arguments->assignments);
  DefineIdentifier(command, &arguments->identifier);
  command
      ->add_option("--map", arguments->titles,
                   "The column that an assignment belongs to, where their titles differ; may be given "
                   "several times.")
      ->type_name("ID=TITLE")
      ->allow_extra_args(false);
}

void _DefineFilling(CLI::App* command, FillOptions* options) {
  command->add_flag("--match-names", options->choices.matchNames,
                    "Recognise students by their names where ids fail, if nobody else has the name.");
  command->add_flag("--only-empty", options->choices.onlyEmpty, "Leave scores that are there.");
  command->add_flag("--new-columns", options->choices.newColumns,
                    "Add columns for the assignments that have none.");
  command->add_flag("--dry-run", options->dryRun, "Tell what would be filled, and write nothing.");
  DefineOutput(command, &options->outputFile);
  command->add_flag("--json", options->json,
                    "Tell what was filled as JSON on standard output, for programs.");
}

// The data have standard output to themselves.
void _CheckJson(const FillOptions& options) {
  if (!options.json || options.dryRun || !IsStandardOutput(options.outputFile)) return;
  FailUsage("--json needs the name of a file with -o, or --dry-run");
}

FillOptions _MakeOptions(const FillArguments& arguments) {
  FillOptions options = arguments.options;
  RequireFileName("--gradebook", options.gradebook);
  RequireFileName("-o", options.outputFile);
  if (!arguments.format.empty()) options.format = &ParseFormat(arguments.format);
  if (arguments.identifier) options.identifier = ParseIdentifier(*arguments.identifier);
  options.assignmentIDs = ParseAssignments(arguments.assignments);
  for (const std::string& title : arguments.titles) options.choices.titles.push_back(_ParseTitle(title));
  _CheckJson(options);
  return options;
}

}  // namespace

CommandSyntax DefineFill(CLI::App* program) {
  CLI::App* command = program->add_subcommand("fill", "Fills the results into a downloaded gradebook.");
  const auto arguments = std::make_shared<FillArguments>();
  arguments->options.outputFile = kStandardStream;
  DefineClassFile(command, &arguments->options.classFile);
  _DefineChoices(command, arguments.get());
  _DefineFilling(command, &arguments->options);
  command->footer(ChoicesFooter() + "\n" + kFillExamples);
  return {command, [arguments] { return _MakeOptions(*arguments); }};
}
