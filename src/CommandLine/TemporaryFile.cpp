#include "CommandLine/TemporaryFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstring>
#include <random>
#include <string>
#include <system_error>
#include <utility>

namespace {

constexpr std::array kInterruptions = {SIGHUP, SIGINT, SIGTERM};
constexpr int kMaximumAttempts = 100;

// Path of the file, empty when there is none. A signal handler can use no more than this.
std::array<char, PATH_MAX> gTemporaryPath{};

[[noreturn]] void _Fail(int error) {
  throw std::system_error(error, std::generic_category());
}

void _Remove() {
  if (gTemporaryPath[0] != '\0') unlink(gTemporaryPath.data());
  gTemporaryPath[0] = '\0';
}

extern "C" void _OnInterruption(int number) {
  _Remove();
  std::signal(number, SIG_DFL);
  std::raise(number);
}

// A signal that the program was started to ignore, as under nohup, stays ignored.
void _CatchInterruptions() {
  for (const int number : kInterruptions) {
    if (std::signal(number, _OnInterruption) == SIG_IGN) std::signal(number, SIG_IGN);
  }
}

// Holds interruptions back, so that the handler never sees a path whose file is not ours.
class InterruptionBlock {
 public:
  InterruptionBlock() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int number : kInterruptions) sigaddset(&signals, number);
    sigprocmask(SIG_BLOCK, &signals, &m_previous);
  }
  ~InterruptionBlock() { sigprocmask(SIG_SETMASK, &m_previous, nullptr); }
  InterruptionBlock(const InterruptionBlock&) = delete;
  InterruptionBlock& operator=(const InterruptionBlock&) = delete;

 private:
  sigset_t m_previous{};
};

std::string _RandomName() {
  std::random_device random;
  return ".gxexport-" + std::to_string(random()) + std::to_string(random());
}

// Creates the file and notes its path. Returns its descriptor.
int _Create(const std::filesystem::path& folder, mode_t mode) {
  const InterruptionBlock block;
  for (int attempt = 0; attempt < kMaximumAttempts; ++attempt) {
    const std::string path = folder / _RandomName();
    if (path.size() >= gTemporaryPath.size()) _Fail(ENAMETOOLONG);
    const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (descriptor >= 0) {
      std::memcpy(gTemporaryPath.data(), path.c_str(), path.size() + 1);
      return descriptor;
    }
    if (errno != EEXIST) _Fail(errno);
  }
  _Fail(EEXIST);
}

void _TakeOwnerAndPermissions(int descriptor, const struct stat& old) {
  mode_t permissions = old.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
  const uid_t owner = geteuid() == 0 ? old.st_uid : static_cast<uid_t>(-1);
  // With another group, the group's permissions would let strangers in.
  if (fchown(descriptor, owner, old.st_gid) != 0) permissions &= ~static_cast<mode_t>(S_IRWXG);
  if (fchmod(descriptor, permissions) != 0) _Fail(errno);
}

// File systems that cannot flush a single file say so; they have nothing else to offer.
void _Flush(int descriptor) {
  if (fsync(descriptor) != 0 && errno != EINVAL && errno != ENOSYS) _Fail(errno);
}

}  // namespace

TemporaryFile::TemporaryFile(const std::filesystem::path& folder, const std::optional<struct stat>& old) {
  _CatchInterruptions();
  constexpr mode_t kPrivate = 0600;
  constexpr mode_t kAnyNewFile = 0666;
  const int descriptor = _Create(folder, old ? kPrivate : kAnyNewFile);
  try {
    if (old) _TakeOwnerAndPermissions(descriptor, *old);
    m_stream = fdopen(descriptor, "w");
    if (m_stream == nullptr) _Fail(errno);
  } catch (const std::system_error&) {
    close(descriptor);
    _Remove();
    throw;
  }
}

TemporaryFile::~TemporaryFile() {
  if (m_stream != nullptr) std::fclose(m_stream);
  _Remove();
}

void TemporaryFile::Rename(const std::filesystem::path& name) {
  if (std::fflush(m_stream) != 0) _Fail(errno);
  _Flush(fileno(m_stream));
  std::FILE* stream = std::exchange(m_stream, nullptr);
  if (std::fclose(stream) != 0) _Fail(errno);
  if (std::rename(gTemporaryPath.data(), name.c_str()) != 0) _Fail(errno);
  gTemporaryPath[0] = '\0';
}
