#include "CommandLine/Findings/IdentifierMessages.h"

#include <string>

#include "CommandLine/CommandError.h"
#include "CommandLine/Findings/FindingReport.h"
#include "CommandLine/TerminalText.h"
#include "Common/QZData/StudentFields.h"
#include "Systems/FindingTexts.h"

namespace {

// What the messages speak of.
struct Identifier {
  const ClassExport& exporting;
  const IdentifierCheck& check;
  std::string name;        // as the learning system calls it
  std::string fieldTitle;  // the student field that it is taken from
};

std::string _StudentText(const qz::ClassTexts& texts, size_t student) {
  return PrintableUtf8(texts.StudentName(student)) + " (id " +
         std::to_string(texts.Record().students[student].id) + ")";
}

std::string _StudentTexts(const Identifier& id, const std::vector<size_t>& students) {
  return CutList(students.size(), ", ",
                 [&](size_t i) { return _StudentText(id.exporting.Texts(), students[i]); });
}

// What the learning system will do is the finding's business.
std::string _SomeEmptyText(const Identifier& id) {
  std::string text = "the field " + id.fieldTitle + ", taken as the " + id.name + ", is empty for " +
                     std::to_string(id.check.empty.size()) + " of " + std::to_string(id.check.studentCount) +
                     " students";
  const Finding* finding = FindFinding(id.exporting.Found(), "id-missing");
  FindingText words;
  if (finding != nullptr) words = DescribeFinding(*finding, id.exporting.Subject(), TextLanguage::kEnglish);
  if (!words.what.empty()) text += ". " + PrintableUtf8(words.what);
  text.append("\n  ").append(_StudentTexts(id, id.check.empty));
  if (!words.advice.empty()) text += "\n  What to do: " + PrintableUtf8(words.advice);
  return text;
}

std::string _AllEmptyText(const Identifier& id) {
  if (id.check.studentCount == 0) return "the class has no students, so there are no results to export.";
  return "the field " + id.fieldTitle + ", taken as the " + id.name +
         ", is empty for all students, so no results could be imported. Choose another field with -u:\n  " +
         _StudentTexts(id, id.check.empty);
}

std::string _SharedText(const std::string& identifier) {
  if (identifier.empty()) return "none";
  std::string text = "\"";
  text.append(PrintableUtf8(identifier)).append("\"");
  return text;
}

std::string _GroupText(const Identifier& id, const std::vector<size_t>& group) {
  return _SharedText(id.exporting.Subject().Identifier(group.front())) + ": " + _StudentTexts(id, group);
}

std::string _DuplicatesText(const Identifier& id) {
  const auto& groups = id.check.duplicates;
  return "students have a missing or non-unique " + id.name + ":\n  " +
         CutList(groups.size(), "\n  ", [&](size_t i) { return _GroupText(id, groups[i]); }) +
         "\nCheck that it is taken from the right field (" + id.fieldTitle +
         " now; -u chooses another) and that the student roster is accurate.";
}

void _Refuse(const std::string& text, bool force) {
  if (!force)
    throw CommandError(kExitIdentifiers, text + "\nNothing was exported; --force exports all the same.");
  Warn(text);
}

}  // namespace

void RequireIdentifiers(const ClassExport& exporting, bool force) {
  const ExportChoices& choices = exporting.Choices();
  if (choices.format->IsReport()) return;
  const Identifier id{exporting, exporting.Identifiers(), choices.format->idName,
                      PrintableUtf8(exporting.Texts().FieldTitle(qz::FindStudentField(choices.identifier)))};
  if (id.check.AllEmpty()) return _Refuse(_AllEmptyText(id), force);
  if (id.check.SomeEmpty()) Warn(_SomeEmptyText(id));
  if (id.check.HasDuplicates()) _Refuse(_DuplicatesText(id), force);
}
