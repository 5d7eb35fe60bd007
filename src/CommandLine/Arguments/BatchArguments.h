// The options for the export of many classes.
#ifndef GRADIX_BATCHARGUMENTS_H
#define GRADIX_BATCHARGUMENTS_H

#include <optional>
#include <string>

#include "CommandLine/Arguments/CommandOptions.h"

namespace CLI {
class App;
}

struct BatchArguments {
  std::optional<std::string> outputFolder;
  std::optional<std::string> jobs;
  bool recursive = false;
};

void DefineBatchOptions(CLI::App* command, BatchArguments* arguments);

// Sets what the options say. Throws CommandError for values that do not exist, and for options that need an
// output folder when there is none. `hasOutputFile`: -o was given.
void SetBatchOptions(const BatchArguments& arguments, bool hasOutputFile, ExportOptions* options);

#endif  // GRADIX_BATCHARGUMENTS_H
