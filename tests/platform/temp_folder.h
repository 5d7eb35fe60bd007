// A folder, and an environment variable, for the length of one test.
#ifndef GRADIX_TEMP_FOLDER_H
#define GRADIX_TEMP_FOLDER_H

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

class TempFolder {
 public:
  TempFolder() : m_path(std::filesystem::canonical(::testing::TempDir()) / "gradix-XXXXXX") {
    if (mkdtemp(m_path.data()) == nullptr) ADD_FAILURE() << "no temporary folder " << m_path;
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() { std::filesystem::remove_all(m_path); }

  const std::string& Path() const { return m_path; }
  std::string Path(const std::string& name) const { return m_path + "/" + name; }

  // Writes a file, and the folders that lead to it, and gives its path.
  std::string Write(const std::string& name, const std::string& bytes) const {
    std::string path = Path(name);
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }

 private:
  std::string m_path;
};

class ScopedEnvironment {
 public:
  ScopedEnvironment(const char* name, const std::string& value) : m_name(name) {
    const char* const old = getenv(name);
    if (old != nullptr) m_old = old;
    Set(value);
  }
  ScopedEnvironment(const ScopedEnvironment&) = delete;
  ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;
  ~ScopedEnvironment() { m_old ? Set(*m_old) : static_cast<void>(unsetenv(m_name)); }

  void Set(const std::string& value) { setenv(m_name, value.c_str(), 1); }

 private:
  const char* m_name;
  std::optional<std::string> m_old;
};

#endif  // GRADIX_TEMP_FOLDER_H
