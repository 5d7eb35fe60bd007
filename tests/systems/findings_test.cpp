// What a class and the choices tell about an import: each condition, and its nearest harmless neighbour.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "Export/ClassFile.h"
#include "Systems/FindingSentences.h"
#include "Systems/FindingTexts.h"
#include "Systems/LearningSystem.h"

namespace {

std::vector<std::string> _Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
  return parts;
}

std::string _Part(const std::vector<std::string>& parts, size_t i) {
  return i < parts.size() ? parts[i] : "";
}

std::string _Escaped(std::string text) {
  for (size_t at = 0; (at = text.find('&', at)) != std::string::npos; ++at) text.replace(at, 1, "&amp;");
  return text;
}

std::string _Element(const std::string& name, const std::string& text) {
  return "<" + name + ">" + _Escaped(text) + "</" + name + ">";
}

// A class of students, "First|Last|id|alias" each, and assignments, "Title|points|scores" each, between them
// ";". The scores have blanks between them; "_" is none, and what is beyond the students is nobody's.
ClassFile _Class(const std::string& students, const std::string& assignments) {
  std::string xml = "<class><student-list>";
  int id = 0;
  for (const std::string& student : _Split(students, ';')) {
    const auto parts = _Split(student, '|');
    xml += "<student id='" + std::to_string(++id) + "'>" + _Element("first-name", _Part(parts, 0)) +
           _Element("last-name", _Part(parts, 1)) + _Element("student-id", _Part(parts, 2)) +
           _Element("alias", _Part(parts, 3)) + "</student>";
  }
  xml += "</student-list><assignment-list>";
  for (const std::string& assignment : _Split(assignments, ';')) {
    const auto parts = _Split(assignment, '|');
    xml += "<assignment id='1'>" + _Element("assignment-name", _Part(parts, 0)) +
           _Element("points-possible", _Part(parts, 1)) + "<results-list>";
    id = 0;
    for (const std::string& score : _Split(_Part(parts, 2), ' ')) {
      ++id;
      if (score == "_") continue;
      xml += "<results id='" + std::to_string(id) +
             "'><response-list><response question-id='1' bank-id='1'>" + _Element("text", _Part(parts, 3)) +
             _Element("points-earned", score) + "</response></response-list></results>";
    }
    xml += "</results-list></assignment>";
  }
  std::istringstream stream(xml + "</assignment-list></class>");
  ClassFile file = ReadClassFile(stream, "class");
  EXPECT_TRUE(file.IsRead()) << file.fault.reason;
  for (qz::AssignmentRecord& assignment : file.record.assignments) assignment.selected = true;
  file.record.optionValue = qz::kDefaultReportFields;
  return file;
}

// "moodle current": the format's key and what was chosen.
ExportSubject _Subject(const std::string& how, const ClassFile& file) {
  const auto words = _Split(how, ' ');
  const auto has = [&](const char* word) { return std::ranges::find(words, word) != words.end(); };
  const Dialect dialect = has("current")  ? Dialect::kCurrent
                          : has("filled") ? Dialect::kFilled
                                          : Dialect::kClassic;
  ExportSubject subject =
      MakeExportSubject(*FindFormat(words[0]), file.Texts(), qz::kUserIDStudentID, dialect);
  subject.useQuotes = !has("unquoted");
  subject.throughDialog = has("dialog");
  if (has("alias")) subject.identifier = qz::kUserIDAlias;
  if (has("semicolons")) subject.delimiter = ';';
  return subject;
}

// "code:consequence" of each.
std::string _Text(const Findings& findings) {
  std::string text;
  for (const Finding& finding : findings) {
    if (!text.empty()) text += ' ';
    text.append(finding.code).append(":").append(ConsequenceKey(finding.consequence));
  }
  return text;
}

struct Row {
  const char* how;
  const char* students;
  const char* assignments;
  const char* expected;  // without what a clean class has, too
};

constexpr char kS[] = "Ann|Lee|a1;Bo|Ray|b2";
constexpr char kA[] = "Quiz 1|10|7 8.5";
constexpr char kNoID[] = "Ann|Lee|a1;Bo|Ray|";
constexpr char kSameID[] = "Ann|Lee|a1;Bo|Ray|a1";
constexpr char kSameName[] = "Ann|Lee|a1;Ann|Lee|b2";
constexpr char kNoName[] = "||a1;Bo|Ray|b2";
constexpr char kLostName[] = "Łu|Lee|a1;Bo|Ray|b2";  // Ł, which Mac OS Roman lacks
constexpr char kSomeResult[] = "Quiz 1|10|_ 8.5";
constexpr char kNoResult[] = "Quiz 1|10|_ _";

