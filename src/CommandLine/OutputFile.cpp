#include "CommandLine/OutputFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <system_error>

#include "CommandLine/ClassInput.h"
#include "CommandLine/CommandError.h"
#include "CommandLine/TerminalText.h"

namespace {

std::string _ReasonOf(int error) {
  return std::generic_category().message(error);
}

// The file's state, behind symbolic links; that of the open stream for "-". False when there is none.
bool _GetState(const std::string& path, int standardStream, struct stat* state) {
  return (path == kStandardStream ? fstat(standardStream, state) : stat(path.c_str(), state)) == 0;
}

bool _IsSame(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

std::string _InPlaceText(const FileOutcome& outcome) {
  const std::string reason = " (" + _ReasonOf(outcome.inPlaceError) + ")";
  return outcome.inPlace == InPlace::kNoSecondFile ? "its folder takes no second file" + reason
                                                   : "no other file can take its place" + reason;
}

}  // namespace

bool IsStandardOutput(const std::string& path) {
  struct stat state {};
  struct stat standardOutput {};
  return path == kStandardStream ||
         (_GetState(path, STDOUT_FILENO, &state) && fstat(STDOUT_FILENO, &standardOutput) == 0 &&
          _IsSame(state, standardOutput));
}

void TellOutcome(const std::string& path, const FileOutcome& outcome) {
  // Whoever reads from the pipe has seen enough.
  if (outcome.error == EPIPE) throw CommandError(kExitOutput, "");
  const std::string name = path == kStandardStream ? "(standard output)" : PrintableUtf8(path);
  if (outcome.error != 0) {
    std::string text = "cannot write " + name + ": " + _ReasonOf(outcome.error);
    if (outcome.incomplete) {
      text += "\nThe file is incomplete: it was written in place, because " + _InPlaceText(outcome) + ".";
    }
    throw CommandError(kExitOutput, text);
  }
  if (outcome.inPlace != InPlace::kNo) Warn(name + " was written in place, because " + _InPlaceText(outcome));
}

void WriteStandardOutput(const std::string& text) {
  errno = 0;
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  FileOutcome outcome;
  if (std::fflush(stdout) != 0 || !written) outcome.error = errno != 0 ? errno : EIO;
  TellOutcome(kStandardStream, outcome);
}

bool IsSameFile(const std::string& inputPath, const std::string& outputPath) {
  struct stat input {};
  struct stat output {};
  return _GetState(inputPath, STDIN_FILENO, &input) && _GetState(outputPath, STDOUT_FILENO, &output) &&
         S_ISREG(input.st_mode) && _IsSame(input, output);
}
