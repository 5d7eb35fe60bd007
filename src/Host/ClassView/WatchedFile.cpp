#include "Host/ClassView/WatchedFile.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <ios>
#include <string_view>

namespace host {

WatchedFile::WatchedFile(ReadWatch* watch) : m_watch(watch), m_buffer(ContentHash::kBlockSize) {}

WatchedFile::~WatchedFile() {
  if (m_descriptor >= 0) ::close(m_descriptor);
}

int WatchedFile::Open(const std::string& path) {
  // Or a pipe that nobody has opened for writing would hold us here.
  m_descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  struct stat status {};
  if (m_descriptor < 0 || ::fstat(m_descriptor, &status) != 0) return errno;
  m_isPlainFile = S_ISREG(status.st_mode);
  if (m_isPlainFile) {
    m_stamp = StampOf(status);
    m_watch->size = m_stamp.size;
  }
  return 0;
}

FileStamp WatchedFile::Stamp() const {
  FileStamp stamp = m_stamp;
  stamp.content = m_hash.Value();
  return stamp;
}

WatchedFile::int_type WatchedFile::underflow() {
  const size_t filled = Fill();
  if (filled == 0) return traits_type::eof();
  m_hash.Add({m_buffer.data(), filled});
  m_head.append(m_buffer.data(), std::min(filled, kHeadSize - m_head.size()));
  setg(m_buffer.data(), m_buffer.data(), m_buffer.data() + filled);
  return traits_type::to_int_type(*gptr());
}

// Of a plain file, only its last piece is smaller than the buffer.
size_t WatchedFile::Fill() {
  size_t filled = 0;
  while (filled < m_buffer.size() && WaitForData()) {
    const ssize_t count = ::read(m_descriptor, m_buffer.data() + filled, m_buffer.size() - filled);
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) continue;
    if (count < 0) throw std::ios_base::failure("cannot read");
    if (count == 0) break;
    filled += static_cast<size_t>(count);
    m_watch->read += count;
    if (!m_isPlainFile) break;
  }
  return m_watch->stop ? 0 : filled;
}

bool WatchedFile::WaitForData() {
  constexpr int kPatience = 50;  // milliseconds
  pollfd descriptor{m_descriptor, POLLIN, 0};
  while (!m_watch->stop) {
    if (m_isPlainFile || ::poll(&descriptor, 1, kPatience) != 0) return true;
  }
  return false;
}

}  // namespace host
