#include "CommandLine/Arguments/ChoiceArguments.h"

#include <CLI/CLI.hpp>

#include "CommandLine/Arguments/KeyLists.h"
#include "CommandLine/Arguments/Suggestion.h"
#include "CommandLine/CommandError.h"
#include "CommandLine/TerminalText.h"
#include "Systems/CurrentFile.h"
#include "Systems/LearningSystem.h"

namespace {

constexpr const char* kClassicKey = "classic";
constexpr const char* kCurrentKey = "current";

struct DelimiterRow {
  const char* key;
  char delimiter;
};
constexpr DelimiterRow kDelimiters[] = {{"comma", ','}, {"semicolon", ';'}};

bool _HasCurrentFile(const FormatRow& row) {
  return FindCurrentFile(row) != nullptr;
}

bool _TakesSemicolons(const FormatRow& row) {
  const CurrentFile* current = FindCurrentFile(row);
  return current != nullptr && current->takesSemicolons;
}

bool _HasDecimalCommas(const FormatRow& row) {
  const CurrentFile* current = FindCurrentFile(row);
  return current != nullptr && current->hasDecimalCommas;
}

bool _CanDoWithoutQuotes(const FormatRow& row) {
  return row.hasUnquotedVariant;
}

template <typename Wanted>
std::string _FormatsThat(Wanted wanted) {
  return Listed(KeysOf(FormatTable(), wanted));
}

Dialect _ParseDialect(const std::string& text, const FormatRow& format) {
  if (text == kClassicKey) return Dialect::kClassic;
  if (text != kCurrentKey) {
    FailUsage(UnknownText("unknown dialect '" + text + "'", text, {kClassicKey, kCurrentKey},
                          "it is classic or current"));
  }
  if (!_HasCurrentFile(format)) {
    FailUsage(std::string("there is no current file for ") + format.key + "; the formats that have one are " +
              _FormatsThat(_HasCurrentFile));
  }
  return Dialect::kCurrent;
}

char _ParseDelimiter(const std::string& text, const FormatRow& format, Dialect dialect) {
  for (const DelimiterRow& row : kDelimiters) {
    if (row.key != text) continue;
    if (dialect == Dialect::kCurrent && _TakesSemicolons(format)) return row.delimiter;
    FailUsage("--delimiter applies to --dialect current of " + _FormatsThat(_TakesSemicolons) + " only");
  }
  FailUsage(UnknownText("unknown delimiter '" + text + "'", text, {"comma", "semicolon"},
                        "it is comma or semicolon"));
}

// Of options that are harmless, but were given for nothing.
void _WarnOfSuperfluous(const ChoiceArguments& arguments, const ExportChoices& choices) {
  const FormatRow& format = *choices.format;
  if (format.IsReport() && arguments.identifier) {
    Warn("-u has no effect on the detailed report, which has no user identifier; see --fields");
  }
  if (!arguments.noQuotes) return;
  if (!_CanDoWithoutQuotes(format)) {
    Warn(std::string("--no-quotes has no effect on ") + format.key +
         "; the formats that can do without quotes are " + _FormatsThat(_CanDoWithoutQuotes));
  } else if (choices.dialect == Dialect::kCurrent) {
    Warn("--no-quotes has no effect on the current file, whose texts are always in quotes");
  }
}

std::string _FormatHelp() {
  Keys words;
  for (const FormatRow& row : FormatTable()) {
    if (row.alias != nullptr) words.push_back(std::string(row.alias) + " for " + row.key);
  }
  return "One of the formats below, or its number; also " + Join(words, " and ") + ".";
}

}  // namespace

void FailUsage(const std::string& text) {
  throw CommandError(kExitUsage, PrintableUtf8(text));
}

void DefineClassFile(CLI::App* command, std::string* classFile) {
  command->add_option("CLASSFILE", *classFile, "The class file; - is standard input.")
      ->required()
      ->type_name("");
}

void DefineClassFiles(CLI::App* command, std::vector<std::string>* classFiles) {
  // The parser takes more as long as it expects more. Extra arguments would be the ordinary way, but of these
  // it takes a name such as "[a,b]" for two.
  constexpr int kMany = CLI::detail::expected_max_vector_size;
  command->add_option("CLASSFILE", *classFiles, "The class file; - is standard input.")
      ->required()
      ->type_name("")
      ->expected(kMany, kMany)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->allow_extra_args(false);
}

CLI::Option* DefineFormat(CLI::App* command, std::string* format) {
  return command->add_option("-f,--format", *format, _FormatHelp())->type_name("FORMAT");
}

