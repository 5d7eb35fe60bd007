// The texts that the 8-bit records could not hold: which are kept, in what form, and whose they are.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "Common/QZXMLParse/QZClassParse.h"
#include "tests/support/ClassDump.h"

namespace {

std::string _Repeated(const std::string& text, int count) {
  std::string repeated;
  for (int i = 0; i < count; ++i) repeated += text;
  return repeated;
}
std::string _Alias(const std::string& text) {
  return "<class><student-list><student><alias>" + text + "</alias></student></student-list></class>";
}
std::string _Labels(const std::string& first, const std::string& second) {
  return "<class><preferences><custom-2>" + first + "</custom-2></preferences><preferences><custom-2>" +
         second + "</custom-2></preferences></class>";
}

// Reads the document, and gives each text with an original one as "text:original;".
std::string _Originals(const std::string& document, qz::ClassRecord* record) {
  std::istringstream stream(document);
  qz::OriginalTexts originals;
  originals.KeepLabel(0, "of an earlier read");
  QZClassParseReport report;
  report.originals = &originals;
  QZClassParse(record, stream, &report);
  std::string list;
  size_t count = 0;
  ForEachOriginal(*record, originals, [&](const std::string& text, const std::string& original) {
    list += text + ":" + original + ";";
    ++count;
  });
  EXPECT_EQ(originals.Count(), count) << "texts of no record";
  return list;
}

TEST(OriginalTexts, AreThoseThatLostALetter) {
  const std::string assignment =
      "<class><assignment-list><assignment/><assignment><assignment-name>n語</assignment-name>"
      "<assignment-id>a語</assignment-id><category>c語</category><online-id>o語</online-id>"
      "<assignment-date>d語</assignment-date><question-list><question/><question><answer>A語</answer>"
      "<reference>R語</reference><learning-objective>L語</learning-objective>"
      "<state-standard>S語</state-standard><num-choices>語</num-choices></question></question-list>"
      "<results-list><results/><results><response-list><response/><response><text>r語</text></response>"
      "</response-list></results></results-list>";
  const std::string ofAssignment = "n?:n語;a?:a語;c?:c語;o?:o語;d?:d語;A?:A語;R?:R語;L?:L語;S?:S語;r?:r語;";
  const std::string a199(199, 'a');
  const std::string a198(198, 'a');
  const struct {
    const char* name;
    std::string document;
    std::string originals;
  } rows[] = {
      {"none", _Alias("é?"), ""},
      {"every field of a student",
       "<class><student-list><student/><student><pad-id>ł</pad-id><custom-3>Ł</custom-3><gender>Ž</gender>"
       "<first-name>Łukasz</first-name><password>密</password></student></student-list></class>",
       "?ukasz:Łukasz;?:密;?:ł;?:Ž;?:Ł;"},
      {"every text of an assignment", assignment + "</assignment></assignment-list></class>", ofAssignment},
      {"nothing of an unfinished assignment", assignment, ""},
      {"nothing of an unfinished student",
       "<class><student-list><student><alias>Ł</alias></student><student><alias>Ž</alias></x>", "?:Ł;"},
      {"nothing of a second list",
       "<class><assignment-list><assignment><question-list/><question-list><question><answer>語</answer>"
       "</question></question-list></assignment></assignment-list></class>",
       ""},
      {"a label", _Labels("Ł", ""), "?:Ł;"},
      {"a label that preferences behind replace", _Labels("Ł", "L"), ""},
      {"the last label", _Labels("Ł", "Ž"), "?:Ž;"},
      {"199 characters", _Alias(a198 + "Łb"), a198 + "?:" + a198 + "Ł;"},
      {"not what is cut", _Alias(a199 + "Ł"), ""},
      {"200 characters of a label", _Labels(a199 + "Łb", ""), a199 + "?:" + a199 + "Ł;"},
      {"characters of four bytes", _Alias(_Repeated("😀", 300)),
       _Repeated("?", 199) + ":" + _Repeated("😀", 199) + ";"},
      {"blanks of all kinds", _Alias(" Ł\n\tb &#13; "), " ?  b: Ł  b;"},
      {"pieces", _Alias("Ł&amp;<x>x</x>é<![CDATA[Ž]]>"), "?&\x8E?:Ł&éŽ;"},
      {"unusual characters", _Alias("\uFFFDe\u0301\u202E\u2028\u0085"),
       "?e????:\uFFFDe\u0301\u202E\u2028\u0085;"},
      {"ISO-8859-1", "<?xml version='1.0' encoding='iso-8859-1'?>" + _Alias("\xBE\xE9"), "?\x8E:¾é;"},
  };
  for (const auto& row : rows) {
    qz::ClassRecord record;
    EXPECT_EQ(_Originals(row.document, &record), row.originals) << row.name;
  }
}

TEST(OriginalTexts, AreThoseOfTheRecordsAfterTheRead) {
  qz::ClassRecord record;
  record.students.resize(3);
  for (const int32_t key : {-1, 0, 0, 5}) record.assignments.emplace_back().sortKey = key;
  EXPECT_EQ(
      _Originals("<class><student-list><student><alias>Ł</alias></student></student-list><assignment-list>"
                 "<assignment><category>Ž</category></assignment><assignment><category>Ż</category>"
                 "</assignment></assignment-list></class>",
                 &record),
      "?:Ł;?:Ž;?:Ż;");
  EXPECT_EQ(record.assignments.at(3).category, "?");
}

}  // namespace
