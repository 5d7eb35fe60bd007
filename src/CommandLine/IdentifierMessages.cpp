#include "CommandLine/IdentifierMessages.h"

#include <string>

#include "CommandLine/CommandError.h"
#include "CommandLine/TerminalText.h"
#include "Common/QZData/StudentFields.h"
#include "Export/IdentifierCheck.h"

namespace {

// What the messages speak of.
struct Identifier {
  const qz::ClassRecord& record;
  qz::UserIDField field;
  std::string name;        // as the learning system calls it
  std::string fieldTitle;  // the student field that it is taken from
};

std::string _StudentText(const qz::StudentRecord& student) {
  return PrintableRoman(student.firstName + " " + student.lastName) + " (id " + std::to_string(student.id) +
         ")";
}

std::string _StudentTexts(const qz::ClassRecord& record, const std::vector<size_t>& students) {
  std::vector<std::string> texts;
  texts.reserve(students.size());
  for (const size_t index : students) texts.push_back(_StudentText(record.students[index]));
  return Join(texts, ", ");
}

std::string _SomeEmptyText(const Identifier& id, const IdentifierCheck& check) {
  return "the field " + id.fieldTitle + ", taken as the " + id.name + ", is empty for " +
         std::to_string(check.empty.size()) + " of " + std::to_string(check.studentCount) +
         " students. Without a valid " + id.name + " they will not be imported:\n  " +
         _StudentTexts(id.record, check.empty);
}

std::string _AllEmptyText(const Identifier& id, const IdentifierCheck& check) {
  if (check.studentCount == 0) return "the class has no students, so there are no results to export.";
  return "the field " + id.fieldTitle + ", taken as the " + id.name +
         ", is empty for all students, so no results could be imported. Choose another field with -u:\n  " +
         _StudentTexts(id.record, check.empty);
}

std::string _SharedText(const std::string& identifier) {
  if (identifier.empty()) return "none";
  std::string text = "\"";
  text.append(PrintableRoman(identifier)).append("\"");
  return text;
}

std::string _DuplicatesText(const Identifier& id, const IdentifierCheck& check) {
  std::string text = "students have a missing or non-unique " + id.name + ":";
  for (const std::vector<size_t>& group : check.duplicates) {
    const std::string& shared = id.record.students[group.front()].GetUserID(id.field);
    text += "\n  " + _SharedText(shared) + ": " + _StudentTexts(id.record, group);
  }
  return text + "\nCheck that it is taken from the right field (" + id.fieldTitle +
         " now; -u chooses another) and that the student roster is accurate.";
}

void _Refuse(const std::string& text, bool force) {
  if (!force)
    throw CommandError(kExitIdentifiers, text + "\nNothing was exported; --force exports all the same.");
  Warn(text);
}

}  // namespace

void RequireIdentifiers(const qz::ClassRecord& record, const FormatRow& format, qz::UserIDField field,
                        bool force) {
  const IdentifierCheck check = CheckIdentifiers(record, field);
  const Identifier id{record, field, format.idName,
                      PrintableRoman(qz::FindStudentField(field).Title(record))};
  if (check.AllEmpty()) return _Refuse(_AllEmptyText(id, check), force);
  if (check.SomeEmpty()) Warn(_SomeEmptyText(id, check));
  if (check.HasDuplicates()) _Refuse(_DuplicatesText(id, check), force);
}
