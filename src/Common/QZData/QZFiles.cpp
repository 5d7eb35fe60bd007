#include "Common/QZData/QZFiles.h"

#include <dlfcn.h>
#include <link.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

#include "Common/asciicase.h"
#include "Platform/Core/Files.h"

namespace {

constexpr size_t kSecretSize = 512;  // of a text before it is hidden, with the closing zero

std::string_view _View(const char* text) {
  return text == nullptr ? std::string_view() : std::string_view(text);
}

// Copies what fits, with a closing zero, and gives its length.
size_t _CopyText(char* out, size_t size, std::string_view text) {
  if (size == 0) return 0;
  const size_t length = std::min(text.size(), size - 1);
  std::memmove(out, text.data(), length);
  out[length] = '\0';
  return length;
}

std::string _ProgramFile() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).string();
}

// The file of the object that holds the address; empty when none does.
std::string _FileOfAddress(const void* address) {
  Dl_info info;
  link_map* object = nullptr;
  if (dladdr1(address, &info, reinterpret_cast<void**>(&object), RTLD_DL_LINKMAP) == 0) return {};
  if (object == nullptr || *object->l_name == '\0') return _ProgramFile();
  const std::unique_ptr<char, decltype(&std::free)> full(realpath(object->l_name, nullptr), &std::free);
  return full == nullptr ? object->l_name : full.get();
}

void _CutAtBackslash(char* path) {
  char* backslash = std::strrchr(path, '\\');
  if (backslash != nullptr) *backslash = '\0';
}

bool _EndsWithNoCase(std::string_view text, std::string_view suffix) {
  return text.size() >= suffix.size() && AsciiEqualNoCase(text.substr(text.size() - suffix.size()), suffix);
}

bool _Matches(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;
  size_t n = 0;
  size_t p = 0;
  size_t star = std::string_view::npos;  // the last one met
  size_t resume = 0;                     // where the name goes on behind what it stands for
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      resume = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
      ++p;
      ++n;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++resume;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

// Calls `visit` with the name of every plain file and folder that matches, in no order.
template <typename Visitor>
void _VisitFolder(const char* folder, std::string_view pattern, Visitor visit) {
  std::error_code error;
  const std::filesystem::directory_iterator end;
  for (std::filesystem::directory_iterator entry(folder, error); !error && entry != end;
       entry.increment(error)) {
    std::error_code unreadable;
    const std::filesystem::file_status status = entry->status(unreadable);
    if (!std::filesystem::is_regular_file(status) && !std::filesystem::is_directory(status)) continue;
    const std::string name = entry->path().filename().string();
    if (_Matches(name, pattern)) visit(name);
  }
}

std::vector<std::string> _ListFolder(const char* folder, const char* pattern) {
  std::vector<std::string> names;
  _VisitFolder(folder, _View(pattern), [&names](const std::string& name) { names.push_back(name); });
  std::sort(names.begin(), names.end());
  return names;
}

void _RemoveFile(const char* folder, const std::string& name) {
  if (std::strlen(folder) + 1 + name.size() >= kPathSize) return;  // a cut path is another file's
  char path[kPathSize];
  qz::MakeFullPath(path, folder, name.c_str());
  unlink(path);  // refuses folders
}

struct VersionWords {
  uint32_t mostSignificant = 0;
  uint32_t leastSignificant = 0;

  bool Known() const { return mostSignificant != 0 || leastSignificant != 0; }
};

VersionWords _ReadVersion(const void* module) {
  char path[kPathSize];
  GetModuleFileName(module, path, sizeof path);
  uint32_t handle = 0;
  const uint32_t size = GetFileVersionInfoSize(path, &handle);
  if (size == 0) return {};
  const auto block = std::make_unique<char[]>(size);
  uint32_t words[4] = {};
  uint32_t length = 0;
  if (!GetFileVersionInfo(path, handle, size, block.get()) ||
      !VerQueryValue(block.get(), "\\", words, &length)) {
    return {};
  }
  return {words[2], words[3]};
}

// The more significant word counts for the first two numbers.
void _FormatVersion(char (&text)[40], uint32_t most, uint32_t last) {
  std::snprintf(text, sizeof text, "%u.%u.%u", most, most, last);
}

uint8_t _SecretMask(size_t position) {
  static constexpr uint8_t kKey[] = {0x5B, 0xE1, 0x36, 0x9C, 0x47, 0xD8, 0x72};
  return static_cast<uint8_t>(kKey[position % sizeof kKey] + 29 * position);
}

int _HexDigit(char digit) {
  const char lower = AsciiLower(digit);
  if (lower >= '0' && lower <= '9') return lower - '0';
  if (lower >= 'a' && lower <= 'f') return lower - 'a' + 10;
  return -1;
}

}  // namespace

