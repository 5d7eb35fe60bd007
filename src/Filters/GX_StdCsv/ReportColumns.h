// The student information columns of the detailed report.
#ifndef GRADIX_REPORTCOLUMNS_H
#define GRADIX_REPORTCOLUMNS_H

#include <cstdint>
#include <span>
#include <string>

#include "Common/QZData/QZClass.h"

struct ReportColumn {
  uint32_t mask;      // its bit in ClassRecord::optionValue
  const char* key;    // by which the command line names it
  const char* title;  // null: the class's custom label
  int customLabel;    // which label, 0-based
  const std::string& (*value)(const qz::StudentRecord& student);

  std::string Title(const qz::ClassRecord& record) const {
    return title != nullptr ? title : record.customLabels[static_cast<size_t>(customLabel)];
  }
};

// In the order in which the report writes them.
std::span<const ReportColumn> ReportColumns();

#endif  // GRADIX_REPORTCOLUMNS_H
