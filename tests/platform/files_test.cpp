#include "Platform/Core/Files.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <vector>

#include "Platform/Core/CFOwned.h"
#include "Platform/Core/CFURL.h"
#include "tests/platform/temp_folder.h"

namespace {

std::string _PathOf(const FSRef& file) {
  char path[4096];
  return FSRefMakePath(&file, path, sizeof(path)) == noErr ? path : "(none)";
}

// The reference of a path that is there.
FSRef _RefTo(const std::string& path) {
  FSRef file{};
  EXPECT_EQ(FSPathMakeRef(path.c_str(), &file, nullptr), noErr) << path;
  return file;
}

using URL = CFOwned<CFURL>;

std::string _TextOf(const URL& url) {
  return url == nullptr ? "(none)" : CFStringGetUTF8(CFURLGetString(url.get()));
}

TEST(FSRef, HoldsAPath) {
  const TempFolder folder;
  const std::string path = folder.Write("n\xC3\xA9 \xFF", "");
  FSRef file;
  bool isDirectory = true;
  ASSERT_EQ(FSPathMakeRef(path.c_str(), &file, &isDirectory), noErr);
  EXPECT_FALSE(isDirectory);
  EXPECT_EQ(_PathOf(file), path);

  FSRef other;
  ASSERT_EQ(FSPathMakeRef((folder.Path() + "//./").c_str(), &other, &isDirectory), noErr);
  EXPECT_TRUE(isDirectory);
  EXPECT_EQ(_PathOf(other), folder.Path());
  EXPECT_EQ(_PathOf(_RefTo("/")), "/");

  const std::filesystem::path old = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  other = _RefTo("n\xC3\xA9 \xFF");
  std::filesystem::current_path(old);
  EXPECT_EQ(std::memcmp(&file, &other, sizeof(FSRef)), 0) << "one path, one reference";

  EXPECT_EQ(FSPathMakeRef(folder.Path("missing").c_str(), &other, nullptr), fnfErr);
  EXPECT_EQ(FSPathMakeRef((path + "/below").c_str(), &other, nullptr), fnfErr);
  EXPECT_EQ(FSPathMakeRef("", &other, nullptr), fnfErr);
  EXPECT_EQ(_PathOf(other), path) << "untouched by failures";

  std::string buffer(path.size() + 1, '#');
  EXPECT_EQ(FSRefMakePath(&file, buffer.data(), static_cast<uint32_t>(path.size())), paramErr);
  EXPECT_EQ(buffer[0], '\0');
  EXPECT_EQ(FSRefMakePath(&file, buffer.data(), static_cast<uint32_t>(path.size() + 1)), noErr);
  EXPECT_STREQ(buffer.c_str(), path.c_str());
}

// The layout that hosts write, at an odd address as in a packed record.
TEST(FSRef, IsMadeByAnyHost) {
  const char* const path = "/some/class file";
  std::vector<uint8_t> record(1 + sizeof(FSRef), 0);
  auto* const file = reinterpret_cast<FSRef*>(record.data() + 1);
  std::memcpy(record.data() + 1, "FSrf", 4);
  char buffer[64] = "#";
  EXPECT_EQ(FSRefMakePath(file, buffer, sizeof(buffer)), paramErr) << "null pointer";
  EXPECT_STREQ(buffer, "");
  std::memcpy(record.data() + 1 + 8, &path, sizeof(void*));
  EXPECT_EQ(_PathOf(*file), path);
  const FSRef made = QZFilter_MakeFSRef(path);
  EXPECT_EQ(std::memcmp(file, &made, sizeof made), 0);
  const FSRef root = _RefTo("/");
  EXPECT_EQ(std::memcmp(file, &root, 8), 0);
  record[4] = 'F';
  EXPECT_EQ(FSRefMakePath(file, buffer, sizeof(buffer)), paramErr) << "tag";
  EXPECT_EQ(FSRefMakePath(nullptr, buffer, sizeof(buffer)), paramErr);
}

TEST(Directories, HaveIdsForGood) {
  const TempFolder folder;
  const std::string path = folder.Write("sub/file", "");
  const FSRef sub = _RefTo(folder.Path("sub"));
  const FSRef file = _RefTo(path);
  int16_t volume = 0;
  int16_t sameVolume = 0;
  int32_t id = 0;
  int32_t sameId = 0;
  ASSERT_EQ(FSRefToID(&sub, &volume, &id), noErr);
  ASSERT_EQ(PathToID(path.c_str(), &sameVolume, &sameId), noErr);
  EXPECT_GE(id, 2);
  EXPECT_EQ(id, sameId);
  EXPECT_EQ(volume, sameVolume);
  int32_t parentId = 0;
  ASSERT_EQ(PathToID(folder.Path("sub").c_str(), &volume, &parentId), noErr);
  EXPECT_NE(parentId, id);

  FSRef found;
  ASSERT_EQ(FSMakeFSRefFromID(volume, id, &found), noErr);
  EXPECT_EQ(_PathOf(found), folder.Path("sub"));
  EXPECT_EQ(FSRefToID(&file, &volume, &id), dirNFErr) << "no folder";
  EXPECT_EQ(PathToID(folder.Path("missing/file").c_str(), &volume, &id), dirNFErr);
  for (const int32_t unknown : {INT32_MIN, -1, 0, 1, id + 1000000, INT32_MAX}) {
    EXPECT_EQ(FSMakeFSRefFromID(volume, unknown, &found), dirNFErr) << unknown;
  }
  EXPECT_EQ(FSMakeFSRefFromID(0, id, &found), nsvErr);
}

TEST(Directories, ResolvePartialPaths) {
  const TempFolder folder;
  folder.Write("outside", "");
  folder.Write("base/file", "");
  folder.Write("base/Sub/Deeper/file", "");
  int16_t volume = 0;
  int32_t id = 0;
  ASSERT_EQ(PathToID(folder.Path("base/").c_str(), &volume, &id), noErr);
  const struct {
    std::string path;
    OSErr result;
    const char* expected;
  } rows[] = {
      {"file", noErr, "base/file"},
      {":file", noErr, "base/file"},
      {":Sub:Deeper:file", noErr, "base/Sub/Deeper/file"},
      {"Sub:Deeper", noErr, "base/Sub/Deeper"},
      {":missing", fnfErr, ""},
      {":file:below", fnfErr, ""},
      {"", bdNamErr, ""},
      {":", bdNamErr, ""},
      {"::outside", bdNamErr, ""},
      {":Sub::file", bdNamErr, ""},
      {":Sub:", bdNamErr, ""},
      {":..:outside", bdNamErr, ""},
      {":.:file", bdNamErr, ""},
      {"Sub/Deeper/file", bdNamErr, ""},
      {"/etc/passwd", bdNamErr, ""},
      {":" + std::string(255, 'x'), fnfErr, ""},
      {":" + std::string(256, 'x'), bdNamErr, ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.path);
    FSRef file{};
    EXPECT_EQ(FSResolvePartialPath(volume, id, row.path.c_str(), &file), row.result);
    EXPECT_EQ(_PathOf(file), row.result == noErr ? folder.Path(row.expected) : "(none)");
  }
  FSRef file;
  EXPECT_EQ(FSResolvePartialPath(0, id, "file", &file), nsvErr);
  EXPECT_EQ(FSResolvePartialPath(volume, 1, "file", &file), dirNFErr);
}

TEST(Directories, TemporaryFolder) {
  const TempFolder folder;
  ScopedEnvironment variable("TMPDIR", folder.Path("temporary"));
  FSRef found;
  EXPECT_EQ(FSFindFolder(kTemporaryFolderType, false, &found), fnfErr);
  EXPECT_EQ(FSFindFolder(FourCharCode("pref"), true, &found), fnfErr);
  ASSERT_EQ(FSFindFolder(kTemporaryFolderType, true, &found), noErr);
  EXPECT_EQ(_PathOf(found), folder.Path("temporary"));
  variable.Set("");
  ASSERT_EQ(FSFindFolder(kTemporaryFolderType, false, &found), noErr);
  EXPECT_EQ(_PathOf(found), "/tmp");
}

TEST(CFURL, TextIsPercentEncoded) {
  const auto text = [](const char* path, bool isDirectory) {
    return _TextOf(URL(CFURLCreateWithFileSystemPath(path, isDirectory)));
  };
  EXPECT_EQ(text("/a b/100%/c?d#e", false), "file:///a%20b/100%25/c%3Fd%23e");
  EXPECT_EQ(text("/n\xC3\xA9/\xFF", true), "file:///n%C3%A9/%FF/");
  EXPECT_EQ(text("/", true), "file:///");
  EXPECT_EQ(text("", true), "(none)");
}

TEST(CFURL, LeadsToTheFolderAndBackToFiles) {
  const TempFolder folder;
  const std::string path = folder.Write("a b", "");
  const URL url(CFURLCreateWithFileSystemPath(path.c_str(), false));
  FSRef file;
  ASSERT_TRUE(CFURLGetFSRef(url.get(), &file));
  EXPECT_EQ(_PathOf(file), path);
  EXPECT_EQ(_TextOf(URL(CFURLCreateFromFSRef(&file))), _TextOf(url));
  const URL parent(CFURLCreateCopyDeletingLastPathComponent(url.get()));
  ASSERT_TRUE(CFURLGetFSRef(parent.get(), &file));
  EXPECT_EQ(_PathOf(file), folder.Path());
  EXPECT_EQ(_TextOf(parent), "file://" + folder.Path() + "/");
  EXPECT_EQ(_TextOf(URL(CFURLCreateFromFSRef(&file))), _TextOf(parent));

  const URL root(CFURLCreateWithFileSystemPath("/", true));
  EXPECT_EQ(CFURLCreateCopyDeletingLastPathComponent(root.get()), nullptr);
  const URL missing(CFURLCreateWithFileSystemPath(folder.Path("missing").c_str(), false));
  EXPECT_FALSE(CFURLGetFSRef(missing.get(), &file));
  const FSRef none{};
  EXPECT_EQ(CFURLCreateFromFSRef(&none), nullptr);
}

}  // namespace
