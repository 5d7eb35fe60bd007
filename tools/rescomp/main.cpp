// gxrescomp: JSON sources of dialogs, alerts and string lists, made into one resource file.

#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <fstream>
#include <optional>
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

using ElementCompiler = void (*)(const Node&, ForkWriter*);

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
    CLI::App app("Makes a resource file from JSON sources.", "gxrescomp");
    std::vector<std::string> sources;
    std::string output;
    app.add_option("SOURCE", sources, "Sources of dialogs, alerts and string lists.")->required();
    app.add_option("-o,--output", output, "The resource file to write.")->required()->type_name("FILE");
    try {
      app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
      return app.exit(error) == 0 ? 0 : kExitUsage;
    }
    _Run(sources, output);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
  }
  return kExitFailure;
}
