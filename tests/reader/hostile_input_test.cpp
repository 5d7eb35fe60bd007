// Class files that are broken, cut, huge or made to do harm.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "Common/QZXMLParse/QZClassParse.h"

namespace {

std::string _Repeated(const std::string& text, size_t count) {
  std::string result;
  result.reserve(text.size() * count);
  for (size_t i = 0; i < count; ++i) result += text;
  return result;
}

// `before`, a number, `after`, for each number below `count`.
std::string _Numbered(const char* before, int count, const char* after) {
  std::ostringstream result;
  for (int i = 0; i < count; ++i) result << before << i << after;
  return result.str();
}

const std::string kTwoStudents = "<class>\n<student-list><student id='1'/><student id='2'/>";

struct Row {
  const char* what;
  std::string document;
  size_t students;
  uint64_t line;
  const char* reason;
  QZClassFault fault = kClassFaultMalformed;
  const char* encoding = "";
};

TEST(HostileInput, FailsAndKeepsWhatWasComplete) {
  const std::string zero(1, '\0');
  const Row rows[] = {
      {"empty", "", 0, 1, "no element found"},
      {"blank", " \n ", 0, 2, "no element found"},
      {"another document element", "<class-list><student-list/></class-list>", 0, 1,
       "the document element is not class", kClassFaultNotAClass},
      {"a document element of another case", "<Class/>", 0, 1, "the document element is not class",
       kClassFaultNotAClass},
      {"cut between records", kTwoStudents, 2, 2, "no element found"},
      {"cut inside a record", kTwoStudents + "<student id='3'><alias>x", 2, 2, "no element found"},
      {"cut inside a tag", kTwoStudents + "<student id='3", 2, 2, "unclosed token"},
      {"mismatched tag", kTwoStudents + "</class>", 2, 2, "mismatched tag"},
      {"invalid UTF-8", kTwoStudents + "\n<student id='3'><alias>\xC3(</alias>", 2, 3,
       "not well-formed (invalid token)"},
      {"a zero byte ends the chunk", kTwoStudents + zero + "</student-list></class>", 2, 2,
       "no element found"},
      {"UTF-16", std::string("<\0c\0l\0a\0s\0s\0/\0>\0", 16), 0, 1, "unclosed token", kClassFaultEncoding,
       "UTF-16"},
      {"UTF-16 with a byte order mark", "\xFE\xFF" + zero + "<", 0, 1, "no element found",
       kClassFaultEncoding, "UTF-16"},
      {"undeclared prefix", "<x:class/>", 0, 1, "unbound prefix"},
      {"undeclared entity", "<class>&nope;</class>", 0, 1, "undefined entity"},
      {"two document elements", "<class/><class/>", 0, 1, "junk after document element"},
      {"unknown encoding", "<?xml version='1.0' encoding='windows-1252'?><class/>", 0, 1, "unknown encoding",
       kClassFaultEncoding, "windows-1252"},
      {"recursive entity", "<!DOCTYPE class [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><class>&a;</class>", 0, 1,
       "recursive entity reference"},
  };
  for (const Row& row : rows) {
    std::istringstream stream(row.document);
    qz::ClassRecord record;
    QZClassParseReport report;
    EXPECT_FALSE(QZClassParse(&record, stream, &report)) << row.what;
    EXPECT_EQ(record.students.size(), row.students) << row.what;
    EXPECT_EQ(report.line, row.line) << row.what;
    EXPECT_GT(report.column, 0U) << row.what;
    EXPECT_STREQ(report.reason, row.reason) << row.what;
    EXPECT_EQ(report.fault, row.fault) << row.what;
    EXPECT_EQ(report.encoding, row.encoding) << row.what;
  }
}

TEST(HostileInput, UnopenedStreamIsAnEmptyFile) {
  std::istringstream stream("<class/>");
  stream.setstate(std::ios::failbit);
  qz::ClassRecord record;
  EXPECT_FALSE(QZClassParse(&record, stream));
}

// Large documents that a careless reader takes quadratic time, unbounded stack or unbounded memory for. Each
// is read in well under a second here, and would take minutes, or end the process, otherwise.
TEST(HostileInput, HugeDocuments) {
  constexpr size_t kMany = 1000000;
  const std::string student = "<class><student-list><student id='5'>";
  const std::string end = "</student></student-list></class>";
  const Row rows[] = {
      {"elements a million deep", "<class>" + _Repeated("<d>", kMany) + _Repeated("</d>", kMany) + "</class>",
       0, 0, ""},
      {"one very long attribute", "<class><student-list x='" + std::string(20 * kMany, 'x') + "'/></class>",
       0, 0, ""},
      {"one very long comment", "<class><!--" + std::string(20 * kMany, 'x') + "--></class>", 0, 0, ""},
      {"one very long text", student + "<alias>" + std::string(20 * kMany, '\n') + "</alias>" + end, 1, 0,
       ""},
      {"one text a million times", student + _Repeated("<alias/>", kMany) + end, 1, 0, ""},
      {"one list a million times", "<class>" + _Repeated("<student-list/>", kMany) + "</class>", 0, 0, ""},
      {"many preferences", "<class>" + _Repeated("<preferences/>", kMany) + "</class>", 0, 0, ""},
      {"many attributes", "<class" + _Numbered(" a", 100000, "=''") + "/>", 0, 0, ""},
  };
  for (const Row& row : rows) {
    std::istringstream stream(row.document);
    qz::ClassRecord record;
    QZClassParseReport report;
    EXPECT_TRUE(QZClassParse(&record, stream, &report)) << row.what << ": " << report.reason;
    EXPECT_EQ(record.students.size(), row.students) << row.what;
  }
}

TEST(HostileInput, EntitiesNeitherGrowNorNestWithoutBound) {
  std::ostringstream laughs;
  laughs << "<!DOCTYPE class [<!ENTITY e0 'haha'>";
  for (int i = 1; i <= 30; ++i) {
    laughs << "<!ENTITY e" << i << " '" << _Repeated("&e" + std::to_string(i - 1) + ";", 10) << "'>";
  }
  laughs << "]><class><class-name>&e30;</class-name></class>";

  std::ostringstream chain;
  chain << "<!DOCTYPE class [<!ENTITY e0 'x'>";
  for (int i = 1; i <= 100000; ++i) chain << "<!ENTITY e" << i << " '&e" << i - 1 << ";'>";
  chain << "]><class><class-name>&e100000;</class-name></class>";

  for (const std::string& document : {laughs.str(), chain.str()}) {
    std::istringstream stream(document);
    qz::ClassRecord record;
    QZClassParseReport report;
    EXPECT_FALSE(QZClassParse(&record, stream, &report));
    EXPECT_NE(report.reason, nullptr);
  }
}

}  // namespace