void DefineAssignments(CLI::App* command, std::vector<std::string>* assignments) {
  command
      ->add_option("-a,--assignment", *assignments,
                   "The id of an assignment to export, as 'inspect' shows it, or several separated by "
                   "commas; may be given several times. Without it all are exported. The detailed report is "
                   "about exactly one.")
      ->type_name("ID")
      ->allow_extra_args(false);
}

void DefineIdentifier(CLI::App* command, std::optional<std::string>* identifier) {
  command
      ->add_option("-u,--user-id", *identifier,
                   "The student field that holds the name or number by which the learning system knows a "
                   "student.")
      ->type_name("FIELD");
}

void DefineOutput(CLI::App* command, std::string* output) {
  command
      ->add_option("-o,--output", *output,
                   "The file to write; an old one is replaced. Without it, or with -, the text goes to "
                   "standard output.")
      ->type_name("FILE");
}

void DefineNoQuotes(CLI::App* command, bool* noQuotes) {
  command->add_flag(
      "--no-quotes", *noQuotes,
      "Write texts without quotation marks. Only for " + _FormatsThat(_CanDoWithoutQuotes) + ".");
}

const std::string& RequireFileName(const char* option, const std::string& name) {
  if (name.empty()) FailUsage(std::string(option) + " needs the name of a file");
  return name;
}

void DefineDialect(CLI::App* command, std::optional<std::string>* dialect) {
  command
      ->add_option("--dialect", *dialect,
                   "classic, the format as it has always been, or current, the file that today's version of "
                   "the system takes. Without it: classic.")
      ->type_name("WHICH");
}

void DefineDelimiter(CLI::App* command, std::optional<std::string>* delimiter) {
  command
      ->add_option("--delimiter", *delimiter,
                   "What separates the cells of the current file: comma or semicolon. Only for " +
                       _FormatsThat(_TakesSemicolons) + "; " + _FormatsThat(_HasDecimalCommas) +
                       " have decimal commas with semicolons.")
      ->type_name("WHICH");
}

std::string ChoicesFooter() {
  std::vector<std::vector<std::string>> formats;
  for (const FormatRow& row : FormatTable()) {
    const char* field = row.idName == nullptr ? "" : qz::FindStudentField(row.defaultUserIDField).key;
    formats.push_back({"  " + std::string(row.key), row.name, field});
  }
  return "Formats, with the student field that is used without -u:\n" + AlignColumns(formats) +
         "\nStudent fields for -u:\n" + IndentedList(IdentifierKeys());
}

const FormatRow& ParseFormat(const std::string& text) {
  const std::optional<uint32_t> index = ParseNumber<uint32_t>(text);
  const FormatRow* format = index ? FindFormat(*index) : FindFormat(std::string_view(text));
  if (format != nullptr) return *format;
  Keys words = FormatKeys();
  for (const std::string& alias : FormatAliases()) words.push_back(alias);
  FailUsage(
      UnknownText("unknown format '" + text + "'", text, words, "the formats are " + Listed(FormatKeys())));
}

qz::UserIDField ParseIdentifier(const std::string& text) {
  const qz::StudentField* field = qz::FindStudentField(text);
  if (field != nullptr && field->CanIdentify()) return field->userIDField;
  FailUsage(UnknownText("unknown student field '" + text + "' for -u", text, IdentifierKeys(),
                        "the fields are " + Listed(IdentifierKeys())));
}

int32_t ParseAssignment(const std::string& text, const std::string& option) {
  const std::optional<int32_t> id = ParseNumber<int32_t>(text);
  if (!id) FailUsage("'" + text + "' is no assignment id; " + option + " takes a number");
  return *id;
}

std::vector<int32_t> ParseAssignments(const std::vector<std::string>& texts) {
  std::vector<int32_t> ids;
  for (const std::string& text : texts) {
    for (const std::string& id : Split(text, ',')) ids.push_back(ParseAssignment(id, "-a"));
  }
  return ids;
}

ExportChoices MakeChoices(const ChoiceArguments& arguments) {
  ExportChoices choices;
  choices.format = &ParseFormat(arguments.format);
  const FormatRow& format = *choices.format;
  if (arguments.dialect) choices.dialect = _ParseDialect(*arguments.dialect, format);
  if (arguments.delimiter) {
    choices.delimiter = _ParseDelimiter(*arguments.delimiter, format, choices.dialect);
  }
  _WarnOfSuperfluous(arguments, choices);
  choices.assignmentIDs = ParseAssignments(arguments.assignments);
  choices.identifier =
      arguments.identifier ? ParseIdentifier(*arguments.identifier) : format.defaultUserIDField;
  choices.useQuotes = !arguments.noQuotes;
  return choices;
}
