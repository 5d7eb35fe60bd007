#include "CommandLine/Options.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <optional>
#include <sstream>
#include <string_view>
#include <system_error>

#include "CommandLine/ClassFile.h"
#include "CommandLine/CommandError.h"
#include "CommandLine/TextOut.h"
#include "CommandLine/UserIDFields.h"
#include "Filters/GX_StdCsv/ReportColumns.h"

namespace {

constexpr size_t kHelpColumn = 28;

const char* const kDescription =
    "Turns the results in a class file into a file that the gradebook of a learning system can import.";

const char* const kExamples =
    "Examples:\n"
    "  gxexport formats                                   the gradebooks there are\n"
    "  gxexport inspect class.xml                         who and what is in the class file\n"
    "  gxexport export -f canvas -o quizzes.csv class.xml\n"
    "\n"
    "'gxexport COMMAND --help' explains a command.\n"
    "\n"
    "Exit status: 0 done, 2 wrong usage, 3 class file unreadable or malformed,\n"
    "4 student identifiers refused, 5 output not written.";

const char* const kExportExamples =
    "Examples:\n"
    "  gxexport export -f canvas -o grades.csv class.xml\n"
    "      all assignments, for Canvas\n"
    "  gxexport export -f moodle -u custom-2 -a 1201 -a 1202 -o grades.csv class.xml\n"
    "      two assignments, with the identifier taken from the second custom field\n"
    "  gxexport export -f detailed -a 1201 --columns both --answer-key class.xml\n"
    "      every answer to one assignment, on the screen";

// The values of --columns.
constexpr std::string_view kColumnsResponses = "responses";
constexpr std::string_view kColumnsPoints = "points";
constexpr std::string_view kColumnsBoth = "both";

// The words in place of a list of fields.
constexpr std::string_view kAllFields = "all";
constexpr std::string_view kNoFields = "none";
constexpr std::string_view kDefaultFields = "first-name,last-name,student-id";

// The values of the export command, as they were typed.
struct ExportArguments {
  std::string format;
  std::vector<std::string> assignments;
  std::string userIDField;
  std::string output = kStandardStream;
  std::string classFile;
  std::string fields{kDefaultFields};
  std::string columns{kColumnsResponses};
  bool noQuotes = false;
  bool force = false;
  bool answerKey = false;
  bool pointsPossible = false;
  bool noAsterisks = false;
};

[[noreturn]] void _Fail(const std::string& text) {
  throw CommandError(kExitUsage, PrintableUtf8(text, true));
}

template <typename Number>
std::optional<Number> _ParseNumber(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

std::string _FormatKeys() {
  std::vector<std::string> keys;
  for (const FormatRow& row : FormatTable()) keys.emplace_back(row.key);
  return Join(keys, ", ");
}

std::string _UserIDFieldKeys() {
  std::vector<std::string> keys;
  for (const NamedUserIDField& row : UserIDFields()) keys.emplace_back(row.column->key);
  return Join(keys, ", ");
}

std::string _ReportFieldKeys() {
  std::vector<std::string> keys;
  for (const ReportColumn& column : ReportColumns()) keys.emplace_back(column.key);
  return Join(keys, ", ");
}

// The keys of the formats with an unquoted variant.
std::string _UnquotedFormatKeys() {
  std::vector<std::string> keys;
  for (const FormatRow& row : FormatTable()) {
    if (row.hasUnquotedVariant) keys.emplace_back(row.key);
  }
  return Join(keys, " and ");
}

const FormatRow& _ParseFormat(const std::string& text) {
  const std::optional<uint32_t> index = _ParseNumber<uint32_t>(text);
  const FormatRow* format = index ? FindFormat(*index) : FindFormat(std::string_view(text));
  if (format == nullptr) _Fail("unknown format '" + text + "'; the formats are " + _FormatKeys());
  return *format;
}

qz::UserIDField _ParseUserIDField(const std::string& text) {
  const std::optional<qz::UserIDField> field = FindUserIDField(text);
  if (!field) _Fail("unknown student field '" + text + "' for -u; the fields are " + _UserIDFieldKeys());
  return *field;
}

std::vector<int32_t> _ParseAssignments(const std::vector<std::string>& texts) {
  std::vector<int32_t> ids;
  for (const std::string& text : texts) {
    const std::optional<int32_t> id = _ParseNumber<int32_t>(text);
    if (!id) _Fail("'" + text + "' is no assignment id; -a takes a number");
    ids.push_back(*id);
  }
  return ids;
}

uint32_t _ParseField(std::string_view key) {
  for (const ReportColumn& column : ReportColumns()) {
    if (column.key == key) return column.mask;
  }
  _Fail("unknown student field '" + std::string(key) + "' for --fields; the fields are " +
        _ReportFieldKeys() + ", or one of the words all and none");
}

uint32_t _ParseFields(std::string_view list) {
  if (list == kNoFields) return 0;
  uint32_t mask = 0;
  if (list == kAllFields) {
    for (const ReportColumn& column : ReportColumns()) mask |= column.mask;
    return mask;
  }
  for (;;) {
    const size_t comma = list.find(',');
    mask |= _ParseField(list.substr(0, comma));
    if (comma == std::string_view::npos) return mask;
    list.remove_prefix(comma + 1);
  }
}

ReportOptions _MakeReportOptions(const ExportArguments& arguments) {
  const bool onlyPoints = arguments.columns == kColumnsPoints;
  const bool onlyResponses = arguments.columns == kColumnsResponses;
  if (!onlyPoints && !onlyResponses && arguments.columns != kColumnsBoth) {
    _Fail("unknown value '" + arguments.columns + "' for --columns; it takes responses, points or both");
  }
  if (arguments.answerKey && onlyPoints) {
    _Fail("--answer-key belongs to the responses; use --columns responses or both");
  }
  if (arguments.pointsPossible && onlyResponses) {
    _Fail("--points-possible belongs to the points; use --columns points or both");
  }
  ReportOptions report;
  report.fieldMask = _ParseFields(arguments.fields);
  report.responses = !onlyPoints;
  report.pointsEarned = !onlyResponses;
  report.answerKey = arguments.answerKey;
  report.pointsPossible = arguments.pointsPossible;
  report.asterisks = !onlyPoints && !arguments.noAsterisks;
  return report;
}

// `app` is the export command after parsing.
void _RefuseForeignOptions(const CLI::App& app, const FormatRow& format) {
  const bool detailed = format.index == kDetailedResultsFormat;
  if (detailed && app.count("-u") > 0) {
    _Fail("-u does not apply to the detailed report, which has no user identifier; see --fields");
  }
  if (!format.hasUnquotedVariant && app.count("--no-quotes") > 0) {
    _Fail(std::string("--no-quotes does not apply to ") + format.key + ", only to " + _UnquotedFormatKeys());
  }
  if (detailed) return;
  const std::string reportKey = FindFormat(kDetailedResultsFormat)->key;
  for (const char* option :
       {"--fields", "--columns", "--answer-key", "--points-possible", "--no-asterisks"}) {
    if (app.count(option) > 0) _Fail(std::string(option) + " applies to the format " + reportKey + " only");
  }
}

ExportOptions _MakeExportOptions(const CLI::App& app, const ExportArguments& arguments) {
  ExportOptions options;
  options.format = &_ParseFormat(arguments.format);
  _RefuseForeignOptions(app, *options.format);
  options.classFile = arguments.classFile;
  options.outputFile = arguments.output;
  options.assignmentIDs = _ParseAssignments(arguments.assignments);
  options.userIDField =
      app.count("-u") > 0 ? _ParseUserIDField(arguments.userIDField) : options.format->defaultUserIDField;
  options.useQuotes = !arguments.noQuotes;
  options.force = arguments.force;
  options.report = _MakeReportOptions(arguments);
  return options;
}

void _DefineClassFile(CLI::App* app, std::string* classFile) {
  app->add_option("CLASSFILE", *classFile, "The class file; - reads standard input")
      ->required()
      ->type_name("");
}

CLI::App* _DefineFormats(CLI::App* app, FormatsOptions* options) {
  CLI::App* command = app->add_subcommand("formats", "Lists the formats");
  command->add_flag("--json", options->json, "As JSON, for programs");
  return command;
}

CLI::App* _DefineInspect(CLI::App* app, InspectOptions* options) {
  CLI::App* command = app->add_subcommand(
      "inspect",
      "Shows the students and assignments of a class file, and which student field can identify them");
  _DefineClassFile(command, &options->classFile);
  command->add_flag("--json", options->json,
                    "As JSON, for programs; with all student fields but the password");
  command->footer(
      "Examples:\n"
      "  gxexport inspect class.xml\n"
      "  gxexport inspect --json class.xml");
  return command;
}

std::string _ExportFooter() {
  std::vector<std::vector<std::string>> formats;
  for (const FormatRow& row : FormatTable()) {
    const char* field = row.idName == nullptr ? "" : ColumnOf(row.defaultUserIDField).key;
    formats.push_back({"  " + std::string(row.key), row.name, field});
  }
  return "Formats, with the student field that -u has as its default:\n" + AlignColumns(formats) +
         "\nStudent fields for -u:\n  " + _UserIDFieldKeys() + "\n\nStudent fields for --fields:\n  " +
         _ReportFieldKeys() + "\n\n" + kExportExamples;
}

void _DefineReportOptions(CLI::App* command, ExportArguments* arguments) {
  const char* const group = "Options of the detailed report";
  command
      ->add_option("--fields", arguments->fields,
                   "The student fields to write, separated by commas; or all, or none. Without it: " +
                       std::string(kDefaultFields))
      ->type_name("LIST")
      ->group(group);
  command
      ->add_option("--columns", arguments->columns,
                   "What to write of each question: responses (the default), points, or both")
      ->type_name("WHAT")
      ->group(group);
  command->add_flag("--answer-key", arguments->answerKey, "Add a line with the correct answers")
      ->group(group);
  command
      ->add_flag("--points-possible", arguments->pointsPossible,
                 "Add a line with the points each question is worth")
      ->group(group);
  command
      ->add_flag("--no-asterisks", arguments->noAsterisks, "Do not mark correct responses with an asterisk")
      ->group(group);
}

CLI::App* _DefineExport(CLI::App* app, ExportArguments* arguments) {
  CLI::App* command = app->add_subcommand("export", "Writes a gradebook file, or the detailed report");
  _DefineClassFile(command, &arguments->classFile);
  command->add_option("-f,--format", arguments->format, "The format: one of the names below, or its number")
      ->required()
      ->type_name("FORMAT");
  command
      ->add_option(
          "-a,--assignment", arguments->assignments,
          "The id of an assignment to export; may be repeated. Without it: all. 'inspect' shows the ids")
      ->type_name("ID")
      ->allow_extra_args(false);
  command
      ->add_option("-u,--user-id", arguments->userIDField,
                   "The student field that holds the identifier by which the learning system knows a student")
      ->type_name("FIELD");
  command
      ->add_option(
          "-o,--output", arguments->output,
          "The file to write, replacing an old one; - writes to standard output, as does leaving it out")
      ->type_name("FILE");
  command->add_flag("--no-quotes", arguments->noQuotes,
                    "Write texts without quotation marks (" + _UnquotedFormatKeys() + ")");
  command->add_flag("--force", arguments->force,
                    "Export although students have no identifier or share one; warns all the same");
  _DefineReportOptions(command, arguments);
  command->footer(_ExportFooter());
  return command;
}

std::string _UsageHint(const CLI::App& app) {
  const auto commands = app.get_subcommands();
  const std::string command = commands.empty() ? "" : commands.front()->get_name() + " ";
  return "\nTry 'gxexport " + command + "--help'.";
}

// What CLI11 throws is either a request for help or an error.
ShowOptions _TextOfRequest(const CLI::App& app, const CLI::ParseError& request) {
  if (request.get_exit_code() != static_cast<int>(CLI::ExitCodes::Success)) {
    _Fail(request.what() + _UsageHint(app));
  }
  std::ostringstream text;
  app.exit(request, text, text);
  return {text.str()};
}

}  // namespace

CommandOptions ReadCommandLine(int argc, const char* const* argv) {
  CLI::App app(kDescription, "gxexport");
  app.get_formatter()->column_width(kHelpColumn);
  app.set_version_flag("--version", "gxexport " GRADIX_VERSION);
  app.require_subcommand(1);
  app.footer(kExamples);
  FormatsOptions formatsOptions;
  InspectOptions inspectOptions;
  ExportArguments exportArguments;
  const CLI::App* formats = _DefineFormats(&app, &formatsOptions);
  const CLI::App* inspect = _DefineInspect(&app, &inspectOptions);
  const CLI::App* exporting = _DefineExport(&app, &exportArguments);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& request) {
    return _TextOfRequest(app, request);
  }
  if (formats->parsed()) return formatsOptions;
  if (inspect->parsed()) return inspectOptions;
  return _MakeExportOptions(*exporting, exportArguments);
}
