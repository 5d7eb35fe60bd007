// A file under a temporary name that takes its real name once it is complete.
#ifndef GRADIX_TEMPORARYFILE_H
#define GRADIX_TEMPORARYFILE_H

#include <sys/stat.h>

#include <cstdio>
#include <filesystem>
#include <optional>

// Removed by the destructor, and when the program is interrupted, unless Rename succeeded. One at a time.
// Failures are thrown as std::system_error.
class TemporaryFile {
 public:
  // Creates the file in the folder (empty: the current one), with the owner and permissions of the old file
  // it will replace, or those of any new file.
  TemporaryFile(const std::filesystem::path& folder, const std::optional<struct stat>& old);
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  std::FILE* Stream() { return m_stream; }

  // Makes sure that everything is on the disk, closes the file and gives it its name.
  void Rename(const std::filesystem::path& name);

 private:
  std::FILE* m_stream = nullptr;
};

#endif  // GRADIX_TEMPORARYFILE_H
