// The command line, read and checked as far as that is possible without the class file.
#ifndef GRADIX_OPTIONS_H
#define GRADIX_OPTIONS_H

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "Common/QZData/QZClass.h"
#include "Filters/GX_StdCsv/FormatTable.h"

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

// What the detailed report contains.
struct ReportOptions {
  uint32_t fieldMask = 0;
  bool responses = false;
  bool pointsEarned = false;
  bool answerKey = false;
  bool pointsPossible = false;
  bool asterisks = false;
};

struct ExportOptions {
  const FormatRow* format = nullptr;
  std::string classFile;
  std::string outputFile;
  std::vector<int32_t> assignmentIDs;  // empty: all
  qz::UserIDField userIDField = qz::kUserIDAlias;
  bool useQuotes = true;
  bool force = false;
  ReportOptions report;
};

using CommandOptions = std::variant<ShowOptions, FormatsOptions, InspectOptions, ExportOptions>;

// Throws CommandError when the command line makes no sense.
CommandOptions ReadCommandLine(int argc, const char* const* argv);

#endif  // GRADIX_OPTIONS_H
