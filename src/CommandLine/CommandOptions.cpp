#include "CommandLine/CommandOptions.h"

#include <CLI/CLI.hpp>
#include <sstream>

#include "CommandLine/ClassInput.h"
#include "CommandLine/CommandError.h"
#include "CommandLine/ExportArguments.h"
#include "CommandLine/TerminalText.h"
#include "Common/QZData/StudentFields.h"

namespace {

constexpr size_t kHelpWidth = 79;
constexpr size_t kHelpColumn = 24;

const char* const kReportGroup = "Options of the detailed report";

const char* const kDescription =
    "Turns the results in a class file into a file that the gradebook of a learning\n"
    "system can import.";

const char* const kFooter =
    "Examples:\n"
    "  gxexport formats\n"
    "      which gradebooks there are\n"
    "  gxexport inspect class.xml\n"
    "      who and what is in the class file\n"
    "  gxexport export -f canvas -o grades.csv class.xml\n"
    "      the results of all assignments, for Canvas\n"
    "\n"
    "'gxexport COMMAND --help' explains a command.\n"
    "\n"
    "Exit status: 0 done, 2 wrong usage, 3 class file unreadable or malformed,\n"
    "4 student identifiers refused, 5 output not written.";

const char* const kInspectFooter =
    "Examples:\n"
    "  gxexport inspect class.xml\n"
    "  gxexport inspect --json class.xml";

const char* const kExportExamples =
    "Examples:\n"
    "  gxexport export -f canvas -o grades.csv class.xml\n"
    "      all assignments, for Canvas\n"
    "  gxexport export -f moodle -u custom-2 -a 301 -a 302 -o grades.csv class.xml\n"
    "      two assignments, with the identifier taken from the second custom field\n"
    "  gxexport export -f detailed -a 301 --columns both --answer-key class.xml\n"
    "      every answer to one assignment, on the screen";

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

[[noreturn]] void _Fail(const std::string& text) {
  throw CommandError(kExitUsage, text);
}

std::string _IndentedList(const std::string& list) {
  return "  " + Join(WrapText(list, kHelpWidth - 2), "\n  ") + "\n";
}

std::string _ExportFooter() {
  std::vector<std::vector<std::string>> formats;
  for (const FormatRow& row : FormatTable()) {
    const char* field = row.idName == nullptr ? "" : qz::FindStudentField(row.defaultUserIDField).key;
    formats.push_back({"  " + std::string(row.key), row.name, field});
  }
  return "Formats, with the student field that is used without -u:\n" + AlignColumns(formats) +
         "\nStudent fields for -u:\n" + _IndentedList(IdentifierKeys()) + "\nStudent fields for --fields:\n" +
         _IndentedList(ReportFieldKeys()) + "\n" + kExportExamples;
}

void _DefineClassFile(CLI::App* command, std::string* classFile) {
  command->add_option("CLASSFILE", *classFile, "The class file; - is standard input.")
      ->required()
      ->type_name("");
}

CLI::App* _DefineFormats(CLI::App* app, FormatsOptions* options) {
  CLI::App* command = app->add_subcommand("formats", "Lists the formats.");
  command->add_flag("--json", options->json, "As JSON, for programs.");
  return command;
}

CLI::App* _DefineInspect(CLI::App* app, InspectOptions* options) {
  CLI::App* command = app->add_subcommand("inspect", "Shows what is in a class file.");
  _DefineClassFile(command, &options->classFile);
  command->add_flag("--json", options->json,
                    "As JSON, for programs: with all student fields but the password.");
  command->footer(kInspectFooter);
  return command;
}

void _DefineGradebookOptions(CLI::App* command, ExportArguments* arguments) {
  command->add_option("-f,--format", arguments->format, "One of the formats below, or its number.")
      ->required()
      ->type_name("FORMAT");
  command
      ->add_option("-a,--assignment", arguments->assignments,
                   "The id of an assignment to export, as 'inspect' shows it; may be given several times. "
                   "Without it all are exported. The detailed report is about exactly one.")
      ->type_name("ID")
      ->allow_extra_args(false);
  command
      ->add_option("-u,--user-id", arguments->identifier,
                   "The student field that holds the name or number by which the learning system knows a "
                   "student.")
      ->type_name("FIELD");
  command
      ->add_option("-o,--output", arguments->output,
                   "The file to write; an old one is replaced. Without it, or with -, the text goes to "
                   "standard output.")
      ->type_name("FILE");
  command->add_flag("--no-quotes", arguments->noQuotes,
                    "Write texts without quotation marks. Only for " + UnquotedFormatKeys() + ".");
  command->add_flag("--force", arguments->force,
                    "Export even if no student has an identifier, or if students share one.");
}

void _DefineReportOptions(CLI::App* command, ExportArguments* arguments) {
  command->option_defaults()->group(kReportGroup);
  command
      ->add_option("--fields", arguments->fields,
                   "The student fields to write, separated by commas; or all, or none. Without it: " +
                       DefaultReportFields() + ".")
      ->type_name("LIST");
  command
      ->add_option("--columns", arguments->columns,
                   "What to write of each question: responses, points, or both. Without it: " +
                       DefaultReportColumns() + ".")
      ->type_name("WHAT");
  command->add_flag("--answer-key", arguments->answerKey, "Add a line with the correct answers.");
  command->add_flag("--points-possible", arguments->pointsPossible,
                    "Add a line with the points that each question is worth.");
  command->add_flag("--no-asterisks", arguments->noAsterisks,
                    "Do not mark fully correct responses with an asterisk.");
}

CLI::App* _DefineExport(CLI::App* app, ExportArguments* arguments) {
  CLI::App* command = app->add_subcommand("export", "Writes a gradebook file or the detailed report.");
  arguments->output = kStandardStream;
  arguments->fields = DefaultReportFields();
  arguments->columns = DefaultReportColumns();
  _DefineClassFile(command, &arguments->classFile);
  _DefineGradebookOptions(command, arguments);
  _DefineReportOptions(command, arguments);
  command->footer(_ExportFooter());
  return command;
}

void _NoteReportOptions(const CLI::App& command, ExportArguments* arguments) {
  for (const CLI::Option* option : command.get_options()) {
    if (option->get_group() == kReportGroup && option->count() > 0) {
      arguments->reportOptions.push_back(option->get_name());
    }
  }
}

std::string _UsageText(const CLI::App& app, const CLI::ParseError& error) {
  const auto commands = app.get_subcommands();
  if (!commands.empty()) {
    return std::string(error.what()) + "\nTry 'gxexport " + commands.front()->get_name() + " --help'.";
  }
  const std::vector<std::string> unknown = app.remaining();
  return (unknown.empty() ? "a command is missing" : "unknown command '" + unknown.front() + "'") +
         std::string("; the commands are formats, inspect and export\nTry 'gxexport --help'.");
}

// What the parser throws is a request for help or an error.
ShowOptions _Answer(const CLI::App& app, const CLI::ParseError& thrown) {
  if (thrown.get_exit_code() != static_cast<int>(CLI::ExitCodes::Success)) {
    _Fail(PrintableUtf8(_UsageText(app, thrown), true));
  }
  std::ostringstream text;
  app.exit(thrown, text, text);
  std::string shown = text.str();
  if (!shown.ends_with('\n')) shown += '\n';
  return {shown};
}

}  // namespace

CommandOptions ReadCommandLine(int argc, const char* const* argv) {
  CLI::App app(kDescription, "gxexport");
  app.formatter(std::make_shared<HelpFormatter>());
  app.set_help_flag("-h,--help", "Shows this text.");
  app.set_version_flag("--version", "gxexport " GRADIX_VERSION, "Shows the version.");
  app.require_subcommand(1);
  app.footer(kFooter);
  FormatsOptions formatsOptions;
  InspectOptions inspectOptions;
  ExportArguments exportArguments;
  const CLI::App* formats = _DefineFormats(&app, &formatsOptions);
  const CLI::App* inspect = _DefineInspect(&app, &inspectOptions);
  const CLI::App* exporting = _DefineExport(&app, &exportArguments);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& thrown) {
    return _Answer(app, thrown);
  }
  if (formats->parsed()) return formatsOptions;
  if (inspect->parsed()) return inspectOptions;
  _NoteReportOptions(*exporting, &exportArguments);
  return MakeExportOptions(exportArguments);
}
