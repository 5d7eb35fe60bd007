// Fills our results into the gradebook that the teacher downloaded.
//
// Nothing is erased, and nothing is written to a student or a column that was not matched. The file for
// upload holds the identifying columns and the filled columns only, and the rows of students with something
// in them.
#ifndef GRADIX_EXPORT_FILL_H
#define GRADIX_EXPORT_FILL_H

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "Common/AtomicFile.h"
#include "Systems/Download.h"
#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"
#include "Systems/GradebookMatch.h"

struct FillChoices : MatchChoices {
  bool onlyEmpty = false;   // scores that are there stay
  bool newColumns = false;  // for the assignments that have none
};

enum class FillKind : uint8_t {
  kFilled,    // there was no score
  kChanged,   // there was another one
  kSame,      // it was there already
  kKept,      // the gradebook's stays: we have none, or only empty cells are filled
  kNoNumber,  // ours is none that can be written; the gradebook's stays
};

// Whether the cell gets another score.
constexpr bool IsChange(FillKind kind) {
  return kind == FillKind::kFilled || kind == FillKind::kChanged;
}

struct FillCell {
  FillKind kind;
  size_t student;       // position in ClassRecord::students
  size_t assignment;    // position in ExportSubject::assignments
  std::string oldText;  // UTF-8, as it stands in the download
  std::string newText;  // as it is written; the old one when it is kept

  // The file has a result of ours there.
  bool IsWritten() const { return IsChange(kind) || kind == FillKind::kSame; }
};

// A column of the file for upload.
struct FillColumn {
  size_t column = GradebookMatch::kNone;      // of the download; kNone: a new one
  size_t assignment = GradebookMatch::kNone;  // position in ExportSubject::assignments; kNone: not filled
};

// What will be done. `subject` and `gradebook` outlive it.
struct FillPlan {
  const ExportSubject* subject = nullptr;
  const Gradebook* gradebook = nullptr;
  GradebookMatch match;
  std::vector<FillColumn> columns;           // of the file, in its order
  std::vector<FillCell> cells;               // by student as in the download, then as the columns
  std::vector<size_t> newColumns;            // positions in ExportSubject::assignments
  std::vector<size_t> unmatchedStudents;     // of ours, with a result
  std::vector<size_t> unmatchedMembers;      // positions in Gradebook::members
  std::vector<size_t> unmatchedAssignments;  // positions in ExportSubject::assignments
  std::vector<size_t> unmatchedColumns;      // items of the gradebook that get nothing
  std::vector<size_t> differentPoints;       // positions in ExportSubject::assignments
  Findings findings;                         // worst first; of what is written

  bool IsNothingMatched() const;    // no result of ours has a place: there is nothing to write
  bool IsSomethingLeftOut() const;  // a result of ours has none, or is none that can be written
};

// The user's titles have to be sound: see FillPlan::match.titleFaults.
FillPlan PlanFill(const ExportSubject& subject, const Gradebook& gradebook, const FillChoices& choices);

// Writes the file for upload, in the encoding and style of the download.
FileOutcome WriteFill(const FillPlan& plan, const std::string& path);
FileOutcome WriteFill(const FillPlan& plan, std::FILE* stream);

#endif  // GRADIX_EXPORT_FILL_H
