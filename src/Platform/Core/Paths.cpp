#include "Platform/Core/Paths.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>

namespace {

std::string _WorkingFolder() {
  char buffer[PATH_MAX];
  return getcwd(buffer, sizeof(buffer)) == nullptr ? std::string() : std::string(buffer);
}

// Appends "/" and the component for each component of `path`.
void _AppendComponents(std::string* result, std::string_view path) {
  while (!path.empty()) {
    const size_t end = std::min(path.find('/'), path.size());
    const std::string_view component = path.substr(0, end);
    if (!component.empty() && component != ".") result->append("/").append(component);
    path.remove_prefix(std::min(end + 1, path.size()));
  }
}

}  // namespace

std::string AbsolutePath(std::string_view path) {
  std::string result;
  if (path.empty()) return result;
  if (path.front() != '/') {
    const std::string folder = _WorkingFolder();
    if (folder.empty() || folder.front() != '/') return result;
    _AppendComponents(&result, folder);
  }
  _AppendComponents(&result, path);
  return result.empty() ? "/" : result;
}

std::string_view LastComponent(std::string_view absolutePath) {
  return absolutePath.substr(absolutePath.rfind('/') + 1);
}

std::string_view FolderPart(std::string_view absolutePath) {
  const size_t slash = absolutePath.rfind('/');
  return absolutePath.substr(0, slash == 0 || slash == std::string_view::npos ? 1 : slash);
}

bool IsFolder(const std::string& path) {
  struct stat status;
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

namespace {

// Reads up to `size` bytes, fewer at the end of the file; false on an error.
bool _ReadBytes(int descriptor, size_t size, std::string* bytes) {
  bytes->resize(size);
  size_t count = 0;
  while (count < size) {
    const ssize_t step = read(descriptor, bytes->data() + count, size - count);
    if (step < 0 && errno == EINTR) continue;
    if (step < 0) return false;
    if (step == 0) break;
    count += static_cast<size_t>(step);
  }
  bytes->resize(count);
  return true;
}

}  // namespace

std::optional<std::string> ReadWholeFile(const char* path, size_t limit) {
  // Not blocking, so that opening a pipe by mistake returns.
  const int descriptor = open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (descriptor < 0) return std::nullopt;
  struct stat status;
  std::string bytes;
  const bool read = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
                    static_cast<uintmax_t>(status.st_size) <= limit &&
                    _ReadBytes(descriptor, static_cast<size_t>(status.st_size), &bytes);
  close(descriptor);
  if (!read) return std::nullopt;
  return bytes;
}
