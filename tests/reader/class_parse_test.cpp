#include "Common/QZXMLParse/QZClassParse.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "tests/support/ClassDump.h"
#include "tests/support/Exported.h"

namespace {

struct Parsed {
  bool success;
  qz::ClassRecord record;
  QZClassParseReport report;
};

Parsed _Parse(const std::string& document) {
  std::istringstream stream(document);
  Parsed parsed{};
  parsed.success = QZClassParse(&parsed.record, stream, &parsed.report);
  return parsed;
}

std::string _InClass(const std::string& content) {
  return "<class>" + content + "</class>";
}
std::string _InStudent(const std::string& content) {
  return _InClass("<student-list><student id='7'>" + content + "</student></student-list>");
}

// A class file with every element that is read, and the record in words, as 8-bit text.
const std::string kWhole = ReadFile(CLASS_FILES "/every-field.xml");
const std::string kWholeDump = ReadFile(CLASS_FILES "/every-field.txt");

TEST(ClassParse, ReadsEveryField) {
  const Parsed parsed = _Parse(kWhole);
  EXPECT_TRUE(parsed.success);
  EXPECT_EQ(parsed.report.reason, nullptr);
  EXPECT_EQ(parsed.report.className, "Biología 中");
  EXPECT_EQ(parsed.report.replacedCharacters, 1U);
  EXPECT_EQ(Dump(parsed.record), kWholeDump);

  qz::ClassRecord record = parsed.record;
  std::istringstream another(_InStudent(""));
  EXPECT_TRUE(QZClassParse(&record, another));
  EXPECT_EQ(record.students.size(), 3U) << "a read appends";
}

TEST(ClassParse, EveryByteMayStraddleAChunk) {
  const size_t prologEnd = kWhole.find("<class>");
  for (size_t before = 0; before <= kWhole.size() - prologEnd; ++before) {
    // Moves the byte at prologEnd + before to the start of the second chunk.
    const size_t padding = 4095 - prologEnd - before % 4095 - std::string("<!---->").size();
    std::string padded = kWhole;
    padded.insert(prologEnd, "<!--" + std::string(padding, '.') + "-->");
    ASSERT_EQ(Dump(_Parse(padded).record), kWholeDump) << "cut before byte " << before;
  }
}

TEST(ClassParse, CountsWhatIsReplacedInKeptTexts) {
  const std::string a199(199, 'a');
  const struct {
    const char* what;
    std::string document;
    uint64_t replaced;
  } rows[] = {
      {"none", _InStudent("<alias>?é</alias>"), 0},
      {"each one", _InStudent("<alias>中?中</alias><race>Ω</race>"), 3},
      {"a label", _InClass("<preferences><custom-1>中</custom-1></preferences>"), 1},
      {"not what is cut", _InStudent("<alias>" + a199 + "中</alias>"), 0},
      {"not what is repeated", _InStudent("<alias/><alias>中</alias>"), 0},
      {"not what no record holds", _InClass("<city>中</city><x>中</x>"), 0},
      {"not in a number",
       _InClass("<assignment-list><assignment id='中'><points-possible>1中</points-possible></assignment>"
                "</assignment-list>"),
       0},
      {"not in a second list",
       _InClass("<assignment-list><assignment><results-list/><results-list><results><response-list><response>"
                "<text>中</text></response></response-list></results></results-list></assignment>"
                "</assignment-list>"),
       0},
  };
  for (const auto& row : rows)
    EXPECT_EQ(_Parse(row.document).report.replacedCharacters, row.replaced) << row.what;
}

TEST(ClassParse, RecordsThatAreFoundMayBeChanged) {
  qz::ClassRecord record = _Parse(kWhole).record;
  qz::AssignmentRecord& quiz = record.assignments.at(0);
  qz::ResultsRecord* results = quiz.FindResultsForStudent(7);
  ASSERT_EQ(results, &quiz.results.at(0));
  qz::ResponseRecord* response = results->FindResponseForQuestion(quiz.questions.at(1));
  ASSERT_EQ(response, &results->responses.at(1));
  EXPECT_EQ(quiz.results.at(1).FindResponseForQuestion(quiz.questions.at(1)), nullptr);
  EXPECT_EQ(quiz.FindResultsForStudent(9), nullptr);
}

}  // namespace
