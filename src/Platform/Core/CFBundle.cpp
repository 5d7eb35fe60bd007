#include "Platform/Core/CFBundle.h"

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <map>
#include <optional>
#include <utility>

#include "Platform/Core/Paths.h"
#include "Platform/Core/StringsTable.h"

struct CFBundle final : CFObject {
  explicit CFBundle(std::string folder) : path(std::move(folder)) {}

  const std::string path;
  mutable std::map<std::string, StringsTable> tables;  // those that were asked for, missing ones empty
};

namespace {

constexpr size_t kTableLimit = size_t{4} << 20;  // bytes

std::string _BundleUnder(std::string_view prefix) {
  return AbsolutePath(std::string(prefix).append("/share/gradix/Gradix.bundle"));
}

// Where an installed program of ours has it; empty when the program's file is not known.
std::string _BundleOfProgram() {
  char executable[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", executable, sizeof(executable));
  if (length <= 0) return {};
  return _BundleUnder(FolderPart(FolderPart({executable, static_cast<size_t>(length)})));
}

// The file that this code was loaded from, without symbolic links; empty when it is not known.
std::string _ModulePath() {
  Dl_info module{};
  if (dladdr(reinterpret_cast<const void*>(&CFBundleGetMainBundle), &module) == 0) return {};
  char path[PATH_MAX];
  return realpath(module.dli_fname, path) == nullptr ? std::string() : std::string(path);
}

// Where an installed module, in `lib/gradix`, has it; empty when the module's file is not known.
std::string _BundleOfModule() {
  static const std::string module = _ModulePath();  // asked at once: it may be relative to the working folder
  if (module.empty()) return {};
  return _BundleUnder(FolderPart(FolderPart(FolderPart(module))));
}

std::string _MainBundlePath() {
  const char* const environment = std::getenv("GRADIX_BUNDLE");
  if (environment != nullptr && *environment != '\0') return AbsolutePath(environment);
  std::string ofModule = _BundleOfModule();
  std::string ofProgram = _BundleOfProgram();
  return IsFolder(ofProgram) ? ofProgram : ofModule;
}

// Bundles live as long as the process.
CFBundleRef _BundleOf(const std::string& path) {
  static auto* const bundles = new std::map<std::string, const CFBundle*>;
  const auto [entry, isNew] = bundles->try_emplace(path, nullptr);
  if (isNew) entry->second = new CFBundle(path);
  return entry->second;
}

}  // namespace

CFBundleRef CFBundleGetMainBundle() {
  const std::string path = _MainBundlePath();
  return IsFolder(path) ? _BundleOf(path) : nullptr;
}

CFURLRef CFBundleCopyBundleURL(CFBundleRef bundle) {
  return bundle == nullptr ? nullptr : CFURLCreateWithFileSystemPath(bundle->path.c_str(), true);
}

namespace {

// Appends "/" and the name; false for one that is no single path component.
bool _AppendComponent(std::string* path, const std::string& name) {
  constexpr std::string_view kForbidden("/\0", 2);
  if (name.empty() || name == "." || name == ".." || name.find_first_of(kForbidden) != std::string::npos)
    return false;
  path->append("/").append(name);
  return true;
}

// The path of an existing resource.
std::optional<std::string> _FindResource(CFBundleRef bundle, const std::string& name,
                                         const std::string& subfolder) {
  if (bundle == nullptr) return std::nullopt;
  std::string path = bundle->path + "/Resources";
  if (!subfolder.empty() && !_AppendComponent(&path, subfolder)) return std::nullopt;
  if (!_AppendComponent(&path, name)) return std::nullopt;
  struct stat status;
  if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  return path;
}

}  // namespace

CFURLRef CFBundleCopyResourceURL(CFBundleRef bundle, CFStringRef name, CFStringRef type,
                                 CFStringRef subfolder) {
  std::string fullName = CFStringGetUTF8(name);
  if (CFStringGetLength(type) > 0) fullName.append(".").append(CFStringGetUTF8(type));
  const std::optional<std::string> path = _FindResource(bundle, fullName, CFStringGetUTF8(subfolder));
  return path ? CFURLCreateWithFileSystemPath(path->c_str(), false) : nullptr;
}

namespace {

const StringsTable& _TableOf(const CFBundle& bundle, CFStringRef table) {
  const std::string name = CFStringGetLength(table) > 0 ? CFStringGetUTF8(table) : "Localizable";
  const auto [entry, isNew] = bundle.tables.try_emplace(name);
  if (!isNew) return entry->second;
  const std::optional<std::string> path = _FindResource(&bundle, name + ".strings", {});
  const std::optional<std::string> bytes = path ? ReadWholeFile(path->c_str(), kTableLimit) : std::nullopt;
  if (bytes) entry->second = ParseStringsBytes(*bytes);
  return entry->second;
}

}  // namespace

CFStringRef CFBundleCopyLocalizedString(CFBundleRef bundle, CFStringRef key, CFStringRef value,
                                        CFStringRef table) {
  if (bundle != nullptr && key != nullptr) {
    const StringsTable& entries = _TableOf(*bundle, table);
    const auto found = entries.find(std::u16string(CFStringGetText(key)));
    if (found != entries.end()) return new CFString(found->second);
  }
  return CFStringCreateCopy(CFStringGetLength(value) > 0 || key == nullptr ? value : key);
}
