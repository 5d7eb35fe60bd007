#include "CommandLine/Arguments/BatchArguments.h"

#include <CLI/CLI.hpp>

#include "CommandLine/Arguments/ChoiceArguments.h"
#include "CommandLine/TerminalText.h"

namespace {

uint32_t _ParseJobs(const std::string& text) {
  const std::optional<uint32_t> jobs = ParseNumber<uint32_t>(text);
  if (!jobs || *jobs == 0) FailUsage("'" + text + "' is no number of jobs; --jobs takes 1 or more");
  return *jobs;
}

}  // namespace

void DefineBatchOptions(CLI::App* command, BatchArguments* arguments) {
  command
      ->add_option("--output-dir", arguments->outputFolder,
                   "The folder for the files of any number of classes, each named CLASS-FORMAT.csv after its "
                   "class file; made if there is none. A folder among the class files stands for its *.xml "
                   "files.")
      ->type_name("DIR");
  command->add_flag("-r,--recursive", arguments->recursive,
                    "Take all class files in the folders among CLASSFILE, and in the folders in them.");
  command
      ->add_option("--jobs", arguments->jobs,
                   "How many classes to export at a time. Without it: one per processor.")
      ->type_name("N");
}

void SetBatchOptions(const BatchArguments& arguments, bool hasOutputFile, ExportOptions* options) {
  options->recursive = arguments.recursive;
  if (arguments.jobs) options->jobs = _ParseJobs(*arguments.jobs);
  if (arguments.outputFolder) {
    options->outputFolder = RequireFileName("--output-dir", *arguments.outputFolder);
    if (hasOutputFile) FailUsage("-o and --output-dir exclude each other");
    return;
  }
  if (options->classFiles.size() > 1) FailUsage("several class files need --output-dir");
  if (options->recursive) FailUsage("-r needs --output-dir");
  if (options->jobs != 0) Warn("--jobs has no effect on one class");
}
