#include "CommandLine/OutputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <optional>
#include <system_error>

#include "CommandLine/ClassInput.h"
#include "CommandLine/CommandError.h"
#include "CommandLine/TemporaryFile.h"
#include "CommandLine/TextOut.h"

namespace {

namespace fs = std::filesystem;

[[noreturn]] void _Fail(int error) {
  throw std::system_error(error, std::generic_category());
}

// The state of the file, behind symbolic links; none when there is no such file.
std::optional<struct stat> _StateOf(const std::string& path) {
  struct stat state {};
  if (stat(path.c_str(), &state) == 0) return state;
  if (errno != ENOENT) _Fail(errno);
  return std::nullopt;
}

bool _IsSame(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool _IsStandardOutput(const struct stat& state) {
  struct stat standardOutput {};
  return fstat(STDOUT_FILENO, &standardOutput) == 0 && _IsSame(state, standardOutput);
}

// The file that a chain of symbolic links ends at, which need not exist. The system has followed the chain
// before, so it does end.
fs::path _FollowLinks(fs::path path) {
  while (fs::is_symlink(fs::symlink_status(path))) path = path.parent_path() / fs::read_symlink(path);
  return path;
}

void _Write(std::FILE* stream, const OutputWriter& write) {
  const int error = write(stream);
  if (error != 0) _Fail(error);
}

void _WriteDirectly(const std::string& path, const OutputWriter& write) {
  const int descriptor = open(path.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC);
  std::FILE* stream = descriptor < 0 ? nullptr : fdopen(descriptor, "w");
  if (stream == nullptr) _Fail(errno);
  const int error = write(stream);
  if (std::fclose(stream) != 0 && error == 0) _Fail(errno);
  if (error != 0) _Fail(error);
}

void _Replace(const std::string& path, const std::optional<struct stat>& old, const OutputWriter& write) {
  // Renaming needs no permission to write the old file, so a protected one would be lost.
  if (old && access(path.c_str(), W_OK) != 0) _Fail(errno);
  const fs::path target = _FollowLinks(path);
  TemporaryFile file(target.parent_path(), old);
  _Write(file.Stream(), write);
  file.Rename(target);
}

void _WriteFile(const std::string& path, const OutputWriter& write) {
  const std::optional<struct stat> old = _StateOf(path);
  if (old && _IsStandardOutput(*old)) return _Write(stdout, write);
  if (old && S_ISDIR(old->st_mode)) _Fail(EISDIR);
  if (old && !S_ISREG(old->st_mode)) return _WriteDirectly(path, write);
  _Replace(path, old, write);
}

}  // namespace

void WriteOutput(const std::string& path, const OutputWriter& write) {
  const bool standardOutput = path == kStandardStream;
  try {
    if (standardOutput) {
      _Write(stdout, write);
    } else {
      _WriteFile(path, write);
    }
  } catch (const std::system_error& error) {
    // Whoever reads from the pipe has seen enough.
    if (error.code().value() == EPIPE) throw CommandError(kExitOutput, "");
    throw CommandError(kExitOutput, "cannot write " +
                                        (standardOutput ? "(standard output)" : PrintableUtf8(path)) + ": " +
                                        std::strerror(error.code().value()));
  }
}

void WriteStandardOutput(const std::string& text) {
  WriteOutput(kStandardStream, [&text](std::FILE* stream) {
    errno = 0;
    const bool written = std::fwrite(text.data(), 1, text.size(), stream) == text.size();
    return std::fflush(stream) == 0 && written ? 0 : errno != 0 ? errno : EIO;
  });
}

bool IsSameFile(const std::string& inputPath, const std::string& outputPath) {
  struct stat input {};
  struct stat output {};
  const int inputResult =
      inputPath == kStandardStream ? fstat(STDIN_FILENO, &input) : stat(inputPath.c_str(), &input);
  const int outputResult =
      outputPath == kStandardStream ? fstat(STDOUT_FILENO, &output) : stat(outputPath.c_str(), &output);
  return inputResult == 0 && outputResult == 0 && S_ISREG(input.st_mode) && _IsSame(input, output);
}
