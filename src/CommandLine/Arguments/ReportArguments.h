// The options of the detailed report.
#ifndef GRADIX_REPORTARGUMENTS_H
#define GRADIX_REPORTARGUMENTS_H

#include <string>

#include "Export/ExportChoices.h"

namespace CLI {
class App;
}

struct ReportArguments {
  std::string fields;   // has a default
  std::string columns;  // the same
  bool answerKey = false;
  bool pointsPossible = false;
  bool noAsterisks = false;
};

void DefineReportOptions(CLI::App* command, ReportArguments* arguments);

// Refuses these options with another format.
void RequireReport(const CLI::App& command, const FormatRow& format);

// Warns of options that have no effect. Throws CommandError for values that do not exist.
ReportChoices MakeReportChoices(const ReportArguments& arguments);

#endif  // GRADIX_REPORTARGUMENTS_H
