#include "CommandLine/ChoiceMessages.h"

#include "CommandLine/TerminalText.h"

std::string AssignmentList(const qz::ClassRecord& record) {
  if (record.assignments.empty()) return "The class has no assignments.";
  std::string text = "The assignments of the class are:";
  for (const qz::AssignmentRecord& assignment : record.assignments) {
    text += "\n  " + std::to_string(assignment.id) + "  " + PrintableRoman(assignment.name);
  }
  return text;
}

std::string ChoiceFaultText(const AppliedChoices& applied, const qz::ClassRecord& record) {
  const std::string fault =
      applied.fault == ChoiceFault::kNotOneAssignment
          ? "the detailed report is about one assignment; name it with -a. "
          : "there is no assignment with the id " + std::to_string(applied.unknownID) + ". ";
  return fault + AssignmentList(record);
}

void WarnOfTwins(const ExportChoices& choices, const AppliedChoices& applied) {
  if (!choices.format->IsReport() || applied.selected < 2) return;
  Warn("several assignments have this id; the report is about the first of them");
}
