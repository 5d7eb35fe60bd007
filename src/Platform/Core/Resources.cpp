#include "Platform/Core/Resources.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Platform/Core/BigEndian.h"
#include "Platform/Core/CFBundle.h"
#include "Platform/Core/Paths.h"
#include "Platform/Core/ResourceFork.h"

namespace {

constexpr size_t kFileLimit = size_t{16} << 20;  // bytes
constexpr ResFileRefNum kNoFile = -1;
constexpr ResFileRefNum kApplicationFile = 0;
constexpr ResType kStringList = FourCharCode("STR#");

struct Resource {
  std::span<const char> data;  // inside the file's bytes
  Handle handle = nullptr;     // null while not loaded
};

using ResourceKey = std::pair<ResType, int16_t>;

struct ResourceFile {
  std::string bytes;
  std::map<ResourceKey, Resource> resources;
  ResFileRefNum number = kApplicationFile;
  dev_t device = 0;
  ino_t inode = 0;
};

// The open files and the handles that were given out. Lives as long as the process.
class ResourceManager {
 public:
  OSErr Open(const char* path, ResFileRefNum* number);
  bool Use(ResFileRefNum number);
  bool Close(ResFileRefNum number);
  ResFileRefNum Current() const { return m_current; }

  Resource* Find(ResType type, int16_t id);
  Handle Load(Resource* resource);
  Resource* ResourceOf(Handle handle) const;
  // The handle is no resource any more and stays the caller's to dispose. False when it was none.
  bool Forget(Handle handle);

  OSErr lastResult = noErr;

 private:
  using FileList = std::vector<std::unique_ptr<ResourceFile>>;

  FileList::iterator FileOf(ResFileRefNum number);
  std::optional<ResFileRefNum> FreeNumber();
  void RefreshApplicationFile();
  void DisposeResources(ResourceFile* file);

  FileList m_files;  // in order of opening, without the application's own
  std::unique_ptr<ResourceFile> m_application;
  std::string m_applicationPath;  // last tried, whether or not it could be opened
  std::unordered_map<Handle, Resource*> m_handles;
  ResFileRefNum m_current = kApplicationFile;
  ResFileRefNum m_lastNumber = 0;
};

ResourceManager& _Manager() {
  static auto* const manager = new ResourceManager;
  return *manager;
}

// Null for a file that cannot be read or is damaged.
std::unique_ptr<ResourceFile> _ReadFile(const char* path) {
  std::optional<std::string> bytes = ReadWholeFile(path, kFileLimit);
  if (!bytes) return nullptr;
  auto file = std::make_unique<ResourceFile>();
  file->bytes = std::move(*bytes);
  const std::optional<std::vector<ResourceEntry>> entries = ReadResourceFork(file->bytes);
  if (!entries) return nullptr;
  for (const ResourceEntry& entry : *entries) {
    file->resources.try_emplace({entry.type, entry.id}, Resource{entry.data});
  }
  return file;
}

std::string _ApplicationFilePath() {
  const CFURLRef folder = CFBundleCopyBundleURL(CFBundleGetMainBundle());
  if (folder == nullptr) return {};
  std::string path = folder->path + "/Resources/Gradix.rsrc";
  CFRelease(folder);
  return path;
}

Resource* _FindIn(ResourceFile* file, const ResourceKey& key) {
  if (file == nullptr) return nullptr;
  const auto found = file->resources.find(key);
  return found == file->resources.end() ? nullptr : &found->second;
}

}  // namespace

ResourceManager::FileList::iterator ResourceManager::FileOf(ResFileRefNum number) {
  return std::find_if(m_files.begin(), m_files.end(),
                      [number](const auto& file) { return file->number == number; });
}

// The number after the last one given, so that the number of a closed file stays unknown for long.
std::optional<ResFileRefNum> ResourceManager::FreeNumber() {
  constexpr ResFileRefNum kGreatest = std::numeric_limits<ResFileRefNum>::max();
  if (m_files.size() >= size_t{kGreatest}) return std::nullopt;
  do {
    m_lastNumber =
        m_lastNumber == kGreatest ? ResFileRefNum{1} : static_cast<ResFileRefNum>(m_lastNumber + 1);
  } while (FileOf(m_lastNumber) != m_files.end());
  return m_lastNumber;
}

OSErr ResourceManager::Open(const char* path, ResFileRefNum* number) {
  struct stat status;
  if (stat(path, &status) != 0) return fnfErr;
  const auto open = std::find_if(m_files.begin(), m_files.end(), [&status](const auto& file) {
    return file->device == status.st_dev && file->inode == status.st_ino;
  });
  if (open != m_files.end()) {
    *number = m_current = (*open)->number;
    return noErr;
  }
  std::unique_ptr<ResourceFile> file = _ReadFile(path);
  if (file == nullptr) return mapReadErr;
  const std::optional<ResFileRefNum> freeNumber = FreeNumber();
  if (!freeNumber) return memFullErr;
  file->device = status.st_dev;
  file->inode = status.st_ino;
  file->number = *freeNumber;
  m_files.push_back(std::move(file));
  *number = m_current = *freeNumber;
  return noErr;
}