// clang-format off
const Row kRows[] = {
    // What is said of a clean class.
    {"webct", kS, kA, ""},
    {"blackboard6", kS, kA, ""},
    {"angel", kS, kA, ""},
    {"detailed", kS, kA, ""},
    {"blackboard8", kS, kA, "text-columns:note totals-offered:note"},
    {"blackboard91 unquoted", kS, kA, "text-columns:note totals-offered:note"},
    {"blackboard91 current", kS, kA, "text-columns:note totals-offered:note"},
    {"blackboard91 filled", kS, kA, ""},
    {"canvas", kS, kA, ""},
    {"d2l", kS, kA, ""},
    {"moodle", kS, kA, "new-columns:note"},
    {"moodle filled", kS, kA, ""},
    {"schoology", kS, kA, ""},
    {"sakai", kS, kA, "points-replaced:note decimal-comma:note"},
    {"sakai current semicolons", kS, kA, "points-replaced:note semicolons:note"},
    {"sakai filled", kS, kA, ""},

    // Nothing to export.
    {"canvas", kS, "", "no-assignments:refused"},
    {"moodle", kS, "", "no-assignments:note"},
    {"canvas", "", kNoResult, "no-students:note"},

    // Identifiers.
    {"canvas", kNoID, kA, "id-missing:note"},
    {"canvas current", kNoID, kA, "id-missing:lost"},
    {"moodle", kNoID, kA, "id-missing:refused"},
    {"moodle current", kNoID, kA, "id-missing:lost"},
    {"blackboard6", kNoID, kA, "id-missing:refused"},
    {"blackboard8", kNoID, kA, "id-missing:lost"},
    {"angel", kNoID, kA, "id-missing:lost"},
    {"sakai", kNoID, "Quiz 1|10|7 _", "id-missing:note result-missing:note"},
    {"detailed", kNoID, kA, ""},
    {"canvas", kSameID, kA, "id-duplicate:note"},
    {"canvas current", kSameID, kA, "id-duplicate:wrong"},
    {"canvas current alias", "Ann|Lee|a1|ann;Bo|Ray|a1|bo", kA, "student-id-duplicate:wrong"},
    {"canvas current alias", "Ann|Lee||ann;Bo|Ray||bo", kA, ""},
    {"schoology", kSameID, kA, "id-duplicate:wrong"},
    {"schoology", kSameID, kNoResult, "id-duplicate:note"},
    {"schoology filled", kSameID, kA, ""},
    {"sakai", "Ann|Lee|a1;Bo|Ray|0 A1", kA, "id-near-duplicate:note"},
    {"sakai", "Ann|Lee|a1;Bo|Ray|a10", kA, ""},
    {"canvas", "Ann|Lee|ł;Bo|Ray|b2", kA, "id-replaced:note"},
    {"moodle", "Ann|Lee|ł;Bo|Ray|b2", kA, "id-replaced:refused"},
    {"moodle current", "Ann|Lee|ł;Bo|Ray|b2", kA, ""},
    {"sakai", "Ann|Lee|ł;Bo|Ray|b2", kA, "id-replaced:lost"},
    {"sakai", "Ann|Lee|ł;Bo|Ray|b2", kSomeResult, "id-replaced:note result-missing:note"},
    {"sakai current", "Ann|Lee|–;Bo|Ray|b2", kA, "id-replaced:lost"},
    {"sakai current", "Ann|Lee|¼;Bo|Ray|b2", kA, ""},  // in ISO-8859-1, not in Mac OS Roman
    {"webct", "Ann|Lee|ł;Bo|Ray|?", kA, "id-duplicate:wrong id-replaced:wrong"},
    {"webct", "Ann|Lee|?;Bo|Ray|b2", kA, ""},
    {"moodle", "Ann|Lee|a\"1;Bo|Ray|b2", kA, "id-quote:refused"},
    {"sakai", "Ann|Lee|a\"1;Bo|Ray|b2", kA, "id-quote:lost"},
    {"webct", "Ann|Lee|a\"1;Bo|Ray|a'1", kA, "id-duplicate:wrong id-quote:wrong"},
    {"webct", "Ann|Lee|a\"1;Bo|Ray|b2", kSomeResult, "id-quote:note"},
    {"schoology current", "Ann|Lee|a\"1;Bo|Ray|a'1", kA, ""},
    {"canvas", "Ann|Lee|a,1;Bo|Ray|b2", kA, "id-comma:wrong"},
    {"moodle", "Ann|Lee|a,1;Bo|Ray|b2", kA, "id-comma:refused"},
    {"angel", "Ann|Lee|a,1;Bo|Ray|b2", kA, "id-comma:wrong"},
    {"angel", "Ann|Lee|a.1;Bo|Ray|b2", kA, ""},
    {"webct", "Ann|Lee|a,1;Bo|Ray|b2", kA, ""},
    {"moodle current", "Ann|Lee|a,1;Bo|Ray|b2", kA, ""},
    {"moodle", "Ann|Lee|zoë;Bo|Ray|b2", kA, "id-accents:refused"},
    {"sakai", "Ann|Lee|zoë;Bo|Ray|b2", kA, "id-accents:lost"},
    {"sakai", "Ann|Lee|zoë;Bo|Ray|b2", kSomeResult, "id-accents:note result-missing:note"},
    {"sakai current", "Ann|Lee|zoë;Bo|Ray|b2", kA, ""},
    {"canvas", "Ann|Lee|1a;Bo|Ray|b2", kA, "id-as-user-number:note"},
    {"canvas current", "Ann|Lee|1a;Bo|Ray|b2", kA, ""},
    {"moodle", "Ann|Lee|A1;Bo|Ray|b2", kA, "id-capitals:note"},
    {"d2l", "Ann|Lee|0012;Bo|Ray|b2", kA, "id-digits:note"},
    {"d2l", "Ann|Lee|00a;Bo|Ray|b2", kA, ""},
    {"d2l current", "Ann|Lee|0012;Bo|Ray|b2", kA, ""},

    // Letters, quotes and commas in what else the file has.
    {"canvas", "Zoë|Lee|a1;Bo|Ray|b2", kA, "accents:refused"},
    {"canvas", kS, "Café|10|7 8.5", "accents:refused"},
    {"canvas", "Ann|Lee|zoë;Bo|Ray|b2", kA, "accents:refused"},
    {"canvas current", "Zoë|Lee|zoë;Bo|Ray|b2", "Café|10|7 8.5", ""},
    {"webct", "Zoë|Lee|a1;Bo|Ray|b2", kA, "accents:note"},
    {"blackboard91", "Zoë|Lee|a1;Bo|Ray|b2", kA, "accents:note"},
    {"moodle", "Zoë|Lee|a1;Bo|Ray|b2", kA, ""},  // names are not in the file
    {"sakai", "Zoë|Lee|a1;Bo|Ray|b2", kA, ""},
    {"detailed", "Zoë|Lee|a1;Bo|Ray|b2", kA, "accents:note"},
    {"detailed", kS, "Café|10|7 8.5|té", "accents:note"},
    {"detailed", kS, "Café|10|7 8.5|tea", ""},
    {"canvas", kLostName, kA, "name-replaced:lost"},
    {"canvas", kLostName, kSomeResult, "name-replaced:note result-missing:note"},
    {"canvas current", kLostName, kA, ""},
    {"sakai current", kLostName, kA, "name-replaced:note"},
    {"webct", kLostName, kA, "name-replaced:changed"},
    {"detailed current", kLostName, "Ł|10|7 8.5|Ł \"", ""},
    {"detailed", kS, "Ł|10|7 8.5|Ł \"", "answer-replaced:changed answer-quote:note"},
    {"canvas", "Bo \"B\"|Ray|a1;Ann|Lee|b2", kA, "name-quote:lost"},
    {"canvas", "Bo 'B'|Ray|a1;Ann|Lee|b2", kA, ""},
    {"webct", "Bo \"B\"|Ray|a1;Ann|Lee|b2", kA, "name-quote:note"},
    {"blackboard8 unquoted", "Ann|Lee, Jr.|a1;Bo|Ray|b2", kA, "name-comma:wrong"},
    {"blackboard8", "Ann|Lee, Jr.|a1;Bo|Ray|b2", kA, ""},
    {"canvas", "Ann|Lee, Jr.|a1;Bo|Ray|b2", kA, ""},
    {"canvas", kSameName, kA, "name-equal:wrong"},
    {"canvas", kSameName, kNoResult, "result-missing:note name-equal:note"},
    {"canvas", "Ann|Lee|a1;ann|Lee|b2", kA, ""},
    {"canvas current", kSameName, kA, ""},
    {"canvas", kNoName, kA, "name-missing:lost"},
    {"canvas", kNoName, kSomeResult, "result-missing:note name-missing:note"},
    {"canvas current", kNoName, kA, ""},
    {"webct", "=Ann|Lee|a1;Bo|Ray|b2", kA, "formula:note"},
    {"sakai", "=Ann|Lee|a1;Bo|Ray|b2", kA, ""},  // does not begin the cell
    {"moodle current", kS, "+1|10|7 8.5", "formula:note"},
    {"detailed", kS, "Quiz 1|10|7 8.5|=5", "formula:note"},
    {"detailed", kS, "Quiz 1|10|7 8.5|-5", ""},

    // Titles.
    {"canvas", kS, "Quiz, 1|10|7 8.5", "title-comma:wrong"},
    {"moodle", kS, "Quiz, 1|10|7 8.5", "title-comma:refused"},
    {"sakai", kS, "Quiz, 1|10|7 8.5", "title-comma:wrong"},
    {"d2l", kS, "Quiz, 1|10|7 8.5", "title-comma:wrong"},
    {"schoology", kS, "Quiz, 1|10|7 8.5", "title-comma:wrong"},
    {"blackboard91 unquoted", kS, "Quiz, 1|10|7 8.5", "title-comma:wrong"},
    {"blackboard91", kS, "Quiz, 1|10|7 8.5", ""},
    {"webct", kS, "Quiz, 1|10|7 8.5", ""},
    {"sakai current", kS, "Quiz, 1|10|7 8.5", ""},
    {"moodle", kS, "Café|10|7 8.5", "title-accents:changed"},
    {"sakai", kS, "Café|10|7 8.5", "title-accents:changed"},
    {"sakai current", kS, "Café|10|7 8.5", ""},
    {"sakai current", kS, "Quiz – 1|10|7 8.5", "title-replaced:changed"},
    {"moodle", kS, "Ł|10|7 8.5", "title-replaced:changed"},
    {"moodle current", kS, "Ł|10|7 8.5", ""},
    {"moodle", kS, "\"Q\"|10|7 8.5;'Q'|10|7 8.5", "title-equal:wrong title-quote:note"},
    {"moodle current", kS, "\"Q\"|10|7 8.5;'Q'|10|7 8.5", ""},
    {"canvas", kS, "Q|10|7 8.5;Q|10|7 8.5", "title-equal:wrong"},
    {"sakai", kS, "Q|10|7 8.5;Q|20|7 8.5", "title-equal:refused"},
    {"d2l", kS, "Q|10|7 8.5;Q|10|7 8.5", "title-equal:note"},
    {"moodle filled", kS, "Q|10|7 8.5;Q|10|7 8.5", "title-equal:wrong"},
    {"moodle", kS, "Q|10|7 8.5;q|10|7 8.5", ""},
    {"canvas", kS, "Q (1)|10|7 8.5;Q (2)|10|7 8.5", "title-equal:wrong title-number:wrong"},
    {"canvas", kS, "Q(1)|10|7 8.5;Q (a)|10|7 8.5", ""},
    {"canvas filled", kS, "Q (1)|10|7 8.5;Q (2)|10|7 8.5", ""},
    {"sakai", kS, "|10|7 8.5", "title-empty:refused"},
    {"canvas", kS, "|10|7 8.5", "title-empty:note"},
    {"canvas current", kS, "Section|10|7 8.5", "title-heading:wrong"},
    {"canvas", kS, "Root Account (3)|10|7 8.5", "title-heading:wrong title-number:wrong"},
    {"canvas", kS, "section|10|7 8.5", ""},
    {"moodle", kS, "User ID|10|7 8.5", "title-heading:note"},
    {"sakai", kS, "Student ID|10|7 8.5", ""},  // has its points behind it
    {"canvas", kS, "My Final Score|10|7 8.5", "title-total:lost"},
    {"canvas filled", kS, "Override Status|10|7 8.5", "title-total:lost"},
    {"canvas", kS, "My final score|10|7 8.5;Final Exam Score|10|7 8.5", ""},
    {"canvas", kS, "Notes|10|7 8.5", "title-notes:lost"},
    {"canvas", kS, "My Notes|10|7 8.5", ""},
    {"moodle", kS, "Quiz\\|10|7 8.5", "title-backslash:lost"},
    {"moodle current", kS, "Quiz\\|10|7 8.5", "title-backslash:refused"},
    {"moodle", kS, "Qu\\iz|10|7 8.5", ""},
    {"sakai", kS, "Qu\\iz|10|7 8.5", "title-backslash:changed"},
    {"sakai", kS, "Quiz [1|10|7 8.5", "title-bracket:refused"},
    {"sakai", kS, "* Quiz|10|7 8.5", "title-asterisk:refused"},
    {"sakai", kS, "#Quiz|10|7 8.5", "title-hash:lost"},
    {"sakai", kS, "*Quiz]|10|7 8.5;Quiz #2|10|7 8.5;Quiz * 3|10|7 8.5", ""},
    {"moodle dialog", kS, "123456789012345678901234567890|10|7 8.5", "dialog-title-length:refused"},
    {"moodle", kS, "123456789012345678901234567890|10|7 8.5", ""},
    {"moodle dialog", kS, "1234567890123456789012345678901|10|7 8.5", ""},
    {"moodle dialog", kS, "12345678901234567890123456789012|10|7 8.5", "dialog-title-cut:changed"},
    {"d2l dialog", kS, "1234567890123456789012345678901A|10|7 8.5;1234567890123456789012345678901B|10|7 8.5",
     "dialog-title-equal:wrong dialog-title-cut:changed title-equal:note"},

    // Scores and points.
    {"canvas", kS, "Quiz 1|10|11 8.5", "score-above-points:note"},
    {"moodle", kS, "Quiz 1|10|10.5 8.5", "score-above-points:changed"},
    {"d2l filled", kS, "Quiz 1|10|11 8.5", "score-above-points:changed"},
    {"moodle", kS, "Quiz 1|10|10.0000000001 8.5", ""},
    {"moodle", kS, "Quiz 1|0|1 2", ""},
    {"schoology", kS, "Quiz 1|0|1 2", "score-above-points:note"},
    {"moodle", kS, "Quiz 1|200|101 8.5", "score-above-100:refused"},
    {"moodle filled", kS, "Quiz 1|200|101 8.5", "score-above-100:refused"},
    {"moodle", kS, "Quiz 1|200|100 8.5", ""},
    {"canvas", kS, "Quiz 1|200|101 8.5", ""},
    {"moodle", kS, "Quiz 1|10|-1 8.5", "score-negative:changed"},
    {"sakai filled", kS, "Quiz 1|10|-1 8.5", "score-negative:refused"},
    {"moodle", kS, "Quiz 1|10|-0 8.5", ""},
    {"canvas", kS, "Quiz 1|10|-1 8.5", ""},
    {"sakai", kS, "Quiz 1|10|7.125 8.5", "score-form:refused"},
    {"sakai", kS, "Quiz 1|10|7.12 0.1", ""},
    {"sakai", kS, "Quiz 1|2000000|1000000 8.5", "score-form:refused"},
    {"sakai current", kS, "Quiz 1|2000000|1000000 8.5", ""},
    {"sakai current", kS, "Quiz 1|10|12345678901 8.5", "score-form:refused score-above-points:note"},
    {"sakai current", kS, "Quiz 1|10|7.125 8.5", "score-rounded:changed"},
    {"sakai filled", kS, "Quiz 1|10|-0.001 8.5", "score-rounded:changed"},
    {"sakai current", kS, "Quiz 1|10|7.12 8.50000000000001", ""},
    {"canvas", kS, "Quiz 1|10|7.125 8.5", ""},
    {"sakai", kS, "Quiz 1|10|nan 8.5", "score-no-number:refused"},
    {"moodle", kS, "Quiz 1|10|inf 8.5", "score-no-number:refused"},
    {"moodle current", kS, "Quiz 1|10|inf 8.5", "score-no-number:lost"},
    {"canvas", kS, "Quiz 1|10|inf 8.5", "score-no-number:lost"},
    {"canvas", kS, kSomeResult, "result-missing:note"},
    {"sakai current", kS, kNoResult, "result-missing:note"},
    {"canvas filled", kS, kSomeResult, ""},
    {"schoology", kS, kSomeResult, ""},
    {"angel", kS, "Quiz 1|10|7 8 9", "results-off-roster:note"},
    {"sakai", kS, "Quiz 1|0|0 0", "points-zero:lost"},
    {"sakai filled", kS, "Quiz 1|0|0 0", ""},
};
// clang-format on

