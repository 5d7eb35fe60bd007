#include "Platform/Core/Files.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "Platform/Core/Paths.h"

namespace {

constexpr size_t kComponentLimit = 255;

constexpr int16_t kVolume = -100;
constexpr int32_t kFirstDirectory = 2;

// Folders by directory id: kFirstDirectory + index.
struct DirectoryTable {
  std::vector<std::string> paths;
  std::unordered_map<std::string, int32_t> ids;
};

// Both tables are never freed: references and ids live as long as the process.
const char* _InternPath(const std::string& path) {
  static auto* const paths = new std::unordered_set<std::string>;
  return paths->insert(path).first->c_str();
}

DirectoryTable& _Directories() {
  static auto* const table = new DirectoryTable;
  return *table;
}

OSErr _ErrorOf(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR: return fnfErr;
    case ENAMETOOLONG: return bdNamErr;
    default: return ioErr;
  }
}

}  // namespace

const char* FSRefPath(const FSRef* file) {
  if (file == nullptr) return nullptr;
  if (std::memcmp(file->hidden, QZFILTER_FSREF_TAG, QZFILTER_FSREF_TAG_SIZE) != 0) return nullptr;
  const char* path = nullptr;
  std::memcpy(&path, file->hidden + QZFILTER_FSREF_PATH_OFFSET, sizeof(path));
  return path;
}

OSStatus FSPathMakeRef(const char* path, FSRef* file, bool* isDirectory) {
  if (path == nullptr || file == nullptr) return paramErr;
  const std::string absolute = AbsolutePath(path);
  struct stat status;
  if (absolute.empty()) return fnfErr;
  if (stat(absolute.c_str(), &status) != 0) return _ErrorOf(errno);
  *file = QZFilter_MakeFSRef(_InternPath(absolute));
  if (isDirectory != nullptr) *isDirectory = S_ISDIR(status.st_mode);
  return noErr;
}

OSStatus FSRefMakePath(const FSRef* file, char* path, uint32_t size) {
  if (path == nullptr || size == 0) return paramErr;
  path[0] = '\0';
  const char* const held = FSRefPath(file);
  if (held == nullptr) return paramErr;
  const size_t length = std::strlen(held);
  if (length >= size) return paramErr;
  std::memcpy(path, held, length + 1);
  return noErr;
}

namespace {

OSErr _FolderToID(const std::string& folder, int16_t* vRefNum, int32_t* dirID) {
  if (vRefNum == nullptr || dirID == nullptr) return paramErr;
  if (!IsFolder(folder)) return dirNFErr;
  DirectoryTable& table = _Directories();
  const auto [entry, isNew] =
      table.ids.try_emplace(folder, kFirstDirectory + static_cast<int32_t>(table.paths.size()));
  if (isNew) table.paths.push_back(folder);
  *vRefNum = kVolume;
  *dirID = entry->second;
  return noErr;
}

}  // namespace

OSErr FSRefToID(const FSRef* folder, int16_t* vRefNum, int32_t* dirID) {
  const char* const path = FSRefPath(folder);
  return path == nullptr ? OSErr{paramErr} : _FolderToID(AbsolutePath(path), vRefNum, dirID);
}

OSErr PathToID(const char* path, int16_t* vRefNum, int32_t* dirID) {
  if (path == nullptr) return paramErr;
  const char* const slash = std::strrchr(path, '/');
  const std::string_view folder = slash == nullptr
                                      ? std::string_view(".")
                                      : std::string_view(path, static_cast<size_t>(slash + 1 - path));
  return _FolderToID(AbsolutePath(folder), vRefNum, dirID);
}

namespace {

// The path of a directory id, null for an unknown one.
const std::string* _PathOfID(int32_t dirID) {
  const std::vector<std::string>& paths = _Directories().paths;
  const int64_t index = int64_t{dirID} - kFirstDirectory;
  if (index < 0 || index >= static_cast<int64_t>(paths.size())) return nullptr;
  return &paths[static_cast<size_t>(index)];
}

}  // namespace

OSErr FSMakeFSRefFromID(int16_t vRefNum, int32_t dirID, FSRef* folder) {
  if (folder == nullptr) return paramErr;
  if (vRefNum != kVolume) return nsvErr;
  const std::string* const path = _PathOfID(dirID);
  if (path == nullptr || !IsFolder(*path)) return dirNFErr;
  return static_cast<OSErr>(FSPathMakeRef(path->c_str(), folder, nullptr));
}

namespace {

bool _IsComponent(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.size() <= kComponentLimit &&
         name.find('/') == std::string_view::npos;
}

}  // namespace

OSErr FSResolvePartialPath(int16_t vRefNum, int32_t dirID, const char* partialPath, FSRef* file) {
  if (partialPath == nullptr || file == nullptr) return paramErr;
  if (vRefNum != kVolume) return nsvErr;
  const std::string* const folder = _PathOfID(dirID);
  if (folder == nullptr) return dirNFErr;

  std::string path = *folder;
  std::string_view rest = partialPath;
  if (!rest.empty() && rest.front() == ':') rest.remove_prefix(1);
  for (bool more = true; more;) {
    const size_t colon = rest.find(':');
    const std::string_view component = rest.substr(0, colon);
    if (!_IsComponent(component)) return bdNamErr;
    path.append("/").append(component);
    more = colon != std::string_view::npos;
    if (more) rest.remove_prefix(colon + 1);
  }
  return static_cast<OSErr>(FSPathMakeRef(path.c_str(), file, nullptr));
}

OSErr FSFindFolder(OSType folderType, bool create, FSRef* folder) {
  if (folder == nullptr) return paramErr;
  if (folderType != kTemporaryFolderType) return fnfErr;
  const char* const environment = std::getenv("TMPDIR");
  const std::string path = environment == nullptr || *environment == '\0' ? "/tmp" : environment;
  if (create && mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST) return _ErrorOf(errno);
  if (!IsFolder(path)) return fnfErr;
  return static_cast<OSErr>(FSPathMakeRef(path.c_str(), folder, nullptr));
}
