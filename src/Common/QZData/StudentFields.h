// The fields of a student that are chosen by name: as the identifier of an export, as a column of the
// detailed report. Whatever lists student fields iterates this table.
#ifndef GRADIX_STUDENTFIELDS_H
#define GRADIX_STUDENTFIELDS_H

#include <cstdint>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

#include "Common/QZData/QZClass.h"

namespace qz {

struct StudentField {
  const char* key;                          // by which the command line names it
  const char* title = nullptr;              // English; null: the class's custom label
  const char* spanishTitle = nullptr;       // as an identifier; null: none
  int spanishTitleID = 0;                   // string id, as a column of the report; 0: none
  uint32_t reportBit = 0;                   // of ClassRecord::optionValue
  UserIDField userIDField = UserIDField{};  // 0: cannot serve as the identifier
  std::string StudentRecord::*text = nullptr;
  bool isSecret = false;  // whoever may see the class need not see it
  size_t custom = 0;      // 0-based number of the custom field and its label; only without `text`

  constexpr bool CanIdentify() const { return userIDField != UserIDField{}; }

  const std::string& Value(const StudentRecord& student) const {
    return text != nullptr ? student.*text : student.custom[custom];
  }
  std::string& Value(StudentRecord& student) const {
    return text != nullptr ? student.*text : student.custom[custom];
  }
  std::string Title(const ClassRecord& record) const {
    return title != nullptr ? title : record.customLabels[custom];
  }
};

// In the order in which the report writes its columns, which is not that of their bits. Those that can
// identify a student are in the order of their numbers.
// clang-format off
inline constexpr StudentField kStudentFields[] = {
    {.key = "first-name", .title = "First name", .spanishTitle = "Nombre",
     .reportBit = 0x0002, .userIDField = kUserIDFirstName, .text = &StudentRecord::firstName},
    {.key = "last-name", .title = "Last name", .spanishTitle = "Apellido",
     .reportBit = 0x0001, .userIDField = kUserIDLastName, .text = &StudentRecord::lastName},
    {.key = "student-id", .title = "Student ID", .spanishTitle = "Id. de estudiante",
     .reportBit = 0x0004, .userIDField = kUserIDStudentID, .text = &StudentRecord::studentID},
    {.key = "password", .title = "Password", .spanishTitleID = 41916,
     .reportBit = 0x0008, .text = &StudentRecord::password, .isSecret = true},
    {.key = "alias", .title = "Student alias", .spanishTitle = "Alias del estudiante",
     .spanishTitleID = 41914,
     .reportBit = 0x0010, .userIDField = kUserIDAlias, .text = &StudentRecord::alias},
    {.key = "pad-id", .title = "Pad ID", .spanishTitleID = 41918,
     .reportBit = 0x4000, .text = &StudentRecord::padID},
    {.key = "gender", .title = "Gender", .spanishTitleID = 41920,
     .reportBit = 0x0020, .text = &StudentRecord::gender},
    {.key = "date-of-birth", .title = "Date of birth", .spanishTitleID = 41923,
     .reportBit = 0x0040, .text = &StudentRecord::dateOfBirth},
    {.key = "grade-level", .title = "Grade level", .spanishTitleID = 41924,
     .reportBit = 0x0080, .text = &StudentRecord::gradeLevel},
    {.key = "sociological", .title = "Sociological/Economic", .spanishTitleID = 41925,
     .reportBit = 0x0100, .text = &StudentRecord::sociological},
    {.key = "race", .title = "Race/Ethnicity", .spanishTitleID = 41932,
     .reportBit = 0x0200, .text = &StudentRecord::race},
    {.key = "other", .title = "Other", .spanishTitleID = 41939,
     .reportBit = 0x0400, .text = &StudentRecord::other},
    {.key = "custom-1", .reportBit = 0x0800, .userIDField = kUserIDCustom1, .custom = 0},
    {.key = "custom-2", .reportBit = 0x1000, .userIDField = kUserIDCustom2, .custom = 1},
    {.key = "custom-3", .reportBit = 0x2000, .userIDField = kUserIDCustom3, .custom = 2},
};
// clang-format on

// The field that serves as the identifier; the alias for a number that is no field's.
const StudentField& FindStudentField(UserIDField field);

// The field of that key, or null.
constexpr const StudentField* FindStudentField(std::string_view key) {
  for (const StudentField& field : kStudentFields) {
    if (field.key == key) return &field;
  }
  return nullptr;
}

}  // namespace qz

#endif  // GRADIX_STUDENTFIELDS_H
