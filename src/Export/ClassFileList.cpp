#include "Export/ClassFileList.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "Common/asciicase.h"

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kExtension = ".xml";

bool _HasExtension(const std::string& name) {
  if (name.size() <= kExtension.size()) return false;
  return AsciiEqualNoCase(std::string_view(name).substr(name.size() - kExtension.size()), kExtension);
}

// A link that leads nowhere counts, too: somebody has to be told of it.
bool _IsClassFile(const fs::directory_entry& entry) {
  std::error_code error;
  const fs::file_status status = entry.status(error);
  return _HasExtension(entry.path().filename().string()) &&
         (fs::is_regular_file(status) || !fs::exists(status));
}

bool _IsFolder(const fs::directory_entry& entry) {
  std::error_code error;
  return fs::is_directory(entry.symlink_status(error));
}

std::vector<fs::directory_entry> _EntriesOf(const fs::path& folder, std::error_code* error) {
  std::vector<fs::directory_entry> entries;
  for (fs::directory_iterator entry(folder, *error), end; !*error && entry != end; entry.increment(*error)) {
    if (!entry->path().filename().string().starts_with('.')) entries.push_back(*entry);
  }
  std::sort(entries.begin(), entries.end());
  return entries;
}

void _AddFolder(const fs::path& folder, bool recursive, std::vector<ListedClass>* classes) {
  std::error_code error;
  for (const fs::directory_entry& entry : _EntriesOf(folder, &error)) {
    if (_IsClassFile(entry)) classes->push_back({entry.path().string()});
    if (recursive && _IsFolder(entry)) _AddFolder(entry.path(), recursive, classes);
  }
  if (error) classes->push_back({folder.string(), error.value()});
}

}  // namespace

ClassFileList ListClassFiles(const std::vector<std::string>& paths, bool recursive) {
  ClassFileList list;
  for (const std::string& path : paths) {
    std::error_code error;
    if (!fs::is_directory(path, error)) {
      list.classes.push_back({path});
      continue;
    }
    const size_t before = list.classes.size();
    _AddFolder(path, recursive, &list.classes);
    if (list.classes.size() == before) list.emptyFolders.push_back(path);
  }
  return list;
}

std::string ClassBaseName(const std::string& path) {
  std::string name = fs::path(path).filename().string();
  if (_HasExtension(name)) name.resize(name.size() - kExtension.size());
  return name;
}
