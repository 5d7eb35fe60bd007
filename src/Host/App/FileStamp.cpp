#include "Host/App/FileStamp.h"

#include <sys/stat.h>

#include <QFile>
#include <functional>
#include <vector>

namespace host {

void ContentHash::Add(std::string_view block) {
  constexpr size_t kFactor = 0x9E3779B97F4A7C15U;
  m_value = m_value * kFactor + std::hash<std::string_view>{}(block);
}

FileStamp StampOf(const struct stat& status) {
  constexpr qint64 kNanoseconds = 1'000'000'000;
  return {.size = status.st_size, .modified = status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec};
}

FileStamp LookAtFile(const QString& path) {
  struct stat status {};
  return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? StampOf(status) : FileStamp{};
}

std::optional<size_t> HashContent(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return std::nullopt;
  ContentHash hash;
  std::vector<char> block(ContentHash::kBlockSize);
  for (;;) {
    size_t filled = 0;
    while (filled < block.size()) {
      const qint64 count = file.read(block.data() + filled, static_cast<qint64>(block.size() - filled));
      if (count < 0) return std::nullopt;
      if (count == 0) break;
      filled += static_cast<size_t>(count);
    }
    if (filled > 0) hash.Add({block.data(), filled});
    if (filled < block.size()) return hash.Value();
  }
}

}  // namespace host