bool _IsClean(const Row& row) {
  return std::string(row.students) == kS && std::string(row.assignments) == kA;
}

Findings _Found(const char* how, const char* students, const char* assignments) {
  const ClassFile file = _Class(students, assignments);
  return CheckExport(_Subject(how, file));
}

TEST(Findings, EachConditionAndItsNeighbour) {
  for (const Row& row : kRows) {
    const Findings always = _Found(row.how, kS, kA);
    Findings found = _Found(row.how, row.students, row.assignments);
    if (!_IsClean(row)) {
      std::erase_if(found, [&](const Finding& finding) {
        return std::ranges::find(always, std::string(finding.code), &Finding::code) != always.end();
      });
    }
    EXPECT_EQ(_Text(found), row.expected) << row.how << ": " << row.students << " / " << row.assignments;
  }
}

// Every finding of the table has whole sentences in both languages, and no sentence is nobody's.
TEST(Findings, Sentences) {
  std::set<const FindingSentences*> used;
  for (const Row& row : kRows) {
    const ClassFile file = _Class(row.students, row.assignments);
    const ExportSubject subject = _Subject(row.how, file);
    for (const Finding& finding : CheckExport(subject)) {
      used.insert(FindSentences(finding, SystemOf(*subject.format).key));
      const FindingText english = DescribeFinding(finding, subject, TextLanguage::kEnglish);
      const FindingText spanish = DescribeFinding(finding, subject, TextLanguage::kSpanish);
      EXPECT_NE(english.what, spanish.what);
      EXPECT_EQ(english.advice.empty(), spanish.advice.empty()) << finding.code;
      for (const std::string& text : {english.what, english.advice, spanish.what, spanish.advice}) {
        EXPECT_EQ(text.find_first_of("{}<>|"), std::string::npos) << text;
        EXPECT_EQ(text.find("  "), std::string::npos) << text;
        EXPECT_TRUE(text.empty() || text.ends_with('.')) << text;
      }
    }
  }
  for (const FindingSentences& sentences : CheckSentences()) {
    EXPECT_TRUE(used.contains(&sentences))
        << sentences.code << (sentences.consequence ? ConsequenceKey(*sentences.consequence) : "");
  }
}

