// The command line, read and checked as far as that is possible without the class file.
#ifndef GRADIX_COMMANDOPTIONS_H
#define GRADIX_COMMANDOPTIONS_H

#include <string>
#include <variant>

#include "Export/ExportChoices.h"

// --help or --version: the text is all there is to do.
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

struct ExportOptions {
  std::string classFile;
  std::string outputFile;
  ExportChoices choices;
  bool force = false;
};

using CommandOptions = std::variant<ShowOptions, FormatsOptions, InspectOptions, ExportOptions>;

// Throws CommandError when the command line makes no sense.
CommandOptions ReadCommandLine(int argc, const char* const* argv);

#endif  // GRADIX_COMMANDOPTIONS_H
