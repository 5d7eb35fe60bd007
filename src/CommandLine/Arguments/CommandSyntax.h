// The syntax of the commands: what each adds to the parser, and what was typed means.
#ifndef GRADIX_COMMANDSYNTAX_H
#define GRADIX_COMMANDSYNTAX_H

#include <functional>

#include "CommandLine/Arguments/CommandOptions.h"

namespace CLI {
class App;
}

struct CommandSyntax {
  CLI::App* command;

  // Called after this command was parsed. Throws CommandError for values that do not exist or do not go
  // together.
  std::function<CommandOptions()> read;
};

// `program` is the parser of the whole command line.
CommandSyntax DefineHelp(CLI::App* program);
CommandSyntax DefineFormats(CLI::App* program);
CommandSyntax DefineInspect(CLI::App* program);
CommandSyntax DefineCheck(CLI::App* program);
CommandSyntax DefineExport(CLI::App* program);
CommandSyntax DefineFill(CLI::App* program);

#endif  // GRADIX_COMMANDSYNTAX_H
