// How a file was when it was read, to notice later that it has changed.
#ifndef GRADIX_FILESTAMP_H
#define GRADIX_FILESTAMP_H

#include <QString>
#include <QtGlobal>
#include <cstddef>
#include <optional>
#include <string_view>

struct stat;

namespace host {

// Of bytes that come in blocks; every one but the last has kBlockSize bytes. The same in this process only.
class ContentHash {
 public:
  static constexpr size_t kBlockSize = size_t{64} * 1024;

  void Add(std::string_view block);
  size_t Value() const { return m_value; }

 private:
  size_t m_value = 0;
};

struct FileStamp {
  qint64 size = -1;     // bytes; -1: there was no file
  qint64 modified = 0;  // nanoseconds since 1970
  size_t content = 0;   // the ContentHash of its bytes

  bool HasTimeAndSizeOf(const FileStamp& other) const {
    return size == other.size && modified == other.modified;
  }
};

// Size and time only.
FileStamp StampOf(const struct stat& status);
FileStamp LookAtFile(const QString& path);

// Nothing when the file cannot be read. Reads it to its end.
std::optional<size_t> HashContent(const QString& path);

}  // namespace host

#endif  // GRADIX_FILESTAMP_H
