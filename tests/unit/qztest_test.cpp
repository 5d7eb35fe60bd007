#include "Common/QZData/QZTest.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "Common/QZData/QZClass.h"

namespace {

constexpr int32_t kGreatest = std::numeric_limits<int32_t>::max();

TEST(QuestionTypes, AbbreviationsAndKeywords) {
  std::string all;
  for (int32_t type = -1; type <= 14; ++type) {
    const char* const abbreviation = qz::Test::GetQuestionTypeAbbrev(type);
    all += abbreviation == nullptr ? "- " : std::string(abbreviation) + ' ';
  }
  EXPECT_EQ(all, "- TF MTF MC MR - YN NR CO MA SA PR ES CA OT - ");
  EXPECT_EQ(qz::Test::GetQuestionType("Bi"), 4);
  EXPECT_EQ(qz::Test::GetQuestionType("mtF"), 1);
  for (const char* unknown : {"", "t", "tf "}) EXPECT_EQ(qz::Test::GetQuestionType(unknown), -1) << unknown;
}

TEST(QuestionNumbers, RunsOfTypes) {
  const struct {
    const char* name;
    std::vector<int32_t> types;
    int32_t start;
    uint32_t numbering;
    std::vector<int32_t> numbers;  // of each question, then of the index behind the last
    int32_t newTF;
    bool hasMC;
  } rows[] = {
      {"opening run goes on from the start", {0, 0, 2, 2}, 5, 0, {5, 6, 1, 2, 1}, 7, true},
      {"continuous", {0, 0, 2}, 5, 1, {5, 6, 7, 8}, 8, true},
      {"a type that comes back", {2, 0, 2, 0}, 5, 0, {5, 1, 6, 2, 1}, 3, true},
      {"empty", {}, 5, 0, {5}, 5, false},
      {"wraps", {0, 0}, kGreatest, 0, {kGreatest, -kGreatest - 1, 1}, -kGreatest, false},
      {"wraps, continuous", {0, 0}, kGreatest, 1, {kGreatest, -kGreatest - 1, -kGreatest}, -kGreatest, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    qz::Test test;
    for (const int32_t type : row.types) test.questions.push_back({type, ""});
    test.startNumber = row.start;
    test.numbering = row.numbering;
    std::vector<int32_t> numbers;
    for (int32_t i = 0; i <= test.GetQuestionCount(); ++i) numbers.push_back(test.GetQuestionNumber(i));
    EXPECT_EQ(numbers, row.numbers);
    EXPECT_EQ(test.GetNewQuestionNumber(qz::kQuestionTF), row.newTF);
    EXPECT_EQ(test.GetQuestionNumber(-1), row.start);
    EXPECT_EQ(test.HasQuestionType(2), row.hasMC);
  }
}

TEST(TestLookups, FirstOfTheNameWithoutCase) {
  qz::Test test;
  test.narratives = {{""}, {"Poem"}, {"POEM"}};
  test.matchingGroups = {{"Rivers"}};
  EXPECT_EQ(test.FindNarrativeIndex("poem"), 1);
  EXPECT_EQ(test.FindNarrativePtr("pOEM"), &test.narratives[1]);
  EXPECT_EQ(test.FindNarrativeIndex(""), -1);
  EXPECT_EQ(test.FindNarrativePtr("Rivers"), nullptr);
  EXPECT_EQ(test.FindMatchingGroupIndex("RIVERS"), 0);
  EXPECT_EQ(test.FindMatchingGroupPtr("rivers"), &test.matchingGroups[0]);
  EXPECT_EQ(test.FindMatchingGroupPtr("Poem"), nullptr);

  test.startNumber = 9;
  test.Clear();
  EXPECT_EQ(test.FindNarrativeIndex("poem"), -1);
  EXPECT_EQ(test.startNumber, qz::Test().startNumber);
}

TEST(Feedback, TextBetweenTheMarkers) {
  const std::string longText(qz::Test::kMaxFeedback + 200, 'x');
  const struct {
    const char* name;
    int32_t type;
    std::string feedback;
    char letter;
    std::string expected;
  } rows[] = {
      {"first", 2, "/A/yes/B/no/E/last", 'A', "yes"},
      {"gap in the letters", 2, "/A/yes/B/no/E/last", 'B', "no/E/last"},
      {"last", 2, "/A/yes/E/last", 'E', "last"},
      {"E ends at F", 2, "/E/last/F/more", 'E', "last"},
      {"markers in lower case", 2, "/a/yes/b/no", 'A', "yes"},
      {"no marker", 2, "/A/yes", 'C', ""},
      {"lower-case letter", 2, "/A/yes", 'a', ""},
      {"beyond E", 2, "/F/yes", 'F', ""},
      {"other type", 3, "/A/yes", 'A', ""},
      {"cut", 2, "/A/" + longText, 'A', longText.substr(0, qz::Test::kMaxFeedback)},
      {"next marker behind the cut", 2, "/A/" + longText + "/B/", 'A',
       longText.substr(0, qz::Test::kMaxFeedback)},
  };
  for (const auto& row : rows) {
    char buffer[qz::Test::kMaxFeedback + 1];
    std::memset(buffer, '#', sizeof buffer);
    EXPECT_EQ(qz::Test::GetMCItemFeedback({row.type, row.feedback}, row.letter, buffer), buffer);
    EXPECT_EQ(std::string(buffer), row.expected) << row.name;
  }
}

TEST(DefaultFontCss, DeclarationsInOrder) {
  qz::Test test;
  test.fonts = {{7, "Times"}, {7, "Courier"}};
  char buffer[128 + sizeof "Courier"];
  EXPECT_STREQ(test.BuildCSSFromDefaultFont(buffer, {7, 11, 0x5, 0x0000FF}, true),
               "font-size:12pt; font-weight:bold; font-style:italic; font-family:\"Times\"; color:#FF0000;");
  EXPECT_STREQ(test.BuildCSSFromDefaultFont(buffer, {8, 11, 0x2, 0xFF0A0B0C}, false),
               "font-size:11pt; text-decoration:underline; color:#0C0B0A;");
}

TEST(PrefixedFilename, OneUnderscoreBetween) {
  for (const auto& [prefix, name, expected] :
       std::vector<std::array<const char*, 3>>{{"quiz", "a.gif", "quiz_a.gif"},
                                               {"quiz_", "a.gif", "quiz_a.gif"},
                                               {"quiz", "", "quiz"},
                                               {"", "a", "a"}}) {
    qz::Test test;
    test.filenamePrefix = prefix;
    char buffer[32];
    EXPECT_STREQ(test.MakePrefixedFilename(buffer, name), expected);
  }
}

}  // namespace
