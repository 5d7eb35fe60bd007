#include "CommandLine/Arguments/CommandOptions.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>

#include "CommandLine/Arguments/ChoiceArguments.h"
#include "CommandLine/Arguments/CommandSyntax.h"
#include "CommandLine/Arguments/Suggestion.h"
#include "CommandLine/CommandError.h"
#include "CommandLine/TerminalText.h"

namespace {

constexpr size_t kHelpWidth = 79;
constexpr size_t kHelpColumn = 24;

const char* const kDescription =
    "Turns the results in a class file into a file that the gradebook of a learning\n"
    "system can import.";

const char* const kFooter =
    "Examples:\n"
    "  gxexport formats\n"
    "      which gradebooks there are\n"
    "  gxexport inspect class.xml\n"
    "      who and what is in the class file\n"
    "  gxexport check -f canvas class.xml\n"
    "      what Canvas will do with the file\n"
    "  gxexport export -f canvas -o grades.csv class.xml\n"
    "      the results of all assignments, for Canvas\n"
    "  gxexport fill --gradebook Grades.csv -o upload.csv class.xml\n"
    "      the results into the gradebook that was downloaded from the system\n"
    "\n"
    "'gxexport COMMAND --help' explains a command.\n"
    "\n"
    "Exit status: 0 done, 2 wrong usage, 3 class file or downloaded gradebook\n"
    "unreadable or malformed, 4 student identifiers refused, 5 output not written,\n"
    "6 trouble found. Of several classes the worst counts: 3, 5, 4, 2, 6.";

const char* const kInspectFooter =
    "Examples:\n"
    "  gxexport inspect class.xml\n"
    "  gxexport inspect --json class.xml";

// In the order in which help lists them.
constexpr CommandSyntax (*kCommands[])(CLI::App* program) = {DefineFormats, DefineInspect, DefineCheck,
                                                             DefineExport,  DefineFill,    DefineHelp};

// Keeps the descriptions within the width of a terminal.
class HelpFormatter : public CLI::Formatter {
 public:
  HelpFormatter() {
    column_width(kHelpColumn);
    label("SUBCOMMAND", "COMMAND");
    label("Subcommands", "Commands");
    label("REQUIRED", "(required)");
  }
  std::string make_option_desc(const CLI::Option* option) const override {
    return Join(WrapText(option->get_description(), kHelpWidth - kHelpColumn), "\n");
  }
};

std::vector<const CLI::App*> _Commands(const CLI::App& program) {
  return program.get_subcommands([](const CLI::App*) { return true; });
}

std::vector<std::string> _CommandNames(const CLI::App& program) {
  std::vector<std::string> names;
  for (const CLI::App* command : _Commands(program)) names.push_back(command->get_name());
  return names;
}

// "the commands are a, b and c"
std::string _CommandList(const CLI::App& program) {
  std::vector<std::string> names = _CommandNames(program);
  const std::string last = names.back();
  names.pop_back();
  return "the commands are " + Join(names, ", ") + " and " + last;
}

std::string _UnknownCommand(const CLI::App& program, const std::string& name) {
  return UnknownText("unknown command '" + name + "'", name, _CommandNames(program), _CommandList(program));
}

std::string _EndWithLine(std::string text) {
  if (!text.ends_with('\n')) text += '\n';
  return text;
}

ShowOptions _HelpOn(const CLI::App* program, const std::string& name) {
  if (name.empty()) {
    return {_EndWithLine(program->get_formatter()->make_help(program, program->get_name(), {}))};
  }
  for (const CLI::App* command : _Commands(*program)) {
    if (command->get_name() == name) return {_EndWithLine(command->help(program->get_name()))};
  }
  FailUsage(_UnknownCommand(*program, name));
}

std::vector<std::string> _LongOptions(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::Option* option : command.get_options()) {
    for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  }
  return names;
}

// What the parser had no use for: the name of the first option among it, or nothing.
std::string _UnknownOption(const CLI::App& command) {
  for (const std::string& text : command.remaining()) {
    if (text == "--") break;
    if (text.size() > 1 && text.front() == '-') return text.substr(0, text.find('='));
  }
  return {};
}

std::string _OptionText(const CLI::App& command, const std::string& option) {
  return UnknownText("unknown option '" + option + "'", option, _LongOptions(command), "");
}

std::string _CommandUsageText(const CLI::App& program, const CLI::App& command,
                              const CLI::ParseError& error) {
  std::string text = error.what();
  for (const CLI::App* part : {&program, &command}) {
    const std::string unknown = _UnknownOption(*part);
    if (!unknown.empty()) text = _OptionText(*part, unknown);
  }
  return text + "\nTry 'gxexport " + command.get_name() + " --help'.";
}

std::string _UsageText(const CLI::App& program, const CLI::ParseError& error) {
  const auto commands = program.get_subcommands();
  if (!commands.empty()) return _CommandUsageText(program, *commands.front(), error);
  const std::vector<std::string> unknown = program.remaining();
  std::string text;
  if (unknown.empty()) {
    text = "a command is missing; " + _CommandList(program);
  } else if (unknown.front().starts_with('-')) {
    text = _OptionText(program, _UnknownOption(program));
  } else {
    text = _UnknownCommand(program, unknown.front());
  }
  return text + "\nTry 'gxexport --help'.";
}

// What the parser throws is a request for help or an error.
ShowOptions _Answer(const CLI::App& program, const CLI::ParseError& thrown) {
  if (thrown.get_exit_code() != static_cast<int>(CLI::ExitCodes::Success)) {
    throw CommandError(kExitUsage, PrintableUtf8(_UsageText(program, thrown), true));
  }
  std::ostringstream text;
  program.exit(thrown, text, text);
  return {_EndWithLine(text.str())};
}

void _SetUp(CLI::App* program) {
  program->formatter(std::make_shared<HelpFormatter>());
  program->set_help_flag("-h,--help", "Shows this text.");
  program->set_version_flag("-V,--version", "gxexport " GRADIX_VERSION, "Shows the version.");
  program->require_subcommand(1);
  program->footer(kFooter);
}

}  // namespace

CommandSyntax DefineHelp(CLI::App* program) {
  CLI::App* command = program->add_subcommand("help", "Explains a command.");
  const auto name = std::make_shared<std::string>();
  command->add_option("COMMAND", *name, "The command. Without it, the program is explained.")->type_name("");
  return {command, [program, name] { return _HelpOn(program, *name); }};
}

CommandSyntax DefineFormats(CLI::App* program) {
  CLI::App* command = program->add_subcommand("formats", "Lists the formats.");
  const auto options = std::make_shared<FormatsOptions>();
  command->add_flag("--json", options->json, "As JSON, for programs.");
  return {command, [options] { return *options; }};
}

CommandSyntax DefineInspect(CLI::App* program) {
  CLI::App* command = program->add_subcommand("inspect", "Shows what is in a class file.");
  const auto options = std::make_shared<InspectOptions>();
  DefineClassFile(command, &options->classFile);
  command->add_flag("--json", options->json,
                    "As JSON, for programs: with all student fields but the password.");
  command->footer(kInspectFooter);
  return {command, [options] { return *options; }};
}

CommandOptions ReadCommandLine(int argc, const char* const* argv) {
  CLI::App program(kDescription, "gxexport");
  _SetUp(&program);
  std::vector<CommandSyntax> commands;
  for (const auto define : kCommands) commands.push_back(define(&program));
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& thrown) {
    return _Answer(program, thrown);
  }
  const auto given = std::find_if(commands.begin(), commands.end(),
                                  [](const CommandSyntax& syntax) { return syntax.command->parsed(); });
  return given->read();
}
