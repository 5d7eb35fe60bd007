// Files written whole: the ways they are written, and what is left when that fails.
#include "Common/AtomicFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include "tests/platform/temp_folder.h"

namespace {

namespace fs = std::filesystem;

// What the system answers in place of success; 0: it does its work.
int gTemporaryError = 0;  // to an unnamed file
int gNamedError = 0;      // to a file with a hidden name
int gRenameError = 0;

}  // namespace

extern "C" {
int __real_openat(int folder, const char* path, int flags, ...);
int __real_renameat(int oldFolder, const char* oldPath, int newFolder, const char* newPath);

int __wrap_openat(int folder, const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = va_arg(arguments, mode_t);
  va_end(arguments);
  const int error = (flags & O_TMPFILE) == O_TMPFILE ? gTemporaryError : gNamedError;
  if (error == 0) return __real_openat(folder, path, flags, mode);
  errno = error;
  return -1;
}

int __wrap_renameat(int oldFolder, const char* oldPath, int newFolder, const char* newPath) {
  if (gRenameError == 0) return __real_renameat(oldFolder, oldPath, newFolder, newPath);
  errno = gRenameError;
  return -1;
}
}

namespace {

auto _Fields(const FileOutcome& o) {
  return std::tuple(o.error, o.begun, o.incomplete, o.inPlace, o.inPlaceError);
}

class AtomicFile : public testing::Test {
 protected:
  ~AtomicFile() override { gTemporaryError = gNamedError = gRenameError = 0; }

  std::string PathOf(const std::string& name) const { return m_folder.Path(name); }

  std::string ContentOf(const std::string& name) const {
    std::ifstream stream(PathOf(name));
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  // The names in the folder.
  std::string Names() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(m_folder.Path())) names.insert(entry.path().filename());
    std::string list;
    for (const std::string& name : names) list += name + " ";
    return list;
  }

  FileOutcome Write(const std::string& name, const std::string& text, int error = 0) const {
    return WriteAtomicFile(PathOf(name), [&](std::FILE* file) {
      std::fputs(text.c_str(), file);
      std::fflush(file);
      return error;
    });
  }

  TempFolder m_folder;
};

