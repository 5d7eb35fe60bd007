#include "Platform/Core/Resources.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "Platform/Core/Files.h"
#include "tests/platform/fork_builder.h"
#include "tests/platform/temp_folder.h"

namespace {

constexpr ResType kText = FourCharCode("TEXT");

std::string _TextFork(int16_t id, const std::string& text) {
  return BuildFork({{"TEXT", {{id, text}}}});
}

OSErr _OpenPath(const std::string& path, ResFileRefNum* number) {
  FSRef file;
  const OSStatus made = FSPathMakeRef(path.c_str(), &file, nullptr);
  return made != noErr ? static_cast<OSErr>(made) : FSOpenResourceFile(&file, 0, nullptr, fsRdPerm, number);
}

std::string _TextOf(Handle handle) {
  return handle == nullptr ? "(none)" : std::string(*handle, GetHandleSize(handle));
}

std::string _Text(int16_t id) {
  return _TextOf(GetResource(kText, id));
}

size_t _OpenDescriptors() {
  size_t count = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) ++count;
  return count;
}

class ResourcesTest : public ::testing::Test {
 protected:
  void TearDown() override {
    while (CurResFile() != 0) CloseResFile(CurResFile());
  }

  ResFileRefNum Open(const std::string& name, const std::string& fork) {
    ResFileRefNum number = -1;
    EXPECT_EQ(_OpenPath(m_folder.Write(name, fork), &number), noErr);
    return number;
  }

  TempFolder m_folder;
  ScopedEnvironment m_bundle{"GRADIX_BUNDLE", m_folder.Path("None.bundle")};
};

TEST_F(ResourcesTest, SearchesFromTheCurrentFileBackToTheApplication) {
  for (const char* name : {"A", "B"}) {
    m_folder.Write(std::string(name) + ".bundle/Resources/Gradix.rsrc",
                   BuildFork({{"TEXT", {{1, std::string("app") + name}, {4, "app"}}}}));
  }
  m_bundle.Set(m_folder.Path("A.bundle"));
  EXPECT_EQ(CurResFile(), 0);
  EXPECT_EQ(_Text(1), "appA");

  const ResFileRefNum first = Open("1", BuildFork({{"TEXT", {{1, "first"}, {2, "first"}, {2, "again"}}}}));
  const ResFileRefNum second =
      Open("2", BuildFork({{"TEXT", {{1, "second"}}}, {"text", {{2, "other type"}}}}));
  EXPECT_NE(first, second);
  EXPECT_EQ(CurResFile(), second);
  EXPECT_EQ(_Text(1), "second");
  EXPECT_EQ(_Text(2), "first");
  EXPECT_EQ(_Text(4), "app");
  EXPECT_EQ(_Text(3), "(none)");
  EXPECT_EQ(ResError(), resNotFound);

  UseResFile(first);
  EXPECT_EQ(_Text(1), "first");
  UseResFile(0);
  EXPECT_EQ(_Text(1), "appA");
  EXPECT_EQ(_Text(2), "(none)");
  m_bundle.Set(m_folder.Path("B.bundle"));
  EXPECT_EQ(_Text(1), "appB");
  m_bundle.Set(m_folder.Path("None.bundle"));
  EXPECT_EQ(_Text(1), "(none)");

  UseResFile(second);
  UseResFile(12345);
  EXPECT_EQ(ResError(), resFNotFound);
  EXPECT_EQ(CurResFile(), second);
  CloseResFile(second);
  EXPECT_EQ(CurResFile(), first);
  EXPECT_EQ(_Text(1), "first");
  CloseResFile(second);
  EXPECT_EQ(ResError(), resFNotFound);
  const ResFileRefNum third = Open("3", _TextFork(1, "third"));
  CloseResFile(first);
  EXPECT_EQ(CurResFile(), third) << "another file was closed";
  CloseResFile(third);
  EXPECT_EQ(CurResFile(), 0);
}

TEST_F(ResourcesTest, OpensAFileOnce) {
  const ResFileRefNum first = Open("1", _TextFork(1, "first"));
  const Handle handle = GetResource(kText, 1);
  Open("2", _TextFork(2, "second"));
  std::filesystem::create_hard_link(m_folder.Path("1"), m_folder.Path("link"));
  std::filesystem::create_symlink("1", m_folder.Path("symlink"));
  const size_t descriptors = _OpenDescriptors();
  for (int i = 0; i < 3000; ++i) {
    ResFileRefNum number = -1;
    ASSERT_EQ(_OpenPath(m_folder.Path(i % 3 == 0 ? "1" : i % 3 == 1 ? "link" : "symlink"), &number), noErr);
    ASSERT_EQ(number, first);
    ASSERT_EQ(CurResFile(), first);
    ASSERT_EQ(GetResource(kText, 1), handle);
  }
  EXPECT_EQ(_OpenDescriptors(), descriptors);
  EXPECT_EQ(_Text(2), "(none)") << "the second file comes before the first no more";
}

TEST_F(ResourcesTest, NumbersOfClosedFilesAreUnknown) {
  const ResFileRefNum kept = Open("1", _TextFork(1, "kept"));
  const std::string path = m_folder.Write("2", _TextFork(1, "again"));
  ResFileRefNum previous = -1;
  for (int i = 0; i < 40000; ++i) {  // more than there are numbers
    ResFileRefNum number = -1;
    ASSERT_EQ(_OpenPath(path, &number), noErr);
    ASSERT_GT(number, 0);
    ASSERT_NE(number, kept);
    ASSERT_NE(number, previous);
    CloseResFile(number);
    previous = number;
  }
  UseResFile(previous);
  EXPECT_EQ(ResError(), resFNotFound);
}

