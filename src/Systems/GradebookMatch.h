// Who is who: the students and assignments of a class in a downloaded gradebook.
#ifndef GRADIX_SYSTEMS_GRADEBOOKMATCH_H
#define GRADIX_SYSTEMS_GRADEBOOKMATCH_H

#include <cstddef>
#include <limits>
#include <vector>

#include "Systems/Download.h"
#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

struct GradebookMatch {
  static constexpr size_t kNone = std::numeric_limits<size_t>::max();

  size_t identifierColumn = kNone;  // whose values the identifier field has; kNone: no column has any of them
  std::vector<size_t> memberOf;     // by position in ClassRecord::students: in Gradebook::members, or kNone
  std::vector<size_t> studentOf;    // the other way round
  std::vector<size_t> columnOf;     // by position in ExportSubject::assignments: column, or kNone
  std::vector<size_t>
      assignmentOf;  // by column of the table: position in ExportSubject::assignments, or kNone
  std::vector<size_t> matchedByCase;  // students whose identifier differs in letter case
  std::vector<size_t> matchedByName;  // students
  std::vector<size_t>
      ambiguousTitles;  // positions in ExportSubject::assignments: several columns have the title
};

// What only the download can tell, for an upload of the subject's own file (Dialect::kClassic or kCurrent)
// into this course, or for the filled gradebook (kFilled). Each system's part is in its file.
Findings CheckAgainstGradebook(const ExportSubject& subject, const Gradebook& gradebook,
                               const GradebookMatch& match);

#endif  // GRADIX_SYSTEMS_GRADEBOOKMATCH_H
