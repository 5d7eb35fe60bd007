// These functions delete files in the temporary folder: every test here has a fresh one of its own.
#include "Common/QZData/QZFiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "Platform/Core/Files.h"
#include "tests/platform/temp_folder.h"

namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

class Files : public testing::Test {
 protected:
  Files() { UseTemporaryFolder("temp"); }

  fs::path UseTemporaryFolder(const std::string& name) {
    const fs::path folder = m_root / name;
    fs::create_directory(folder);
    m_temporary.Set(folder.string());
    return folder;
  }

  static void Touch(const fs::path& folder, const Names& names) {
    for (const std::string& name : names) std::ofstream(folder / name) << "x";
  }

  // Sorted, folders with a slash behind them.
  static Names List(const fs::path& folder) {
    Names names;
    for (const auto& entry : fs::directory_iterator(folder)) {
      names.push_back(entry.path().filename().string() + (entry.is_directory() ? "/" : ""));
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  static Names Find(const std::string& pattern) {
    Names names;
    FindFileBlock block;
    void* handle = FindFirstFile(pattern.c_str(), &block);
    for (bool found = handle != nullptr; found; found = FindNextFile(handle, &block)) {
      const auto* bytes = reinterpret_cast<const unsigned char*>(&block);
      names.emplace_back(reinterpret_cast<const char*>(bytes + 1));
      EXPECT_EQ(bytes[0], names.back().size());
    }
    EXPECT_TRUE(FindClose(handle));
    return names;
  }

  TempFolder m_folder;
  fs::path m_root = m_folder.Path();
  ScopedEnvironment m_temporary{"TMPDIR", ""};
};

TEST_F(Files, FindsByPatternInOrder) {
  const std::string longName(255, 'n');
  Touch(m_root, {"b.txt", "a.TXT", "notes", "axxb.txt", longName});
  fs::create_directory(m_root / "folder.txt");
  const struct {
    const char* pattern;
    Names names;
  } rows[] = {
      {"*.*", {"a.TXT", "axxb.txt", "b.txt", "folder.txt", longName, "notes", "temp"}},
      {"*.txt", {"axxb.txt", "b.txt", "folder.txt"}},
      {"?.txt", {"b.txt"}},
      {"a*b*t", {"axxb.txt"}},
      {"*x?.txt", {"axxb.txt"}},
      {"notes*", {"notes"}},
      {"notes?", {}},
      {"n*n", {longName}},
      {"", {}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Find(m_root.string() + "/" + row.pattern), row.names) << row.pattern;
    FSRef folder;
    ASSERT_EQ(FSPathMakeRef(m_root.c_str(), &folder, nullptr), noErr);
    EXPECT_EQ(qz::BuildFileList(folder, row.pattern), row.names) << row.pattern;
  }
  EXPECT_EQ(Find((m_root / "missing/*").string()), Names());
  EXPECT_EQ(Find((m_root / std::string(300, '*')).string()), Names());
  EXPECT_EQ(qz::BuildFileList(FSRef{}, "*"), Names());
}

TEST_F(Files, SearchGoesOnWhileEntriesAreRemoved) {
  Names names = {"1", "2", "3", "4"};
  Touch(m_root / "temp", names);
  FindFileBlock block;
  void* handle = FindFirstFile((m_root / "temp/*").c_str(), &block);
  ASSERT_NE(handle, nullptr);
  Names found;
  do {
    found.emplace_back(block.name);
    fs::remove(m_root / "temp" / block.name);
  } while (FindNextFile(handle, &block));
  EXPECT_EQ(found, names);
}

TEST_F(Files, JoinsWithinTheBuffer) {
  const std::string a254(254, 'a');
  const std::string a255(255, 'a');
  const struct {
    const char* name;
    std::string folder, added, joined;
  } rows[] = {
      {"plain", "/tmp", "x.jpg", "/tmp/x.jpg"},
      {"slash at the end is not seen", "/tmp/", "x", "/tmp//x"},
      {"backslash is", "C:\\t\\", "x", "C:\\t\\x"},
      {"empty folder", "", "x", "x"},
      {"room for the separator alone", a254, "x", a254 + "/"},
      {"no room", a255, "", a255},
      {"cut folder", a255 + "b", "x", a255},
      {"just fits", "/f", a255.substr(3), "/f/" + a255.substr(3)},
      {"one too long", "/f", a255.substr(2), "/f/"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    // A block of exactly that size, so that a sanitizer build catches what is written behind it.
    const auto out = std::make_unique<char[]>(kPathSize);
    qz::MakeFullPath(out.get(), row.folder.c_str(), row.added.c_str());
    EXPECT_EQ(out.get(), row.joined);
  }
  char same[kPathSize] = "/tmp";
  qz::MakeFullPath(same, same, "y");
  EXPECT_STREQ(same, "/tmp/y");
  qz::ChangeSlashes(strcpy(same, "\\a/b\\\\c"));
  EXPECT_STREQ(same, "/a/b//c");
}

TEST_F(Files, RemovesBySuffixButNoFolders) {
  const fs::path folder = m_root / "temp";
  const Names names = {"a.jpg", "b.JPG", "c.jpg.txt", "jpg", "pg"};
  Touch(folder, names);
  fs::create_directory(folder / "d.jpg");
  qz::RemoveFileList(folder.c_str(), "jpg");
  EXPECT_EQ(List(folder), (Names{"c.jpg.txt", "d.jpg/", "pg"}));
  qz::RemoveFileList(folder.c_str(), "");
  EXPECT_EQ(List(folder), Names{"d.jpg/"});
  qz::RemoveFileList((folder / "missing").c_str(), "");
}

// A path that is cut must not lead to another file.
TEST_F(Files, RemovesNothingBehindALongPath) {
  const std::string name(255 - m_root.string().size() - 1, 'f');
  const fs::path folder = m_root / (name + "x");
  fs::create_directory(folder);
  Touch(folder, {"a.jpg"});
  Touch(m_root, {name});
  qz::RemoveFileList(folder.c_str(), "jpg");
  EXPECT_EQ(List(m_root), (Names{name, name + "x/", "temp/"}));
}

TEST_F(Files, TemporaryFolder) {
  const std::string folder = UseTemporaryFolder("new/").string();
  fs::remove(folder);
  char path[kPathSize] = "";
  const uint32_t length = GetTempPath(sizeof path, path);
  EXPECT_TRUE(fs::equivalent(path, folder)) << path;
  EXPECT_EQ(length, std::strlen(path));
  EXPECT_EQ(GetTempPath(length, path), 0U);
  EXPECT_STREQ(path, "");

  EXPECT_EQ(GetTempFileName("/f", "ab", 123456, path), 1U);
  EXPECT_STREQ(path, "/f/ab123456");
  EXPECT_EQ(GetTempFileName(std::string(250, 'f').c_str(), "ab", 7, path), 1U);
  EXPECT_EQ(path, std::string(250, 'f') + "/ab00");

  const fs::path other = UseTemporaryFolder("other");
  EXPECT_EQ(qz::GetTempFileName(), other.string() + "/~qf00000");
  EXPECT_EQ(qz::GetTempFileName(), other.string() + "/~qf00000");
  Touch(m_root, {"file"});
  m_temporary.Set((m_root / "file/below").string());
  EXPECT_STREQ(qz::GetTempFileName(), "");
  const qz::TempFolder none;
  EXPECT_EQ(none.path, "");
}

TEST_F(Files, TempFolderClearsOnlyWhatIsItsOwn) {
  for (const bool own : {false, true}) {
    SCOPED_TRACE(own);
    const fs::path folder = UseTemporaryFolder(own ? "quiz~1" : "shared");
    Touch(folder, {"a.jpg", "keep"});
    fs::create_directory(folder / "sub");
    {
      const qz::TempFolder temporary;
      EXPECT_EQ(temporary.path, folder.string());
      EXPECT_EQ(List(folder), (Names{"keep", "sub/"}));
      Touch(folder, {"b.jpg"});
    }
    EXPECT_EQ(List(folder), own ? Names{"sub/"} : (Names{"b.jpg", "keep", "sub/"}));
  }
}

TEST_F(Files, DeleteFolderEmptiesOneAndRemovesTheOther) {
  const fs::path own = UseTemporaryFolder("own");
  const fs::path named = m_root / "named";
  fs::create_directories(named / "sub");
  Touch(named, {"a", "b.c"});
  qz::TempFolder temporary;
  Touch(own, {"in the way"});
  temporary.DeleteFolder(named.c_str());
  EXPECT_EQ(List(named), Names{"sub/"});
  EXPECT_TRUE(fs::exists(own));
  fs::remove(own / "in the way");
  temporary.DeleteFolder(named.c_str());
  EXPECT_FALSE(fs::exists(own));
}

TEST_F(Files, TempFileGoes) {
  const fs::path folder = UseTemporaryFolder("files");
  {
    const qz::TempFile file;
    EXPECT_EQ(file.path, folder.string() + "/~qf00000");
    Touch(folder, {"~qf00000", "other"});
  }
  EXPECT_EQ(List(folder), Names{"other"});
}

TEST_F(Files, CreateDirectory) {
  const fs::path folder = m_root / "made";
  const mode_t mask = umask(0);
  EXPECT_TRUE(CreateDirectory(folder.c_str(), nullptr));
  umask(mask);
  EXPECT_EQ(fs::status(folder).permissions(), fs::perms::all);
  EXPECT_TRUE(CreateDirectory((m_root / "missing/made").c_str(), nullptr));
}

TEST_F(Files, ModuleFileNames) {
  const std::string program = fs::read_symlink("/proc/self/exe").string();
  char path[kPathSize];
  static const int kInProgram = 0;
  int onStack = 0;
  for (const void* module : {static_cast<const void*>(nullptr), static_cast<const void*>(&kInProgram),
                             static_cast<const void*>(&onStack)}) {
    EXPECT_EQ(GetModuleFileName(module, path, sizeof path), program.size());
    EXPECT_EQ(path, program);
  }
  EXPECT_GT(GetModuleFileName(stdout, path, sizeof path), 0U);
  EXPECT_NE(std::string(path).find("/libc"), std::string::npos) << path;

  path[4] = '#';
  EXPECT_EQ(GetModuleFileName(nullptr, path, 4), 3U);
  EXPECT_EQ(path, program.substr(0, 3));
  EXPECT_EQ(path[4], '#');
  EXPECT_EQ(GetModuleFileName(nullptr, path, 0), 0U);

  const std::string cut = program.substr(0, program.rfind('\\'));
  EXPECT_EQ(qz::GetProgramPath(), cut);
  GetDllPath(path);
  std::string lower = cut;
  for (char& letter : lower)
    letter = static_cast<char>(letter >= 'A' && letter <= 'Z' ? letter + 32 : letter);
  EXPECT_EQ(path, lower);
}

// The test above, in a copy of this program whose path has capitals and backslashes.
TEST_F(Files, ModuleFileNamesAreCutAtABackslash) {
  const fs::path copy = m_root / "Mixed\\Case\\Tests";
  fs::copy_file(fs::read_symlink("/proc/self/exe"), copy);
  const std::string command = "'" + copy.string() + "' --gtest_filter=Files.ModuleFileNames >/dev/null";
  EXPECT_EQ(std::system(command.c_str()), 0);
}

TEST_F(Files, Versions) {
  uint32_t words[5] = {7, 7, 7, 7, 7};
  EXPECT_TRUE(VerQueryValue(nullptr, "\\", words, nullptr));
  EXPECT_EQ((std::vector<uint32_t>(words, words + 5)), (std::vector<uint32_t>{7, 7, 1, 1, 7}));
  for (int call = 0; call < 2; ++call) {
    EXPECT_STREQ(GetFileVersionString(nullptr), "1.1.1");
    EXPECT_STREQ(qz::GetModuleVersionString(nullptr), "1.1.0");
  }
}

TEST_F(Files, HiddenTextsComeBack) {
  std::string everyByte;
  for (int byte = 1; byte < 256; ++byte) everyByte += static_cast<char>(byte);
  for (const std::string& text : {std::string(), std::string("secret"), everyByte, std::string(511, 'a')}) {
    const std::string hidden = qz::EncryptString(text.c_str());
    EXPECT_EQ(hidden.size(), 2 * text.size());
    EXPECT_EQ(qz::DecryptString(hidden.c_str()), text);
    std::string upper = hidden;
    for (char& digit : upper) digit = static_cast<char>(digit >= 'a' ? digit - 32 : digit);
    EXPECT_EQ(qz::DecryptString(upper.c_str()), text);
  }
  const std::string hidden = qz::EncryptString("aaaa");
  EXPECT_NE(hidden.substr(0, 2), hidden.substr(2, 2));

  EXPECT_STREQ(qz::EncryptString(std::string(512, 'a').c_str()), "");
  const std::string tooLong = qz::EncryptString(std::string(511, 'a').c_str()) + std::string("5b");
  // The second letter becomes a zero byte when its own bits are taken out of its digits.
  char zeroByte[] = "xxxx";
  const unsigned digits = static_cast<unsigned>(std::stoul(hidden.substr(2, 2), nullptr, 16)) ^ 'a';
  std::snprintf(zeroByte, sizeof zeroByte, "%s%02x", hidden.substr(0, 2).c_str(), digits & 0xFFU);
  for (const std::string& invalid : Names{"61626", "615g", "zz", "615 ", " 5", tooLong, zeroByte}) {
    EXPECT_STREQ(qz::DecryptString(invalid.c_str()), "") << invalid;
  }
  EXPECT_STREQ(qz::DecryptString(nullptr), "");
}

}  // namespace
