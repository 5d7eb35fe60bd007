#include "CommandLine/UserIDFields.h"

#include <algorithm>

namespace {

// Both give a reference to a field of the student, so they mean the same field when it is the same text.
const ReportColumn* _FindColumn(qz::UserIDField field) {
  const qz::StudentRecord student;
  const auto columns = ReportColumns();
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const ReportColumn& column) {
    return &column.value(student) == &student.GetUserID(field);
  });
  return &*found;
}

std::vector<NamedUserIDField> _MakeFields() {
  std::vector<NamedUserIDField> fields;
  for (int32_t number = qz::kUserIDFirstName; number <= qz::kUserIDCustom3; ++number) {
    const auto field = static_cast<qz::UserIDField>(number);
    fields.push_back({field, _FindColumn(field)});
  }
  return fields;
}

}  // namespace

const std::vector<NamedUserIDField>& UserIDFields() {
  static const std::vector<NamedUserIDField> fields = _MakeFields();
  return fields;
}

const ReportColumn& ColumnOf(qz::UserIDField field) {
  return *UserIDFields().at(static_cast<size_t>(field - qz::kUserIDFirstName)).column;
}

std::optional<qz::UserIDField> FindUserIDField(std::string_view key) {
  for (const NamedUserIDField& row : UserIDFields()) {
    if (row.column->key == key) return row.field;
  }
  return std::nullopt;
}
