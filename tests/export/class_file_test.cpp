// Class files: what a read gives, and every fault by its code.
#include "Export/ClassFile.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <thread>
#include <vector>

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
  }
}

TEST(ClassFile, IsReadFromSeveralThreads) {
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([] {
      for (int read = 0; read < 200; ++read) {
        EXPECT_EQ(_Read("<class>" + kStudents + "</class>").record.students.size(), 1U);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