TEST_F(AtomicFile, IsCompleteOrTheOldOne) {
  using enum InPlace;
  const struct {
    const char* name;
    int temporaryError, namedError, renameError, writeError;
    FileOutcome expected;  // error, begun, incomplete, in place and why
    const char* content;
  } rows[] = {
      {"whole", 0, 0, 0, 0, {0, true, false, kNo, 0}, "new"},
      {"with a hidden name", EOPNOTSUPP, 0, 0, 0, {0, true, false, kNo, 0}, "new"},
      {"full disk", 0, 0, 0, ENOSPC, {ENOSPC, true, false, kNo, 0}, "old"},
      {"the same, hidden name", EOPNOTSUPP, 0, 0, ENOSPC, {ENOSPC, true, false, kNo, 0}, "old"},
      {"no room for a file", ENOSPC, ENOSPC, 0, 0, {ENOSPC, false, false, kNo, 0}, "old"},
      {"broken disk", 0, 0, EIO, 0, {EIO, true, false, kNo, 0}, "old"},
      {"closed folder", EACCES, EACCES, 0, 0, {0, true, false, kNoSecondFile, EACCES}, "new"},
      {"the same, hidden name", EISDIR, EROFS, 0, 0, {0, true, false, kNoSecondFile, EROFS}, "new"},
      {"the same, full disk", EPERM, EPERM, 0, ENOSPC, {ENOSPC, true, true, kNoSecondFile, EPERM}, "new"},
      {"mount point", 0, 0, EBUSY, 0, {0, true, false, kNotReplaceable, EBUSY}, "new"},
      {"the same, hidden name", ENOTSUP, 0, EXDEV, 0, {0, true, false, kNotReplaceable, EXDEV}, "new"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    m_folder.Write("file", "old");
    gTemporaryError = row.temporaryError;
    gNamedError = row.namedError;
    gRenameError = row.renameError;
    const FileOutcome outcome = Write("file", "new", row.writeError);
    EXPECT_EQ(_Fields(outcome), _Fields(row.expected));
    EXPECT_EQ(ContentOf("file"), row.content);
    EXPECT_EQ(Names(), "file ");

    // Without an old file there is nothing to write in place.
    const FileOutcome created = Write("created", "new", row.writeError);
    const bool isWhole = outcome.error == 0 && outcome.inPlace == InPlace::kNo;
    EXPECT_EQ(created.error == 0, isWhole);
    EXPECT_EQ(created.inPlace, InPlace::kNo);
    EXPECT_EQ(fs::remove(PathOf("created")), isWhole);
    EXPECT_EQ(Names(), "file ");
  }
}

TEST_F(AtomicFile, CopiesALongTextInPlace) {
  const std::string text(200'001, 'x');
  m_folder.Write("file", text + text);
  gRenameError = EBUSY;
  EXPECT_EQ(Write("file", text).error, 0);
  EXPECT_EQ(ContentOf("file"), text);
}

TEST_F(AtomicFile, IsNotSeenUntilItIsComplete) {
  m_folder.Write("file", "old");
  WriteAtomicFile(PathOf("file"), [this](std::FILE* file) {
    std::fputs("new", file);
    std::fflush(file);
    EXPECT_EQ(Names(), "file ");
    EXPECT_EQ(ContentOf("file"), "old");
    return 0;
  });
  EXPECT_EQ(ContentOf("file"), "new");

  for (const int temporaryError : {0, EOPNOTSUPP}) {
    gTemporaryError = temporaryError;
    EXPECT_THROW(WriteAtomicFile(PathOf("file"), [](std::FILE*) -> int { throw std::runtime_error("no"); }),
                 std::runtime_error);
    EXPECT_EQ(ContentOf("file"), "new");
    EXPECT_EQ(Names(), "file ");
  }
}

TEST_F(AtomicFile, LinksOfOpenFilesAreWrittenDirectly) {
  m_folder.Write("file", "old");
  const int descriptor = open(PathOf("file").c_str(), O_RDWR);
  ASSERT_GE(descriptor, 0);
  fs::remove(PathOf("file"));
  const FileOutcome outcome = WriteAtomicFile("/dev/fd/" + std::to_string(descriptor), [](std::FILE* file) {
    return std::fputs("newer", file) >= 0 ? 0 : EIO;
  });
  EXPECT_EQ(outcome.error, 0);
  char text[6] = "";
  EXPECT_EQ(pread(descriptor, text, 5, 0), 5);
  EXPECT_STREQ(text, "newer");
  close(descriptor);
  EXPECT_EQ(Names(), "");
}

TEST_F(AtomicFile, RefusesWhatIsNoPlaceForAFile) {
  m_folder.Write("file", "old");
  fs::create_symlink("loop", PathOf("loop"));
  const struct {
    std::string path;
    int error;
  } rows[] = {{"", ENOENT},
              {m_folder.Path(), EISDIR},
              {PathOf("."), EISDIR},
              {PathOf("none/file"), ENOENT},
              {PathOf("none/"), ENOENT},
              {PathOf("file/"), ENOTDIR},
              {PathOf("loop"), ELOOP},
              {PathOf(std::string(300, 'x')), ENAMETOOLONG}};
  for (const auto& row : rows) {
    const FileOutcome outcome = WriteAtomicFile(row.path, [](std::FILE*) { return 0; });
    EXPECT_EQ(outcome.error, row.error) << row.path;
    EXPECT_FALSE(outcome.begun) << row.path;
  }
  EXPECT_EQ(Names(), "file loop ");
}

TEST_F(AtomicFile, IsWrittenFromSeveralThreads) {
  std::vector<std::thread> threads;
  for (const char letter : {'a', 'b', 'c', 'd'}) {
    threads.emplace_back([this, letter] {
      for (int i = 0; i < 20; ++i) EXPECT_EQ(Write("file", std::string(100'000, letter)).error, 0);
    });
  }
  for (std::thread& thread : threads) thread.join();
  const std::string content = ContentOf("file");
  EXPECT_EQ(content, std::string(100'000, content.front()));
  EXPECT_EQ(Names(), "file ");
}

}  // namespace