uint32_t GetModuleFileName(const void* module, char* buffer, uint32_t size) {
  std::string path = module == nullptr ? _ProgramFile() : _FileOfAddress(module);
  if (path.empty() && module != nullptr) {
    path = _FileOfAddress(reinterpret_cast<const void*>(&GetModuleFileName));
  }
  return static_cast<uint32_t>(_CopyText(buffer, size, path));
}

uint32_t GetFileVersionInfoSize(const char* /*path*/, uint32_t* /*handle*/) {
  return 2;
}

bool GetFileVersionInfo(const char* /*path*/, uint32_t /*handle*/, uint32_t /*size*/, void* /*buffer*/) {
  return true;
}

bool VerQueryValue(const void* /*block*/, const char* /*subBlock*/, uint32_t* out, uint32_t* /*length*/) {
  out[2] = 1;
  out[3] = 1;
  return true;
}

uint32_t GetTempPath(uint32_t size, char* buffer) {
  FSRef folder;
  if (size == 0) return 0;
  *buffer = '\0';
  if (FSFindFolder(kTemporaryFolderType, true, &folder) != noErr) return 0;
  if (FSRefMakePath(&folder, buffer, size) != noErr) return 0;
  return static_cast<uint32_t>(std::strlen(buffer));
}

uint32_t GetTempFileName(const char* folder, const char* prefix, uint32_t number, char* out) {
  char digits[11];
  std::snprintf(digits, sizeof digits, "%05u", number);
  std::string path(_View(folder));
  path.append("/").append(_View(prefix)).append(digits);
  _CopyText(out, kPathSize, path);
  return 1;
}

void* FindFirstFile(const char* pattern, FindFileBlock* data) {
  int16_t vRefNum = 0;
  int32_t dirID = 0;
  if (pattern == nullptr || PathToID(pattern, &vRefNum, &dirID) != noErr) return nullptr;
  const char* slash = std::strrchr(pattern, '/');
  return qz::_findfirst(vRefNum, dirID, slash == nullptr ? pattern : slash + 1, data) ? data : nullptr;
}

bool FindNextFile(void* /*handle*/, FindFileBlock* data) {
  return qz::_findnext(data);
}

bool FindClose(void* /*handle*/) {
  return true;
}

bool CreateDirectory(const char* path, const void* /*attributes*/) {
  static_cast<void>(mkdir(path, S_IRWXU | S_IRWXG | S_IRWXO));
  return true;
}

void GetDllPath(char* buffer) {
  const size_t length = GetModuleFileName(reinterpret_cast<const void*>(&GetDllPath), buffer, kPathSize);
  std::transform(buffer, buffer + length, buffer, AsciiLower);
  _CutAtBackslash(buffer);
}

const char* GetFileVersionString(const void* module) {
  static char text[40] = "";
  if (*text != '\0') return text;
  const VersionWords version = _ReadVersion(module);
  if (version.Known()) _FormatVersion(text, version.mostSignificant, version.leastSignificant);
  return text;
}

