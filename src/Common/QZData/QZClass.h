// The class records: the in-memory form of one class file.
//
// Plain value types: a copy is a deep copy. Texts are 8-bit Mac OS Roman, converted from UTF-8 by the class
// file reader. `GetUserID` and the lookups return references or pointers into the record itself; they are
// valid until the record changes.
#ifndef GRADIX_QZCLASS_H
#define GRADIX_QZCLASS_H

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace qz {

// The student field that holds the learning system's user identifier.
enum UserIDField : int32_t {
  kUserIDFirstName = 1,
  kUserIDLastName = 2,
  kUserIDStudentID = 3,
  kUserIDAlias = 4,  // every value that is not listed means the alias, too
  kUserIDCustom1 = 5,
  kUserIDCustom2 = 6,
  kUserIDCustom3 = 7,
};

// Question-type codes; the class file's abbreviations are their names.
enum QuestionType : int32_t {
  kQuestionTF = 0,
  kQuestionMTF,
  kQuestionMC,
  kQuestionMR,
  kQuestionBI,
  kQuestionYN,
  kQuestionNR,
  kQuestionCO,
  kQuestionMA,
  kQuestionSA,
  kQuestionPR,
  kQuestionES,
  kQuestionCA,
  kQuestionOT,  // other: what an unknown abbreviation becomes
};

struct QuestionRecord {
  int32_t type = kQuestionOT;
  int32_t number = 0;  // position as shown to the student
  int32_t questionID = 0;
  int32_t bankID = 0;  // (questionID, bankID) identifies the question
  int32_t numChoices = 0;
  std::string answer;
  std::string reference;
  std::string learningObjective;
  std::string stateStandard;
  double pointsPossible = 0.0;
};

// One answer to one question.
struct ResponseRecord {
  int32_t questionID = 0;
  int32_t bankID = 0;
  std::string text;
  double pointsEarned = 0.0;
};

// One student's results on one assignment.
struct ResultsRecord {
  int32_t studentID = 0;  // StudentRecord::id
  std::vector<ResponseRecord> responses;

  // The first response to the question, or null.
  ResponseRecord* FindResponseForQuestion(const QuestionRecord& question);
  const ResponseRecord* FindResponseForQuestion(const QuestionRecord& question) const;
  // Sum of the points earned, in list order.
  double GetTotalPoints() const;
};

struct StudentRecord {
  std::string firstName;
  std::string lastName;
  std::string studentID;
  std::string alias;
  std::string password;
  int32_t id = 0;  // joins the student to ResultsRecord::studentID
  std::string padID;
  std::string dateOfBirth;
  std::string gradeLevel;
  std::string gender;
  std::string sociological;
  std::string race;
  std::string other;
  std::array<std::string, 3> custom;

  // The text of the field, unchanged.
  const std::string& GetUserID(UserIDField field) const;
};

struct AssignmentRecord {
  std::string name;
  std::string assignmentID;
  std::string category;
  std::string onlineID;
  std::string date;
  int32_t sortKey = 0;
  int32_t id = 0;
  bool selected = false;  // part of the export
  int32_t pointsPossible = 0;
  std::vector<ResultsRecord> results;
  std::vector<QuestionRecord> questions;

  // The first results record of the student with that id, or null.
  ResultsRecord* FindResultsForStudent(int32_t studentID);
  const ResultsRecord* FindResultsForStudent(int32_t studentID) const;
};

// Orders assignments by their sort key.
struct AssignmentLess {
  bool operator()(const AssignmentRecord& a, const AssignmentRecord& b) const {
    return a.sortKey < b.sortKey;
  }
};

// Index of a switch in ClassRecord::options, the detailed report's settings.
enum ReportOption : uint32_t {
  kReportAnswerKey,
  kReportResponses,
  kReportPointsEarned,
  kReportPointsPossible,
  kReportAsterisks,  // marks a response that earned full points
  kReportOptionCount,
};

// What the detailed report has unless somebody chooses otherwise: a mask of student columns
// (StudentField::reportBit), and the switches.
inline constexpr uint32_t kDefaultReportFields = 0x7;  // first name, last name, student ID
inline constexpr std::array<bool, kReportOptionCount> kDefaultReportOptions = {false, true, false, false,
                                                                               true};

struct ClassRecord {
  std::string exportPath;  // the file that the export writes
  UserIDField userIDField = kUserIDAlias;
  std::vector<StudentRecord> students;        // in file order
  std::vector<AssignmentRecord> assignments;  // sorted by AssignmentLess
  std::array<std::string, 3> customLabels = {"Custom 1", "Custom 2", "Custom 3"};
  int32_t optionValue = 0;  // the detailed report's student columns, a bit mask
  std::array<bool, kReportOptionCount> options = kDefaultReportOptions;
};

}  // namespace qz

#endif  // GRADIX_QZCLASS_H
