// Class files: what a read gives, and every fault by its code.
#include "Export/ClassFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "tests/support/ClassDump.h"

namespace {

ClassFile _Read(const std::string& text) {
  std::istringstream stream(text);
  return ReadClassFile(stream, "-");
}

const std::string kStudents =
    "<student-list><student id='7'><last-name>Zoé 語</last-name></student></student-list>";

std::string _Utf16(const std::string& ascii, bool bigEndian) {
  std::string wide = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
  for (const char character : ascii) {
    wide += bigEndian ? '\0' : character;
    wide += bigEndian ? character : '\0';
  }
  return wide;
}

TEST(ClassFile, GivesTheClassItsNameAndWhatWasReplaced) {
  const ClassFile file =
      _Read("<class>" + kStudents + "<class-name> Biology\n &amp; 101 é語 </class-name></class>");
  ASSERT_TRUE(file.IsRead()) << file.fault.reason;
  EXPECT_EQ(file.path, "-");
  EXPECT_EQ(file.name, "Biology & 101 é語");
  ASSERT_EQ(file.record.students.size(), 1U);
  EXPECT_EQ(file.record.students[0].lastName, "Zo\x8E ?");
  EXPECT_EQ(file.replacedCharacters, 1U);
  EXPECT_EQ(file.Texts().StudentName(0), "Zoé 語");
}

TEST(ClassFile, TellsTheFaultsApart) {
  using Code = ClassFaultCode;
  const struct {
    const char* name;
    std::string text;
    Code code;
    uint64_t line, column;
    const char* reason;
  } rows[] = {
      {"nothing", "", Code::kDamaged, 1, 1, "no element found"},
      {"cut short", "<class>\né<a>", Code::kDamaged, 2, 5, "no element found"},
      {"cut short behind a student", "<class>\n" + kStudents, Code::kDamaged, 2, 84, "no element found"},
      {"wrong end", "<class>\n <a>\n</class>", Code::kDamaged, 3, 3, "mismatched tag"},
      {"another document", "\n<html></html>", Code::kNotAClass, 2, 1, "not class"},
      {"little-endian UTF-16", _Utf16("<class/>", false), Code::kUnsupportedEncoding, 1, 2, "UTF-16"},
      {"big-endian UTF-16", _Utf16("<class/>", true), Code::kUnsupportedEncoding, 1, 2, "UTF-16"},
      {"unknown encoding", "<?xml version='1.0' encoding='koi8-r'?><class/>", Code::kUnsupportedEncoding, 1,
       31, "koi8-r"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const ClassFile file = _Read(row.text);
    EXPECT_EQ(file.fault.code, row.code);
    EXPECT_EQ(file.fault.line, row.line);
    EXPECT_EQ(file.fault.column, row.column);
    EXPECT_NE(file.fault.reason.find(row.reason), std::string::npos) << file.fault.reason;
    EXPECT_TRUE(file.record.students.empty());  // no half class
    EXPECT_TRUE(file.originals.IsEmpty());
  }
}

std::string _DumpOf(const std::string& path) {
  const ClassFile file = ReadClassFile(path);
  std::string dump = file.name + file.fault.reason + std::to_string(file.fault.line) + Dump(file.record);
  ForEachOriginal(file.record, file.originals,
                  [&dump](const std::string&, const std::string& original) { dump += original + '\n'; });
  return dump;
}

TEST(ClassFile, ThreadsReadAtOnceWhatOneReads) {
  std::vector<std::pair<std::string, std::string>> files;  // and their dumps
  for (const char* folder : {SAMPLES, HOSTILE_CLASSES}) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      if (entry.path().extension() == ".xml") files.emplace_back(entry.path(), _DumpOf(entry.path()));
    }
  }
  ASSERT_GT(files.size(), 10U);
  std::vector<std::thread> threads;
  for (size_t thread = 0; thread < 4; ++thread) {
    threads.emplace_back([&files, thread] {
      for (size_t i = 0; i < 4 * files.size(); ++i) {
        const auto& [path, dump] = files[(thread * 3 + i) % files.size()];
        EXPECT_EQ(_DumpOf(path), dump) << path;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
