// The options that several commands share: which classes, which format, which assignments, which students'
// field. What was typed, and what it means; the functions that parse throw CommandError.
#ifndef GRADIX_CHOICEARGUMENTS_H
#define GRADIX_CHOICEARGUMENTS_H

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "Export/ExportChoices.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

struct ChoiceArguments {
  std::string format;
  std::vector<std::string> assignments;
  std::optional<std::string> identifier;
  std::optional<std::string> dialect;
  std::optional<std::string> delimiter;
  bool noQuotes = false;
};

// One class file, or any number of them.
void DefineClassFile(CLI::App* command, std::string* classFile);
void DefineClassFiles(CLI::App* command, std::vector<std::string>* classFiles);

// -f, -a and -u
CLI::Option* DefineFormat(CLI::App* command, std::string* format);
void DefineAssignments(CLI::App* command, std::vector<std::string>* assignments);
void DefineIdentifier(CLI::App* command, std::optional<std::string>* identifier);

// -o
void DefineOutput(CLI::App* command, std::string* output);

void DefineNoQuotes(CLI::App* command, bool* noQuotes);

void DefineDialect(CLI::App* command, std::optional<std::string>* dialect);
void DefineDelimiter(CLI::App* command, std::optional<std::string>* delimiter);

// The formats and the student fields, for the end of a command's help.
std::string ChoicesFooter();

const FormatRow& ParseFormat(const std::string& text);
qz::UserIDField ParseIdentifier(const std::string& text);
int32_t ParseAssignment(const std::string& text, const std::string& option);   // whose value the text is
std::vector<int32_t> ParseAssignments(const std::vector<std::string>& texts);  // "1,2" are two

// All but ExportChoices::report. Warns of options that the format has no use for.
ExportChoices MakeChoices(const ChoiceArguments& arguments);

template <typename Number>
std::optional<Number> ParseNumber(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

// The name that was given for the option, unless it is empty.
const std::string& RequireFileName(const char* option, const std::string& name);

[[noreturn]] void FailUsage(const std::string& text);

#endif  // GRADIX_CHOICEARGUMENTS_H
