// Who is who: the students and assignments of a class in a downloaded gradebook.
#ifndef GRADIX_SYSTEMS_GRADEBOOKMATCH_H
#define GRADIX_SYSTEMS_GRADEBOOKMATCH_H

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Systems/Download.h"
#include "Systems/ExportSubject.h"

struct MatchChoices {
  std::vector<std::pair<int32_t, std::string>> titles =
      {};                   // of columns, UTF-8, by assignment id: the user's
  bool matchNames = false;  // where identifiers fail, names unique on both sides
  // Positions in ClassRecord::students and Gradebook::members whom the user joined, whatever their
  // identifiers say. Of joins with a side in common the last one holds; one of nobody is left out.
  std::vector<std::pair<size_t, size_t>> members = {};
};

// How a student was found in the course, or why not. Nobody is guessed.
enum class StudentMatch : uint8_t {
  kIdentifier,
  kFoldedIdentifier,  // differs in letter case, which is nothing to the system
  kName,
  kChosen,   // by the user
  kUnknown,  // no member has the identifier
  kNoIdentifier,
  kLetterCase,        // a member's identifier differs in letter case, and so is another one to the system
  kSharedIdentifier,  // by several of our students
  kSeveralMembers,    // have the identifier
  kTakenMember,       // the user joined the one who has it with another student
};

// How an assignment's column was found, or why not.
enum class TitleMatch : uint8_t {
  kExact,
  kFolded,  // differs in letter case or in repeated blanks
  kChosen,  // by the user
  kNoColumn,
  kReadOnly,        // the column is the system's own
  kSharedTitle,     // by several of our assignments
  kSeveralColumns,  // have the title
};

// What is wrong with a title that the user chose; the assignment then has no column.
struct ChosenTitleFault {
  enum class Kind : uint8_t {
    kUnknownAssignment,   // none of the subject's has the id
    kSeveralAssignments,  // have the id, or it is given twice
    kUnknownTitle,
    kSeveralColumns,  // have the title; their whole headings tell them apart
    kReadOnly,
    kTakenColumn,  // chosen for another assignment, too
  };

  Kind kind;
  size_t choice;  // position in MatchChoices::titles
};

struct GradebookMatch {
  static constexpr size_t kNone = std::numeric_limits<size_t>::max();

  size_t identifierColumn = kNone;  // whose values the identifier field has; kNone: no column has any of them
  std::vector<size_t> memberOf;     // by position in ClassRecord::students: in Gradebook::members, or kNone
  std::vector<size_t> studentOf;    // the other way round
  std::vector<StudentMatch> students;  // by position in ClassRecord::students
  std::vector<size_t> likeMember;      // by the same: whose identifier differs in letter case only, or kNone

  std::vector<size_t> columnOf;  // by position in ExportSubject::assignments: column, or kNone
  std::vector<size_t>
      assignmentOf;                // by column of the table: position in ExportSubject::assignments, or kNone
  std::vector<TitleMatch> titles;  // by position in ExportSubject::assignments
  std::vector<ChosenTitleFault> titleFaults;

  bool HasStudents() const;  // anybody is in the course
};

// Linear in the class and the gradebook.
GradebookMatch MatchGradebook(const ExportSubject& subject, const Gradebook& gradebook,
                              const MatchChoices& choices);

// A name or a title without regard to letter case and repeated blanks.
std::string ComparableText(std::string_view text);

// Whether the cell has the score already, in the precision in which the gradebook would write it.
bool IsSameScore(const Gradebook& gradebook, size_t row, size_t column, double score);

// Positions in ExportSubject::assignments whose column is worth other points than ours.
std::vector<size_t> DifferentPoints(const ExportSubject& subject, const Gradebook& gradebook,
                                    const GradebookMatch& match);

#endif  // GRADIX_SYSTEMS_GRADEBOOKMATCH_H
