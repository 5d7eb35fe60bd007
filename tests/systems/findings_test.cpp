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

// A class of students, "First|Last|id" each, and assignments, "Title|points|scores" each, between them ";".
// The scores have blanks between them; "_" is none, and what is beyond the students is nobody's.
ClassFile _Class(const std::string& students, const std::string& assignments) {
  std::string xml = "<class><student-list>";
  int id = 0;
  for (const std::string& student : _Split(students, ';')) {
    const auto parts = _Split(student, '|');
    xml += "<student id='" + std::to_string(++id) + "'>" + _Element("first-name", _Part(parts, 0)) +
           _Element("last-name", _Part(parts, 1)) + _Element("student-id", _Part(parts, 2)) + "</student>";
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

constexpr char kStudents[] = "Ann|Lee|a1;Bo|Ray|b2";
constexpr char kAssignments[] = "Quiz 1|10|7 8.5";

struct Row {
  const char* how;
  const char* students;
  const char* assignments;
  const char* expected;  // without what a clean class has, too
};

const Row kRows[] = {
    {"canvas", "Zoë|Lee|a1;Bo|Ray|b2", kAssignments, "accents:refused"},
};

TEST(Findings, EachConditionAndItsNeighbour) {
  for (const Row& row : kRows) {
    const ClassFile clean = _Class(kStudents, kAssignments);
    const Findings always = CheckExport(_Subject(row.how, clean));
    const ClassFile file = _Class(row.students, row.assignments);
    Findings found = CheckExport(_Subject(row.how, file));
    std::erase_if(found, [&](const Finding& finding) {
      return std::ranges::find(always, std::string(finding.code), &Finding::code) != always.end();
    });
    EXPECT_EQ(_Text(found), row.expected) << row.how << ": " << row.students << " / " << row.assignments;
  }
}

}  // namespace
