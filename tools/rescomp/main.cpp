// gxrescomp: JSON sources of dialogs, alerts and string lists, made into one resource file.

#include <getopt.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "rescomp/AlertCompiler.h"
#include "rescomp/DialogCompiler.h"
#include "rescomp/ForkWriter.h"
#include "rescomp/Source.h"
#include "rescomp/StringsCompiler.h"

namespace {

constexpr int kExitFailure = 1;
constexpr int kExitUsage = 2;

const char* const kHelp =
    "Makes a resource file from JSON sources.\n"
    "Usage: gxrescomp [OPTIONS] SOURCE...\n"
    "\n"
    "Positionals:\n"
    "  SOURCE TEXT ... REQUIRED    Sources of dialogs, alerts and string lists.\n"
    "\n"
    "Options:\n"
    "  -h,--help                   Print this help message and exit\n"
    "  -o,--output FILE REQUIRED   The resource file to write.\n"
    "\n";

// A command line that makes no sense.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Arguments {
  bool help = false;
  std::vector<std::string> outputs;
  std::vector<std::string> sources;
};

using ElementCompiler = void (*)(const Node&, ForkWriter*);

Arguments _ReadArguments(int argc, char** argv) {
  static const option kOptions[] = {{"help", no_argument, nullptr, 'h'},
                                    {"output", required_argument, nullptr, 'o'},
                                    {nullptr, 0, nullptr, 0}};
  Arguments arguments;
  int given;
  while ((given = getopt_long(argc, argv, ":ho:", kOptions, nullptr)) != -1) {
    switch (given) {
      case 'h': arguments.help = true; break;
      case 'o': arguments.outputs.emplace_back(optarg); break;
      case ':': throw UsageError("--output: 1 required FILE missing");
      default: throw UsageError(std::string("The following argument was not expected: ") + argv[optind - 1]);
    }
  }
  arguments.sources.assign(argv + optind, argv + argc);
  return arguments;
}

void _CheckArguments(const Arguments& arguments) {
  if (arguments.sources.empty()) throw UsageError("SOURCE is required");
  if (arguments.outputs.empty()) throw UsageError("--output is required");
  if (arguments.outputs.size() > 1) {
    throw UsageError("--output: At Most 1 required but received " + std::to_string(arguments.outputs.size()));
  }
}

void _CompileSource(const std::string& path, ForkWriter* file) {
  static const struct {
    const char* key;
    ElementCompiler compile;
  } kSections[] = {{"stringLists", CompileStringList}, {"alerts", CompileAlert}, {"dialogs", CompileDialog}};
  const Node source = Node::ReadFile(path);
  source.AllowKeys({{"stringLists", "alerts", "dialogs"}});
  for (const auto& [key, compile] : kSections) {
    const std::optional<Node> section = source.Find(key);
    if (!section) continue;
    for (const Node& element : section->Elements()) compile(element, file);
  }
}

// The file takes its name only when it is complete.
void _Write(const std::string& path, const std::string& bytes) {
  const std::string temporary = path + ".new";
  errno = 0;
  std::ofstream stream(temporary, std::ios::binary);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  stream.close();
  if (stream && std::rename(temporary.c_str(), path.c_str()) == 0) return;
  const int error = errno != 0 ? errno : EIO;
  std::remove(temporary.c_str());
  throw SourceError("cannot write " + path + ": " + std::strerror(error));
}

void _Run(const std::vector<std::string>& sources, const std::string& output) {
  ForkWriter file;
  for (const std::string& source : sources) _CompileSource(source, &file);
  _Write(output, file.Serialize());
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const Arguments arguments = _ReadArguments(argc, argv);
    if (arguments.help) {
      std::fputs(kHelp, stdout);
      return 0;
    }
    _CheckArguments(arguments);
    _Run(arguments.sources, arguments.outputs.front());
    return 0;
  } catch (const UsageError& error) {
    std::fprintf(stderr, "%s\nRun with --help for more information.\n", error.what());
    return kExitUsage;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
  }
  return kExitFailure;
}