TEST(Findings, AreToldWithTheirPlaces) {
  const ClassFile file = _Class("Zoë|Lee|a1;|Ray|;||;Łu|Ek|d4", "Quiz 1|10|11 7 8 9.125");
  const ExportSubject subject = _Subject("sakai", file);
  std::string told;
  for (const Finding& finding : CheckExport(subject)) {
    if (finding.places.empty()) continue;
    told += std::string(finding.code) + ": " +
            DescribeFinding(finding, subject, TextLanguage::kEnglish).what.substr(0, 27);
    for (const FindingPlace& place : finding.places) told += " / " + DescribePlace(place, subject);
    told += '\n';
  }
  EXPECT_EQ(told,
            "score-form: One result has more than tw / Łu Ek (d4), Quiz 1: 9.125\n"
            "id-missing: 2 students have no Sakai St / Ray / #3\n"
            "name-replaced: In what the file says of on / Łu Ek (d4): ?u\n"
            "score-above-points: One result is above the poi / Zoë Lee (a1), Quiz 1: 11/10\n");
}

// Trouble only; what the classes are for says why.
TEST(Findings, OfTheSamples) {
  std::string told;
  for (const char* name : {"village-school", "secondary-school", "college-lecture"}) {
    ClassFile file = ReadClassFile(std::string(SAMPLES "/") + name + ".xml");
    for (qz::AssignmentRecord& assignment : file.record.assignments) assignment.selected = true;
    file.record.optionValue = qz::kDefaultReportFields;
    for (const FormatRow& format : FormatTable()) {
      for (const Dialect dialect : {Dialect::kClassic, Dialect::kCurrent}) {
        Findings found =
            CheckExport(MakeExportSubject(format, file.Texts(), format.defaultUserIDField, dialect));
        std::erase_if(found, [](const Finding& finding) { return !IsTrouble(finding.consequence); });
        if (found.empty()) continue;
        told += std::string(name) + " " + format.key + (dialect == Dialect::kCurrent ? " current: " : ": ") +
                _Text(found) + "\n";
      }
    }
  }
  EXPECT_EQ(told,
            "village-school canvas: accents:refused\n"
            "secondary-school webct: name-replaced:changed\n"
            "secondary-school blackboard6: name-replaced:changed\n"
            "secondary-school angel: name-replaced:changed\n"
            "secondary-school detailed: name-replaced:changed\n"
            "secondary-school blackboard8: name-replaced:changed\n"
            "secondary-school blackboard91: name-replaced:changed\n"
            "secondary-school canvas: accents:refused name-replaced:lost name-quote:lost\n"
            "college-lecture canvas: accents:refused\n");
}

}  // namespace
