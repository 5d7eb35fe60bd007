#include <CLI/CLI.hpp>

#include "CommandLine/Arguments/ChoiceArguments.h"
#include "CommandLine/Arguments/CommandSyntax.h"

namespace {

const char* const kCheckExamples =
    "Examples:\n"
    "  gxexport check -f canvas class.xml\n"
    "      what Canvas will do with the file\n"
    "  gxexport check -f canvas --gradebook Grades.csv class.xml\n"
    "      the same in the course whose gradebook was downloaded\n"
    "  gxexport check -f moodle --dialect current algebra.xml biology.xml\n"
    "      two classes";

struct CheckArguments {
  ChoiceArguments choices;
  std::optional<std::string> gradebook;
  CheckOptions options;  // what needs no parsing
};

CheckOptions _MakeOptions(const CheckArguments& arguments) {
  CheckOptions options = arguments.options;
  options.choices = MakeChoices(arguments.choices);
  if (!arguments.gradebook) return options;
  options.gradebook = RequireFileName("--gradebook", *arguments.gradebook);
  if (options.classFiles.size() > 1) FailUsage("--gradebook is about one class; name one class file only");
  return options;
}

}  // namespace

CommandSyntax DefineCheck(CLI::App* program) {
  CLI::App* command =
      program->add_subcommand("check", "Tells what the learning system will do with the file.");
  const auto arguments = std::make_shared<CheckArguments>();
  DefineClassFiles(command, &arguments->options.classFiles);
  DefineFormat(command, &arguments->choices.format)->required();
  DefineAssignments(command, &arguments->choices.assignments);
  DefineIdentifier(command, &arguments->choices.identifier);
  DefineDialect(command, &arguments->choices.dialect);
  command
      ->add_option("--gradebook", arguments->gradebook,
                   "The gradebook file that was downloaded from the learning system: checks, too, what the "
                   "file will do to this course.")
      ->type_name("FILE");
  command->add_flag("--json", arguments->options.json, "As JSON, for programs.");
  command->footer(ChoicesFooter() + "\n" + kCheckExamples +
                  "\n\nExit status: 6 when something counts as trouble; notes do not.");
  return {command, [arguments] { return _MakeOptions(*arguments); }};
}