TEST_F(ResourcesTest, FailedOpenLeavesTheCurrentFile) {
  const ResFileRefNum current = Open("good", _TextFork(1, "good"));
  const std::string fork = _TextFork(1, "cut");
  std::filesystem::create_directory(m_folder.Path("folder"));
  std::filesystem::resize_file(m_folder.Write("huge", fork), (size_t{16} << 20) + 1);
  m_folder.Write("cut", fork.substr(0, fork.size() - 1));
  m_folder.Write("empty", "");

  FSRef gone;
  ASSERT_EQ(FSPathMakeRef(m_folder.Write("gone", fork).c_str(), &gone, nullptr), noErr);
  std::filesystem::remove(m_folder.Path("gone"));
  ResFileRefNum number = 77;
  EXPECT_EQ(FSOpenResourceFile(&gone, 0, nullptr, fsRdPerm, &number), fnfErr);
  EXPECT_EQ(number, -1);
  for (const char* name : {"folder", "huge", "cut", "empty"}) {
    EXPECT_EQ(_OpenPath(m_folder.Path(name), &number), mapReadErr) << name;
    EXPECT_EQ(ResError(), mapReadErr) << name;
  }
  FSRef good;
  ASSERT_EQ(FSPathMakeRef(m_folder.Path("good").c_str(), &good, nullptr), noErr);
  EXPECT_EQ(FSOpenResourceFile(&good, 13, u"RESOURCE_FORK", fsRdPerm, &number), paramErr);
  EXPECT_EQ(FSOpenResourceFile(&good, 0, nullptr, 3, &number), paramErr);
  const FSRef none{};
  EXPECT_EQ(FSOpenResourceFile(&none, 0, nullptr, fsRdPerm, &number), paramErr);
  EXPECT_EQ(CurResFile(), current);
  EXPECT_EQ(_Text(1), "good");
}

TEST_F(ResourcesTest, HandlesLiveUntilReleasedOrDetached) {
  const ResFileRefNum number = Open("1", BuildFork({{"TEXT", {{1, "hello"}, {2, ""}}}}));
  const Handle handle = GetResource(kText, 1);
  ASSERT_NE(handle, nullptr);
  EXPECT_EQ(GetResource(kText, 1), handle);
  EXPECT_EQ(GetResourceSizeOnDisk(handle), 5);
  EXPECT_EQ(GetResourceSizeOnDisk(GetResource(kText, 2)), 0);

  (*handle)[0] = 'J';
  DetachResource(handle);
  EXPECT_EQ(GetResourceSizeOnDisk(handle), -1);
  EXPECT_EQ(_Text(1), "hello") << "another block";
  ReleaseResource(handle);  // no resource any more: ignored
  EXPECT_EQ(ResError(), resNotFound);
  EXPECT_EQ(_TextOf(handle), "Jello");

  const Handle second = GetResource(kText, 1);
  ReleaseResource(second);
  EXPECT_EQ(ResError(), noErr);
  EXPECT_EQ(GetResourceSizeOnDisk(second), -1);
  ReleaseResource(second);
  EXPECT_EQ(ResError(), resNotFound);
  ReleaseResource(nullptr);

  const Handle closed = GetResource(kText, 1);
  CloseResFile(number);
  EXPECT_EQ(GetResourceSizeOnDisk(closed), -1);
  EXPECT_EQ(_TextOf(handle), "Jello") << "detached from its file";
  DisposeHandle(handle);
}

TEST_F(ResourcesTest, IndexedStrings) {
  const std::string list = StringList({"one", "", "tr\x8Fs"});
  Open("1", BuildFork({{"STR#",
                        {{1, list + PascalString("surplus")},
                         {2, list.substr(0, list.size() - 1)},
                         {3, BigEndian(0xFFFF, 2)},
                         {4, std::string(1, '\0')},
                         {5, ""}}}}));
  const struct {
    int16_t id, index;
    const char* expected;
  } rows[] = {{1, 1, "one"}, {1, 2, ""},     {1, 3, "tr\x8Fs"}, {1, 4, ""}, {1, 0, ""},
              {1, -1, ""},   {1, 32767, ""}, {2, 1, "one"},     {2, 3, ""}, {3, 1, ""},
              {4, 1, ""},    {5, 1, ""},     {3, 32767, ""},    {9, 1, ""}};
  for (const auto& row : rows)
    EXPECT_EQ(GetIndString(row.id, row.index), row.expected) << row.id << " " << row.index;
}

TEST(Memory, BlocksAreClearedAndAligned) {
  for (const size_t size : {size_t{0}, size_t{1}, size_t{1000}}) {
    const Handle handle = NewHandleClear(size);
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(GetHandleSize(handle), size);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(*handle) % alignof(std::max_align_t), 0U);
    EXPECT_EQ(_TextOf(handle), std::string(size, '\0'));
    DisposeHandle(handle);
  }
  EXPECT_EQ(NewHandleClear(SIZE_MAX), nullptr);
  EXPECT_EQ(GetHandleSize(nullptr), 0U);
  DisposeHandle(nullptr);
}

}  // namespace
