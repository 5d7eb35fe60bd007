// The commands. Each throws CommandError when it cannot do its work.
#ifndef GRADIX_COMMANDS_H
#define GRADIX_COMMANDS_H

#include "CommandLine/CommandOptions.h"

void RunFormats(const FormatsOptions& options);
void RunInspect(const InspectOptions& options);
void RunExport(const ExportOptions& options);

#endif  // GRADIX_COMMANDS_H
