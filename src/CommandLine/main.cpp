// gxexport: the export formats without a display.

#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <new>
#include <variant>

#include "CommandLine/Arguments/CommandOptions.h"
#include "CommandLine/CommandError.h"
#include "CommandLine/Commands.h"
#include "CommandLine/OutputFile.h"
#include "CommandLine/TerminalText.h"

namespace {

struct CommandRunner {
  ExitStatus operator()(const ShowOptions& options) const {
    WriteStandardOutput(options.text);
    return kExitDone;
  }
  ExitStatus operator()(const FormatsOptions& options) const { return RunFormats(options); }
  ExitStatus operator()(const InspectOptions& options) const { return RunInspect(options); }
  ExitStatus operator()(const CheckOptions& options) const { return RunCheck(options); }
  ExitStatus operator()(const ExportOptions& options) const {
    return options.IsBatch() ? RunBatch(options) : RunExport(options);
  }
  ExitStatus operator()(const FillOptions& options) const { return RunFill(options); }
};

// A closed pipe and a size limit are failed writes, not reasons to die with a half-written file.
void _SetUpProcess() {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  std::ios::sync_with_stdio(false);
}

}  // namespace

int main(int argc, char** argv) {
  _SetUpProcess();
  try {
    return std::visit(CommandRunner(), ReadCommandLine(argc, argv));
  } catch (const CommandError& error) {
    if (*error.what() != '\0') Say(error.what());
    return error.Status();
  } catch (const std::bad_alloc&) {
    std::fputs("gxexport: out of memory\n", stderr);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "gxexport: %s\n", error.what());
  }
  return kExitOutput;
}