bool ResourceManager::Use(ResFileRefNum number) {
  if (number != kApplicationFile && FileOf(number) == m_files.end()) return false;
  m_current = number;
  return true;
}

bool ResourceManager::Close(ResFileRefNum number) {
  if (number == kApplicationFile) return true;
  const auto file = FileOf(number);
  if (file == m_files.end()) return false;
  if (number == m_current)
    m_current = file == m_files.begin() ? kApplicationFile : (*std::prev(file))->number;
  DisposeResources(file->get());
  m_files.erase(file);
  return true;
}

void ResourceManager::DisposeResources(ResourceFile* file) {
  for (auto& [key, resource] : file->resources) {
    m_handles.erase(resource.handle);
    DisposeHandle(resource.handle);
  }
}

void ResourceManager::RefreshApplicationFile() {
  std::string path = _ApplicationFilePath();
  if (path == m_applicationPath) return;
  if (m_application != nullptr) DisposeResources(m_application.get());
  m_application = path.empty() ? nullptr : _ReadFile(path.c_str());
  m_applicationPath = std::move(path);
}

Resource* ResourceManager::Find(ResType type, int16_t id) {
  const ResourceKey key(type, id);
  const auto current = FileOf(m_current);
  if (current != m_files.end()) {
    for (auto file = std::next(current); file != m_files.begin();) {
      Resource* const resource = _FindIn((--file)->get(), key);
      if (resource != nullptr) return resource;
    }
  }
  RefreshApplicationFile();
  return _FindIn(m_application.get(), key);
}

Handle ResourceManager::Load(Resource* resource) {
  if (resource->handle != nullptr) return resource->handle;
  resource->handle = NewHandleClear(resource->data.size());
  if (resource->handle == nullptr) return nullptr;
  std::copy(resource->data.begin(), resource->data.end(), *resource->handle);
  m_handles.emplace(resource->handle, resource);
  return resource->handle;
}

Resource* ResourceManager::ResourceOf(Handle handle) const {
  const auto found = m_handles.find(handle);
  return found == m_handles.end() ? nullptr : found->second;
}

bool ResourceManager::Forget(Handle handle) {
  Resource* const resource = ResourceOf(handle);
  if (resource == nullptr) return false;
  resource->handle = nullptr;
  m_handles.erase(handle);
  return true;
}

namespace {

OSErr _OpenResourceFile(const FSRef* file, uint16_t forkNameLength, int8_t permissions,
                        ResFileRefNum* number) {
  const char* const path = FSRefPath(file);
  const bool readOnly = permissions == fsCurPerm || permissions == fsRdPerm;
  if (path == nullptr || forkNameLength != 0 || !readOnly) return paramErr;
  return _Manager().Open(path, number);
}

}  // namespace

OSErr FSOpenResourceFile(const FSRef* file, uint16_t forkNameLength, const char16_t* /*forkName*/,
                         int8_t permissions, ResFileRefNum* refNum) {
  ResFileRefNum number = kNoFile;
  const OSErr result = _OpenResourceFile(file, forkNameLength, permissions, &number);
  if (refNum != nullptr) *refNum = number;
  return _Manager().lastResult = result;
}

void UseResFile(ResFileRefNum refNum) {
  _Manager().lastResult = _Manager().Use(refNum) ? noErr : resFNotFound;
}

ResFileRefNum CurResFile() {
  _Manager().lastResult = noErr;
  return _Manager().Current();
}

void CloseResFile(ResFileRefNum refNum) {
  _Manager().lastResult = _Manager().Close(refNum) ? noErr : resFNotFound;
}

OSErr ResError() {
  return _Manager().lastResult;
}

Handle GetResource(ResType type, int16_t id) {
  ResourceManager& manager = _Manager();
  Resource* const resource = manager.Find(type, id);
  const Handle handle = resource == nullptr ? nullptr : manager.Load(resource);
  manager.lastResult = resource == nullptr ? resNotFound : handle == nullptr ? memFullErr : noErr;
  return handle;
}

long GetResourceSizeOnDisk(Handle resource) {
  const Resource* const found = _Manager().ResourceOf(resource);
  _Manager().lastResult = found == nullptr ? resNotFound : noErr;
  return found == nullptr ? -1 : static_cast<long>(found->data.size());
}

void ReleaseResource(Handle resource) {
  const bool known = _Manager().Forget(resource);
  if (known) DisposeHandle(resource);
  _Manager().lastResult = known ? noErr : resNotFound;
}

void DetachResource(Handle resource) {
  _Manager().lastResult = _Manager().Forget(resource) ? noErr : resNotFound;
}

std::string GetIndString(int16_t id, int16_t index) {
  ResourceManager& manager = _Manager();
  const Resource* const list = manager.Find(kStringList, id);
  manager.lastResult = list == nullptr ? resNotFound : noErr;
  if (list == nullptr) return {};
  BigEndianReader reader(list->data);
  uint16_t count = 0;
  reader.Read16(&count);
  if (index < 1 || index > count) return {};
  for (int16_t i = 1; i < index && !reader.failed(); ++i) reader.TakePascalString();
  return std::string(reader.TakePascalString());
}
