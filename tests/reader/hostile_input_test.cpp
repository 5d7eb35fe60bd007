// Class files that are broken, cut or made to do harm.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "Common/QZXMLParse/QZClassParse.h"

namespace {

const std::string kTwoStudents = "<class>\n<student-list><student id='1'/><student id='2'/>";

TEST(HostileInput, FailsAndKeepsWhatWasComplete) {
  const std::string zero(1, '\0');
  const struct {
    const char* what;
    std::string document;
    size_t students;
    uint64_t line;
    const char* reason;
    QZClassFault fault = kClassFaultMalformed;
    const char* encoding = "";
  } rows[] = {
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
  for (const auto& row : rows) {
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

TEST(HostileInput, EntitiesNeitherGrowNorNestWithoutBound) {
  std::string laughs = "<!DOCTYPE class [<!ENTITY e0 'haha'>";
  for (int i = 1; i <= 30; ++i) {
    laughs += "<!ENTITY e" + std::to_string(i) + " '";
    for (int again = 0; again < 10; ++again) laughs += "&e" + std::to_string(i - 1) + ";";
    laughs += "'>";
  }
  laughs += "]><class><class-name>&e30;</class-name></class>";

  std::string chain = "<!DOCTYPE class [<!ENTITY e0 'x'>";
  for (int i = 1; i <= 100000; ++i) {
    chain += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i - 1) + ";'>";
  }
  chain += "]><class><class-name>&e100000;</class-name></class>";

  for (const std::string& document : {laughs, chain}) {
    std::istringstream stream(document);
    qz::ClassRecord record;
    QZClassParseReport report;
    EXPECT_FALSE(QZClassParse(&record, stream, &report));
    EXPECT_NE(report.reason, nullptr);
  }
}

}  // namespace
