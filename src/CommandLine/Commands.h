// The commands. Each returns the program's exit status, and throws CommandError when it cannot do its work.
#ifndef GRADIX_COMMANDS_H
#define GRADIX_COMMANDS_H

#include "CommandLine/Arguments/CommandOptions.h"
#include "CommandLine/CommandError.h"

ExitStatus RunFormats(const FormatsOptions& options);
ExitStatus RunInspect(const InspectOptions& options);
ExitStatus RunCheck(const CheckOptions& options);
ExitStatus RunExport(const ExportOptions& options);
ExitStatus RunBatch(const ExportOptions& options);  // with an output folder
ExitStatus RunFill(const FillOptions& options);

#endif  // GRADIX_COMMANDS_H
