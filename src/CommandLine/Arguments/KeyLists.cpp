#include "CommandLine/Arguments/KeyLists.h"

namespace {

constexpr size_t kListWidth = 77;

}  // namespace

Keys FormatKeys() {
  return KeysOf(FormatTable(), [](const FormatRow&) { return true; });
}

Keys FormatAliases() {
  Keys aliases;
  for (const FormatRow& row : FormatTable()) {
    if (row.alias != nullptr) aliases.emplace_back(row.alias);
  }
  return aliases;
}

Keys IdentifierKeys() {
  return KeysOf(qz::kStudentFields, [](const qz::StudentField& row) { return row.CanIdentify(); });
}

Keys ReportFieldKeys() {
  return KeysOf(qz::kStudentFields, [](const qz::StudentField&) { return true; });
}

std::string Listed(const Keys& keys) {
  return Join(keys, ", ");
}

std::string IndentedList(const Keys& keys) {
  return "  " + Join(WrapText(Listed(keys), kListWidth), "\n  ") + "\n";
}
