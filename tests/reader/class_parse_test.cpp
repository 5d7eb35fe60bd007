#include "Common/QZXMLParse/QZClassParse.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
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
}

// Hands out one byte at a time, as a pipe may.
class OneByteBuffer : public std::streambuf {
 public:
  explicit OneByteBuffer(std::string text) : m_text(std::move(text)) {}

 protected:
  int_type underflow() override {
    if (m_next == m_text.size()) return traits_type::eof();
    m_byte = m_text[m_next++];
    setg(&m_byte, &m_byte, &m_byte + 1);
    return traits_type::to_int_type(m_byte);
  }

 private:
  std::string m_text;
  size_t m_next = 0;
  char m_byte = 0;
};

TEST(ClassParse, DoesNotDependOnTheStreamsReads) {
  OneByteBuffer buffer(kWhole);
  std::istream stream(&buffer);
  qz::ClassRecord record;
  EXPECT_TRUE(QZClassParse(&record, stream));
  EXPECT_EQ(Dump(record), kWholeDump);
}

TEST(ClassParse, EveryByteMayStraddleAChunk) {
  const std::string& document = kWhole;
  const size_t prologEnd = document.find("<class>");
  for (size_t before = 0; before <= document.size() - prologEnd; ++before) {
    // Moves the byte at prologEnd + before to the start of the second chunk.
    const size_t padding = 4095 - prologEnd - before % 4095 - std::string("<!---->").size();
    std::string padded = document;
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
  response->pointsEarned = 4;
  EXPECT_EQ(results->GetTotalPoints(), 6.5);
  EXPECT_EQ(quiz.results.at(1).FindResponseForQuestion(quiz.questions.at(1)), nullptr);
  EXPECT_EQ(quiz.FindResultsForStudent(9), nullptr);
}

struct StudentRow {
  const char* what;
  std::string content;
  std::string firstName;
};

TEST(ClassParse, TakesTextsAsWritten) {
  const std::string a198(198, 'a');
  const StudentRow rows[] = {
      {"pieces around a comment and an unknown element",
       "<first-name>An<!-- c --><b>no</b>n<?pi x?>a</first-name>", "Anna"},
      {"the first of two counts", "<first-name>Ann</first-name><first-name>Bea</first-name>", "Ann"},
      {"even when it is empty", "<first-name/><first-name>Bea</first-name>", ""},
      {"not inside an unknown element", "<x><first-name>Bea</first-name></x><first-name>Ann</first-name>",
       "Ann"},
      {"character data of the student is not used", "text<first-name>Ann</first-name>text", "Ann"},
      {"any prefix", "<p:first-name xmlns:p='urn:x#y'>Ann</p:first-name>", "Ann"},
      {"control characters are spaces", "<first-name>\t&#9;A&#10;n&#13;n&#10;</first-name>", "  A n n"},
      {"only trailing blanks go", "<first-name>  Ann \n </first-name>", "  Ann"},
      {"case-sensitive names", "<First-Name>Ann</First-Name>", ""},
      {"outside the 8-bit set", "<first-name>\xF0\x9F\x98\x80\xC5\x81\xC2\x80</first-name>", "???"},
      {"no-break space and euro", "<first-name>\xC2\xA0\xE2\x82\xAC</first-name>", "\xCA\xDB"},
      {"entities", "<first-name>&lt;&amp;&quot;&apos;&#233;</first-name>", "<&\"'\x8E"},
      {"cut at 199 characters, then stripped", "<first-name>" + a198 + " \xC3\xA9tail</first-name>", a198},
      {"cut by characters, not bytes", "<first-name>" + a198 + "\xC3\xA9tail</first-name>", a198 + "\x8E"},
  };
  for (const StudentRow& row : rows) {
    const Parsed parsed = _Parse(_InStudent(row.content));
    ASSERT_TRUE(parsed.success) << row.what << ": " << parsed.report.reason;
    ASSERT_EQ(parsed.record.students.size(), 1U) << row.what;
    EXPECT_EQ(parsed.record.students[0].firstName, row.firstName) << row.what;
  }
}

TEST(ClassParse, WidensGenderExactly) {
  for (const auto& [text, gender] :
       {std::pair("M", "Male"), {"F", "Female"}, {"m", "m"}, {"Male", "Male"}, {"", ""}}) {
    EXPECT_EQ(_Parse(_InStudent("<gender>" + std::string(text) + "</gender>")).record.students[0].gender,
              gender);
  }
}

TEST(ClassParse, AppliesPreferencesInTurn) {
  const std::string long200(210, 'x');
  const Parsed parsed =
      _Parse(_InClass("<preferences><custom-1>one</custom-1><custom-3>three</custom-3></preferences>"
                      "<preferences><custom-1> </custom-1><custom-2>" +
                      long200 + "</custom-2><custom-3>drei</custom-3></preferences>"));
  EXPECT_EQ(Dump(parsed.record), "[one][" + long200.substr(0, 200) + "][drei]\n");
}

TEST(ClassParse, OnlyTheFirstListOfAKindCounts) {
  const Parsed parsed = _Parse(_InClass(
      "<assignment-list><assignment id='1'>"
      "<question-list/><question-list><question number='1' type='MC' question-id='1' "
      "bank-id='1'/></question-list>"
      "<results-list><results id='7'><response-list><response question-id='1' bank-id='1'/></response-list>"
      "<response-list><response question-id='2' bank-id='1'/></response-list></results>"
      "<results id='8'/></results-list><results-list><results id='9'/></results-list></assignment>"
      "<assignment><question-list><question/></question-list></assignment></assignment-list>"
      "<assignment-list><assignment id='x'/></assignment-list>"));
  ASSERT_TRUE(parsed.success);
  EXPECT_EQ(Dump(parsed.record),
            "[Custom 1][Custom 2][Custom 3]\n"
            "assignment 1||||||0|0|0\n results 7 (1|1||0)\n results 8\n"
            "assignment 0||||||0|0|0\n question 13|0|0|0|0|||||0\n"
            "assignment 0||||||0|0|0\n");
}

struct NumberRow {
  const char* text;
  int32_t whole;
  double real;
};

const NumberRow kNumbers[] = {
    {"12.5", 12, 12.5},
    {" 7", 7, 7.0},
    {"+3", 3, 3.0},
    {".5", 0, 0.5},
    {"5.", 5, 5.0},
    {"1e2", 1, 100},
    {"2,5", 2, 2.0},
    {"abc", 0, 0.0},
    {"", 0, 0.0},
    {"-4x", -4, -4},
    {"0x10", 0, 16.0},
    {"9999999999", INT32_MAX, 9999999999.0},
    {"1e400", 1, std::numeric_limits<double>::infinity()},
    {"-99999999999", INT32_MIN, -99999999999.0},
    {"1e999", 1, std::numeric_limits<double>::infinity()},
    {"-inf", 0, -std::numeric_limits<double>::infinity()},
    {"nan", 0, std::numeric_limits<double>::quiet_NaN()},
};

void _ExpectNumbers() {
  for (const NumberRow& row : kNumbers) {
    const std::string points = "<points-possible>" + std::string(row.text) + "</points-possible>";
    const Parsed parsed = _Parse(_InClass("<assignment-list><assignment id='" + std::string(row.text) + "'>" +
                                          points + "<question-list><question>" + points +
                                          "</question></question-list></assignment></assignment-list>"));
    ASSERT_EQ(parsed.record.assignments.size(), 1U) << row.text;
    EXPECT_EQ(parsed.record.assignments[0].id, row.whole) << row.text;
    EXPECT_EQ(parsed.record.assignments[0].pointsPossible, row.whole) << row.text;
    const double real = parsed.record.assignments[0].questions[0].pointsPossible;
    EXPECT_TRUE(real == row.real || (std::isnan(real) && std::isnan(row.real))) << row.text << ": " << real;
  }
}

TEST(ClassParse, ReadsNumbersInEveryLocale) {
  _ExpectNumbers();
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) GTEST_SKIP() << "no German locale on this machine";
  EXPECT_STREQ(std::localeconv()->decimal_point, ",");
  _ExpectNumbers();
  std::setlocale(LC_ALL, "C");
}

TEST(ClassParse, SkipsWhatIsTooDeep) {
  std::string open;
  std::string close;
  for (int i = 0; i < 60; ++i) {
    open += "<d>";
    close += "</d>";
  }
  const Parsed parsed =
      _Parse(_InClass(open + "<student-list><student id='1'/></student-list>" + close + "<student-list>" +
                      open + close + "<student id='2'/></student-list>"));
  ASSERT_TRUE(parsed.success);
  ASSERT_EQ(parsed.record.students.size(), 1U);
  EXPECT_EQ(parsed.record.students[0].id, 2);
}

TEST(ClassParse, AppendsToTheRecord) {
  qz::ClassRecord record;
  record.students.resize(2);
  std::istringstream stream(_InStudent(""));
  EXPECT_TRUE(QZClassParse(&record, stream));
  EXPECT_EQ(record.students.size(), 3U);
}

}  // namespace
