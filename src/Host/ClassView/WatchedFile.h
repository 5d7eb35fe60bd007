// A file as a stream that tells how far it has been read, and that can be told to end.
#ifndef GRADIX_WATCHEDFILE_H
#define GRADIX_WATCHEDFILE_H

#include <QtGlobal>
#include <atomic>
#include <streambuf>
#include <string>
#include <vector>

#include "Host/App/FileStamp.h"

namespace host {

// Joins a read with whoever waits for it in another thread.
struct ReadWatch {
  std::atomic<bool> stop = false;  // set it to end the read soon
  std::atomic<qint64> read = 0;    // bytes so far
  std::atomic<qint64> size = -1;   // of the file; -1: not known, as of a pipe
};

// A file that is told to stop ends there. Even a pipe nobody writes into stops.
class WatchedFile : public std::streambuf {
 public:
  static constexpr size_t kHeadSize = 4096;

  // `watch` has to outlive the file.
  explicit WatchedFile(ReadWatch* watch);
  ~WatchedFile() override;
  WatchedFile(const WatchedFile&) = delete;
  WatchedFile& operator=(const WatchedFile&) = delete;

  // 0, or the system's error. To be called once.
  int Open(const std::string& path);

  const std::string& Head() const { return m_head; }  // its first bytes, of those that were read
  // The file when it was opened, with the content that was read; without a size when it is no plain file.
  FileStamp Stamp() const;

 protected:
  // A failing read throws, which makes the stream bad; errno tells the reason.
  int_type underflow() override;

 private:
  size_t Fill();       // the buffer; gives the bytes there are
  bool WaitForData();  // false: told to stop

  ReadWatch* m_watch;
  int m_descriptor = -1;
  bool m_isPlainFile = false;
  FileStamp m_stamp;
  ContentHash m_hash;
  std::string m_head;
  std::vector<char> m_buffer;
};

}  // namespace host

#endif  // GRADIX_WATCHEDFILE_H
