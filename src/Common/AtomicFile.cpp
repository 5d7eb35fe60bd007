#include "Common/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

namespace {

namespace fs = std::filesystem;

constexpr int kMaximumAttempts = 100;
constexpr size_t kCopySize = size_t{64} * 1024;
constexpr mode_t kPrivate = 0600;
constexpr mode_t kAnyNewFile = 0666;

[[noreturn]] void _Fail(int error) {
  throw std::system_error(error, std::generic_category());
}

class Descriptor {
 public:
  explicit Descriptor(int number) : m_number(number) {
    if (number < 0) _Fail(errno);
  }
  ~Descriptor() {
    if (m_number >= 0) close(m_number);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int Number() const { return m_number; }
  int Release() { return std::exchange(m_number, -1); }

 private:
  int m_number;
};

struct StreamCloser {
  void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using Stream = std::unique_ptr<std::FILE, StreamCloser>;

Stream _MakeStream(Descriptor* descriptor) {
  Stream stream(fdopen(descriptor->Number(), "w"));
  if (stream == nullptr) _Fail(errno);
  descriptor->Release();
  return stream;
}

void _Close(Stream stream) {
  if (std::fclose(stream.release()) != 0) _Fail(errno);
}

// The state of the file, behind symbolic links; none when there is no such file.
std::optional<struct stat> _StateOf(const std::string& path) {
  struct stat state {};
  if (stat(path.c_str(), &state) == 0) return state;
  if (errno != ENOENT || path.empty()) _Fail(errno);
  return std::nullopt;
}

bool _IsSame(const std::optional<struct stat>& a, const std::optional<struct stat>& b) {
  if (!a || !b) return !a && !b;
  return a->st_dev == b->st_dev && a->st_ino == b->st_ino;
}

// The file that a chain of symbolic links ends at, which need not exist. The system has followed the chain
// before, so it does end.
fs::path _FollowLinks(fs::path path) {
  while (fs::is_symlink(fs::symlink_status(path))) path = path.parent_path() / fs::read_symlink(path);
  return path;
}

void _TakeOwnerAndPermissions(int descriptor, const struct stat& old) {
  mode_t permissions = old.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
  const uid_t owner = geteuid() == 0 ? old.st_uid : static_cast<uid_t>(-1);
  // With another group, the group's permissions would let strangers in.
  if (fchown(descriptor, owner, old.st_gid) != 0) permissions &= ~static_cast<mode_t>(S_IRWXG);
  if (fchmod(descriptor, permissions) != 0) _Fail(errno);
}

// File systems that cannot flush a single file say so; they have nothing else to offer.
void _Flush(std::FILE* stream) {
  if (std::fflush(stream) != 0) _Fail(errno);
  if (fsync(fileno(stream)) != 0 && errno != EINVAL && errno != ENOSYS) _Fail(errno);
}

void _Fill(std::FILE* stream, const FileWriter& write) {
  const int error = write(stream);
  if (error != 0) _Fail(error);
}

std::string _HiddenName() {
  uint64_t number = 0;
  if (getentropy(&number, sizeof number) != 0) _Fail(errno);
  return ".gradix-" + std::to_string(number);
}

// Calls `make` with hidden names until one is free. Returns what it gave and the name.
template <typename Make>
std::pair<int, std::string> _WithHiddenName(Make make) {
  for (int attempt = 0; attempt < kMaximumAttempts; ++attempt) {
    std::string name = _HiddenName();
    const int result = make(name.c_str());
    if (result >= 0) return {result, std::move(name)};
    if (errno != EEXIST) _Fail(errno);
  }
  _Fail(EEXIST);
}

std::string _PathOfDescriptor(int descriptor) {
  return "/proc/self/fd/" + std::to_string(descriptor);
}

// An unfinished file in a folder, gone with the object unless it has been given a name.
class TemporaryFile {
 public:
  // With the owner and permissions of the old file it will replace, or those of any new file.
  TemporaryFile(const fs::path& folder, const std::optional<struct stat>& old)
      : m_folder(open(folder.empty() ? "." : folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {
    Descriptor descriptor(Create(old ? kPrivate : kAnyNewFile));
    try {
      if (old) _TakeOwnerAndPermissions(descriptor.Number(), *old);
      m_stream = _MakeStream(&descriptor);
    } catch (...) {
      RemoveName();
      throw;
    }
  }
  ~TemporaryFile() { RemoveName(); }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  std::FILE* GetStream() { return m_stream.get(); }

  // Takes the name of the old file, if any. Returns the errno value when that is refused.
  int Rename(const fs::path& name) {
    try {
      if (m_hiddenName.empty()) Link();
    } catch (const std::system_error& error) {
      return error.code().value();
    }
    const int folder = m_folder.Number();
    if (renameat(folder, m_hiddenName.c_str(), folder, name.c_str()) != 0) return errno;
    m_hiddenName.clear();
    return 0;
  }

  void Close() { _Close(std::move(m_stream)); }

 private:
  int Create(mode_t mode) {
    const int folder = m_folder.Number();
    const int unnamed = openat(folder, ".", O_TMPFILE | O_RDWR | O_CLOEXEC, mode);
    if (unnamed >= 0) {
      if (access(_PathOfDescriptor(unnamed).c_str(), F_OK) == 0) return unnamed;
      close(unnamed);  // it could never be given a name
    }
    auto [descriptor, name] = _WithHiddenName([folder, mode](const char* hidden) {
      return openat(folder, hidden, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    });
    m_hiddenName = std::move(name);
    return descriptor;
  }

  void Link() {
    const std::string path = _PathOfDescriptor(fileno(m_stream.get()));
    m_hiddenName = _WithHiddenName([this, &path](const char* hidden) {
                     return linkat(AT_FDCWD, path.c_str(), m_folder.Number(), hidden, AT_SYMLINK_FOLLOW);
                   }).second;
  }

  void RemoveName() {
    if (!m_hiddenName.empty()) unlinkat(m_folder.Number(), m_hiddenName.c_str(), 0);
    m_hiddenName.clear();
  }

  Descriptor m_folder;
  std::string m_hiddenName;  // empty: it has none
  Stream m_stream;
};

// Has `write` overwrite what is there, which may be no plain file.
void _Overwrite(const std::string& path, const FileWriter& write, FileOutcome* outcome) {
  Descriptor descriptor(open(path.c_str(), O_WRONLY | O_TRUNC | O_NOCTTY | O_CLOEXEC));
  outcome->begun = true;
  outcome->incomplete = outcome->inPlace != InPlace::kNo;
  Stream stream = _MakeStream(&descriptor);
  _Fill(stream.get(), write);
  _Flush(stream.get());
  _Close(std::move(stream));
  outcome->incomplete = false;
}

// Appends the whole content of the file.
int _Copy(int source, std::FILE* destination) {
  std::array<char, kCopySize> buffer{};
  off_t offset = 0;
  for (;;) {
    const ssize_t count = pread(source, buffer.data(), buffer.size(), offset);
    if (count == 0) return 0;
    const auto size = static_cast<size_t>(count);
    if (count < 0 || std::fwrite(buffer.data(), 1, size, destination) != size) return errno;
    offset += count;
  }
}

// Whether it is the place that refuses, rather than the disk that is full or broken.
bool _IsRefusal(int error) {
  return error == EACCES || error == EPERM || error == EROFS || error == EBUSY || error == EXDEV;
}

// Null when the folder takes no second file beside an old one; the outcome then says so.
std::unique_ptr<TemporaryFile> _MakeTemporary(const fs::path& folder, const std::optional<struct stat>& old,
                                              FileOutcome* outcome) {
  try {
    return std::make_unique<TemporaryFile>(folder, old);
  } catch (const std::system_error& error) {
    if (!old || !_IsRefusal(error.code().value())) throw;
    outcome->inPlace = InPlace::kNoSecondFile;
    outcome->inPlaceError = error.code().value();
    return nullptr;
  }
}

void _WritePlainFile(const std::string& path, const std::optional<struct stat>& old, const FileWriter& write,
                     FileOutcome* outcome) {
  // Renaming needs no permission to write the old file, so a protected one would be lost.
  if (old && access(path.c_str(), W_OK) != 0) _Fail(errno);
  const fs::path target = _FollowLinks(path);
  // Some links, such as those of open files, lead where their text does not.
  if (!_IsSame(old, _StateOf(target))) return _Overwrite(path, write, outcome);
  const auto file = _MakeTemporary(target.parent_path(), old, outcome);
  if (file == nullptr) return _Overwrite(path, write, outcome);

  outcome->begun = true;
  _Fill(file->GetStream(), write);
  _Flush(file->GetStream());
  const int refusal = file->Rename(target.filename());
  if (refusal == 0) return file->Close();
  if (!old || !_IsRefusal(refusal)) _Fail(refusal);
  outcome->inPlace = InPlace::kNotReplaceable;
  outcome->inPlaceError = refusal;
  const int source = fileno(file->GetStream());
  _Overwrite(
      path, [source](std::FILE* stream) { return _Copy(source, stream); }, outcome);
}

void _Write(const std::string& path, const FileWriter& write, FileOutcome* outcome) {
  const std::optional<struct stat> old = _StateOf(path);
  if (old && S_ISDIR(old->st_mode)) _Fail(EISDIR);
  if (old && !S_ISREG(old->st_mode)) return _Overwrite(path, write, outcome);
  _WritePlainFile(path, old, write, outcome);
}

}  // namespace

FileOutcome WriteAtomicFile(const std::string& path, const FileWriter& write) {
  FileOutcome outcome;
  try {
    _Write(path, write, &outcome);
  } catch (const std::system_error& error) {
    outcome.error = error.code().value();
  }
  return outcome;
}
