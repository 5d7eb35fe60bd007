// The values of the export command, as they were typed, and what they mean.
#ifndef GRADIX_EXPORTARGUMENTS_H
#define GRADIX_EXPORTARGUMENTS_H

#include <optional>
#include <string>
#include <vector>

#include "CommandLine/CommandOptions.h"

struct ExportArguments {
  std::string classFile;
  std::string format;
  std::vector<std::string> assignments;
  std::optional<std::string> identifier;
  std::string output;  // has a default, as all that follow
  bool noQuotes = false;
  bool force = false;
  std::string fields;
  std::string columns;
  bool answerKey = false;
  bool pointsPossible = false;
  bool noAsterisks = false;
  std::vector<std::string> reportOptions;  // names of the given options that only the detailed report has
};

// Throws CommandError for values that do not exist or do not go together.
ExportOptions MakeExportOptions(const ExportArguments& arguments);

// The names there are, separated by commas.
std::string FormatKeys();
std::string UnquotedFormatKeys();  // of the formats that have an unquoted variant
std::string IdentifierKeys();      // of the student fields that can be the identifier
std::string ReportFieldKeys();

// The defaults of --fields and --columns.
std::string DefaultReportFields();
std::string DefaultReportColumns();

#endif  // GRADIX_EXPORTARGUMENTS_H
