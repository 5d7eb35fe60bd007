// What is wrong in a class, by the cell of its table where it is shown.
#ifndef GRADIX_PROBLEMMARKS_H
#define GRADIX_PROBLEMMARKS_H

#include <QString>
#include <cstddef>
#include <cstdint>
#include <map>
#include <tuple>

#include "Systems/Finding.h"

namespace host {

// Where a mark stands. A student's name and identifier have a cell each; an assignment's mark stands in its
// heading.
enum class MarkPlace : uint8_t { kName, kIdentifier, kTitle, kPoints };

struct MarkKey {
  MarkPlace place;
  size_t student = FindingPlace::kNone;     // of a heading: none
  size_t assignment = FindingPlace::kNone;  // of a name and an identifier: none

  bool operator<(const MarkKey& other) const {
    return std::tie(place, student, assignment) < std::tie(other.place, other.student, other.assignment);
  }
};

struct ProblemMark {
  Consequence consequence;  // the worst
  QString text;             // what is wrong there, a line for each problem, in the current language
};

using ProblemMarks = std::map<MarkKey, ProblemMark>;

}  // namespace host

#endif  // GRADIX_PROBLEMMARKS_H
