#include "Filters/GX_StdCsv/ReportColumns.h"

namespace {

using Student = qz::StudentRecord;

template <std::string Student::*Field>
const std::string& _Value(const Student& student) {
  return student.*Field;
}

template <size_t Index>
const std::string& _Custom(const Student& student) {
  return student.custom[Index];
}

// The order of the columns is not that of the bits, which other parts of the suite share.
constexpr ReportColumn kColumns[] = {
    {0x0002, "first-name", "First name", -1, _Value<&Student::firstName>},
    {0x0001, "last-name", "Last name", -1, _Value<&Student::lastName>},
    {0x0004, "student-id", "Student ID", -1, _Value<&Student::studentID>},
    {0x0008, "password", "Password", -1, _Value<&Student::password>},
    {0x0010, "alias", "Student alias", -1, _Value<&Student::alias>},
    {0x4000, "pad-id", "Pad ID", -1, _Value<&Student::padID>},
    {0x0020, "gender", "Gender", -1, _Value<&Student::gender>},
    {0x0040, "date-of-birth", "Date of birth", -1, _Value<&Student::dateOfBirth>},
    {0x0080, "grade-level", "Grade level", -1, _Value<&Student::gradeLevel>},
    {0x0100, "sociological", "Sociological/Economic", -1, _Value<&Student::sociological>},
    {0x0200, "race", "Race/Ethnicity", -1, _Value<&Student::race>},
    {0x0400, "other", "Other", -1, _Value<&Student::other>},
    {0x0800, "custom-1", nullptr, 0, _Custom<0>},
    {0x1000, "custom-2", nullptr, 1, _Custom<1>},
    {0x2000, "custom-3", nullptr, 2, _Custom<2>},
};

}  // namespace

std::span<const ReportColumn> ReportColumns() {
  return kColumns;
}
