// Which assignments of a class an export is about.
#ifndef GRADIX_EXPORT_ASSIGNMENTSELECTION_H
#define GRADIX_EXPORT_ASSIGNMENTSELECTION_H

#include <cstddef>

#include "Common/QZData/QZClass.h"

// Selects the assignments that are `wanted(row, assignment)`, rows counted from 0, and no others. Returns how
// many these are.
template <typename Wanted>
size_t SelectAssignments(qz::ClassRecord* record, Wanted wanted) {
  size_t row = 0;
  size_t selected = 0;
  for (qz::AssignmentRecord& assignment : record->assignments) {
    assignment.selected = wanted(row, assignment);
    if (assignment.selected) ++selected;
    ++row;
  }
  return selected;
}

#endif  // GRADIX_EXPORT_ASSIGNMENTSELECTION_H
