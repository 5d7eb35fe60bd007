// The command line, read and checked as far as that is possible without the class file.
#ifndef GRADIX_COMMANDOPTIONS_H
#define GRADIX_COMMANDOPTIONS_H

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Export/ExportChoices.h"
#include "Export/Fill.h"

// --help, --version or the command help: the text is all there is to do.
struct ShowOptions {
  std::string text;
};

struct FormatsOptions {
  bool json = false;
};

struct InspectOptions {
  std::string classFile;
  bool json = false;
};

struct CheckOptions {
  std::vector<std::string> classFiles;  // one at least; only one with a gradebook
  ExportChoices choices;
  std::string gradebook;  // the downloaded one; empty: none
  bool json = false;
};

struct ExportOptions {
  std::vector<std::string> classFiles;  // one at least; only one without an output folder
  std::string outputFile;
  std::string outputFolder;  // empty: the one class goes to the output file
  bool recursive = false;    // whole folders among the class files
  uint32_t jobs = 0;         // at a time; 0: as many as there are processors
  ExportChoices choices;
  bool force = false;
  bool strict = false;  // nothing is written when the check finds trouble
  bool json = false;

  bool IsBatch() const { return !outputFolder.empty(); }
};

struct FillOptions {
  std::string classFile;
  std::string gradebook;                      // the downloaded one
  const FormatRow* format = nullptr;          // null: its headings tell
  std::optional<qz::UserIDField> identifier;  // none: the one that is usual for the format
  std::vector<int32_t> assignmentIDs;         // empty: all
  FillChoices choices;
  std::string outputFile;
  bool dryRun = false;
  bool json = false;
};

using CommandOptions =
    std::variant<ShowOptions, FormatsOptions, InspectOptions, CheckOptions, ExportOptions, FillOptions>;

// Throws CommandError when the command line makes no sense.
CommandOptions ReadCommandLine(int argc, const char* const* argv);

#endif  // GRADIX_COMMANDOPTIONS_H
