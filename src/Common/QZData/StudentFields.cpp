#include "Common/QZData/StudentFields.h"

#include <array>

namespace qz {

namespace {

constexpr auto kIdentifierFields = [] {
  std::array<const StudentField*, kUserIDCustom3 + 1> byNumber{};
  byNumber.fill(FindStudentField(std::string_view("alias")));
  for (const StudentField& field : kStudentFields) {
    if (field.CanIdentify()) byNumber[static_cast<size_t>(field.userIDField)] = &field;
  }
  return byNumber;
}();

}  // namespace

const StudentField& FindStudentField(UserIDField field) {
  const auto number = static_cast<uint32_t>(field);
  return *kIdentifierFields[number < kIdentifierFields.size() ? number : 0];
}

}  // namespace qz
