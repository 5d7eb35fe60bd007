// gxexport: the export formats without a display.

#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <new>
#include <variant>

#include "CommandLine/CommandError.h"
#include "CommandLine/CommandOptions.h"
#include "CommandLine/Commands.h"
#include "CommandLine/OutputFile.h"
#include "CommandLine/TerminalText.h"

namespace {

struct CommandRunner {
  void operator()(const ShowOptions& options) const { WriteStandardOutput(options.text); }
  void operator()(const FormatsOptions& options) const { RunFormats(options); }
  void operator()(const InspectOptions& options) const { RunInspect(options); }
  void operator()(const ExportOptions& options) const { RunExport(options); }
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
    std::visit(CommandRunner(), ReadCommandLine(argc, argv));
    return kExitDone;
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
