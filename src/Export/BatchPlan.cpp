#include "Export/BatchPlan.h"

#include <sys/stat.h>

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

#include "Common/CaseFold.h"

namespace {

namespace fs = std::filesystem;

constexpr int kMostLinks = 40;  // in a chain, as the system has it

using FileIdentity = std::pair<dev_t, ino_t>;

std::optional<FileIdentity> _IdentityOf(const std::string& path) {
  struct stat state {};
  if (stat(path.c_str(), &state) != 0) return std::nullopt;
  return FileIdentity{state.st_dev, state.st_ino};
}

// Without an error, since what cannot be found out is told when the file is written.
fs::path _RealPath(const fs::path& path) {
  std::error_code error;
  fs::path real = fs::weakly_canonical(path, error);
  return error ? path : real;
}

// The file that is behind the path's links, whether it exists or not.
fs::path _Destination(fs::path path) {
  std::error_code error;
  for (int links = 0; links < kMostLinks && fs::is_symlink(path, error); ++links) {
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return _RealPath(path);
}

class Planner {
 public:
  Planner(const std::string& folder, const FormatRow& format)
      : m_folder(folder), m_realFolder(_RealPath(folder)), m_ending(std::string("-") + format.key + ".csv") {}

  void Add(const ListedClass& source) {
    if (source.folderError != 0) return m_plan.items.push_back({source, ""});
    const fs::path name = ClassBaseName(source.path) + m_ending;
    BatchItem item{source, (m_folder / name).string()};
    const auto [place, isNew] = m_byOutput.try_emplace(FileKey(name), m_plan.items.size());
    if (isNew) {
      m_plan.items.push_back(std::move(item));
    } else if (const BatchItem& other = m_plan.items[place->second]; !IsSame(source, other.source)) {
      m_plan.conflicts.push_back({other.source.path, source.path, std::move(item.outputPath)});
    }
  }

  BatchPlan Finish() && {
    std::map<FileIdentity, const BatchItem*> classes;
    for (const BatchItem& item : m_plan.items) {
      if (const auto identity = _IdentityOf(item.source.path)) classes.emplace(*identity, &item);
    }
    for (const BatchItem& item : m_plan.items) {
      const auto identity = _IdentityOf(item.outputPath);
      const auto found = identity ? classes.find(*identity) : classes.end();
      if (found != classes.end()) {
        m_plan.conflicts.push_back({found->second->source.path, "", item.outputPath});
      }
    }
    return std::move(m_plan);
  }

 private:
  std::string FileKey(const fs::path& name) const {
    std::error_code error;
    const fs::path path = m_realFolder / name;
    return FoldCase((fs::is_symlink(path, error) ? _Destination(path) : path).string());
  }

  static bool IsSame(const ListedClass& a, const ListedClass& b) {
    const auto identity = _IdentityOf(a.path);
    return a.path == b.path || (identity && identity == _IdentityOf(b.path));
  }

  fs::path m_folder;
  fs::path m_realFolder;
  std::string m_ending;
  std::map<std::string, size_t> m_byOutput;  // positions of items
  BatchPlan m_plan;
};

}  // namespace

BatchPlan PlanBatch(const std::vector<ListedClass>& classes, const std::string& folder,
                    const FormatRow& format) {
  Planner planner(folder, format);
  for (const ListedClass& source : classes) planner.Add(source);
  return std::move(planner).Finish();
}