namespace qz {

bool _findfirst(int16_t vRefNum, int32_t dirID, const char* pattern, FindFileBlock* data) {
  if (_View(pattern).size() >= sizeof data->pattern) return false;  // no name is that long
  *data = {};
  data->vRefNum = vRefNum;
  data->dirID = dirID;
  _CopyText(data->pattern, sizeof data->pattern, _View(pattern));
  return _findnext(data);
}

bool _findnext(FindFileBlock* data) {
  FSRef folder;
  char path[4096];
  if (FSMakeFSRefFromID(data->vRefNum, data->dirID, &folder) != noErr) return false;
  if (FSRefMakePath(&folder, path, sizeof path) != noErr) return false;
  std::string next;
  _VisitFolder(path, data->pattern, [data, &next](const std::string& name) {
    if (name > data->name && (next.empty() || name < next)) next = name;
  });
  if (next.empty()) return false;
  data->nameLength = static_cast<uint8_t>(_CopyText(data->name, sizeof data->name, next));
  return true;
}

const char* GetProgramPath() {
  static char path[kPathSize];
  GetModuleFileName(nullptr, path, sizeof path);
  _CutAtBackslash(path);
  return path;
}

const char* GetModuleVersionString(const void* module) {
  static char text[40] = "";
  if (*text != '\0') return text;
  const VersionWords version = _ReadVersion(module);
  if (version.Known()) _FormatVersion(text, version.mostSignificant, version.leastSignificant >> 16);
  return text;
}

void MakeFullPath(char* out, const char* folder, const char* name) {
  size_t length = _CopyText(out, kPathSize, _View(folder));
  if (length >= kPathSize - 1) return;
  if (length > 0 && out[length - 1] != '\\') {
    out[length++] = '/';
    out[length] = '\0';
  }
  const std::string_view added = _View(name);
  if (length + added.size() < kPathSize) _CopyText(out + length, kPathSize - length, added);
}

void ChangeSlashes(char* path) {
  std::replace(path, path + std::strlen(path), '\\', '/');
}

void RemoveFileList(const char* folder, const char* suffix) {
  for (const std::string& name : _ListFolder(folder, "*")) {
    if (_EndsWithNoCase(name, _View(suffix))) _RemoveFile(folder, name);
  }
}

std::vector<std::string> BuildFileList(const FSRef& folder, const char* pattern) {
  char path[4096];
  if (FSRefMakePath(&folder, path, sizeof path) != noErr) return {};
  return _ListFolder(path, pattern);
}

const char* GetTempFileName() {
  static char path[kPathSize];
  char folder[kPathSize];
  *path = '\0';
  if (GetTempPath(sizeof folder, folder) > 0) ::GetTempFileName(folder, "~qf", 0, path);
  return path;
}

TempFolder::TempFolder() {
  char folder[kPathSize];
  if (GetTempPath(sizeof folder, folder) == 0) return;
  path = folder;
  RemoveFileList(folder, "jpg");
}

TempFolder::~TempFolder() {
  if (path.find('~') != std::string::npos) RemoveFileList(path.c_str(), "");
}

void TempFolder::DeleteFolder(const char* name) {
  for (const std::string& file : _ListFolder(name, "*.*")) _RemoveFile(name, file);
  rmdir(path.c_str());
}

TempFile::TempFile() : path(GetTempFileName()) {}

TempFile::~TempFile() {
  unlink(path.c_str());
}

const char* EncryptString(const char* text) {
  static char hidden[2 * kSecretSize];
  const std::string_view plain = _View(text);
  char* out = hidden;
  if (plain.size() < kSecretSize) {
    for (size_t i = 0; i < plain.size(); ++i) {
      const unsigned byte = static_cast<uint8_t>(plain[i]) ^ _SecretMask(i);
      *out++ = "0123456789abcdef"[byte >> 4];
      *out++ = "0123456789abcdef"[byte & 0xF];
    }
  }
  *out = '\0';
  return hidden;
}

const char* DecryptString(const char* text) {
  static char plain[kSecretSize];
  *plain = '\0';
  const std::string_view hidden = _View(text);
  if (hidden.size() % 2 != 0 || hidden.size() / 2 >= kSecretSize) return plain;
  char decoded[kSecretSize];
  const size_t length = hidden.size() / 2;
  for (size_t i = 0; i < length; ++i) {
    const int high = _HexDigit(hidden[2 * i]);
    const int low = _HexDigit(hidden[2 * i + 1]);
    if (high < 0 || low < 0) return plain;
    decoded[i] = static_cast<char>((high << 4 | low) ^ _SecretMask(i));
    if (decoded[i] == '\0') return plain;
  }
  _CopyText(plain, sizeof plain, {decoded, length});
  return plain;
}

}  // namespace qz
