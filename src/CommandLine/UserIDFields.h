// The student fields that can hold the learning system's user identifier, as the command line names them.
#ifndef GRADIX_USERIDFIELDS_H
#define GRADIX_USERIDFIELDS_H

#include <optional>
#include <string_view>
#include <vector>

#include "Common/QZData/QZClass.h"
#include "Filters/GX_StdCsv/ReportColumns.h"

struct NamedUserIDField {
  qz::UserIDField field;
  const ReportColumn* column;  // the report's column of the same field, which gives it its key and title
};

// In the order of their numbers.
const std::vector<NamedUserIDField>& UserIDFields();

const ReportColumn& ColumnOf(qz::UserIDField field);
std::optional<qz::UserIDField> FindUserIDField(std::string_view key);

#endif  // GRADIX_USERIDFIELDS_H
