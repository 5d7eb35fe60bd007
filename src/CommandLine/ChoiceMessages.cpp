#include "CommandLine/ChoiceMessages.h"

#include "CommandLine/TerminalText.h"

std::string AssignmentList(const qz::ClassTexts& texts) {
  const std::vector<qz::AssignmentRecord>& assignments = texts.Record().assignments;
  if (assignments.empty()) return "The class has no assignments.";
  std::string text = "The assignments of the class are:";
  for (size_t i = 0; i < assignments.size(); ++i) {
    text += "\n  " + std::to_string(assignments[i].id) + "  " + PrintableUtf8(texts.AssignmentName(i));
  }
  return text;
}

std::string ChoiceFaultText(const AppliedChoices& applied, const qz::ClassTexts& texts) {
  const std::string fault =
      applied.fault == ChoiceFault::kNotOneAssignment
          ? "the detailed report is about one assignment; name it with -a. "
          : "there is no assignment with the id " + std::to_string(applied.unknownID) + ". ";
  return fault + AssignmentList(texts);
}

void WarnOfTwins(const ExportChoices& choices, const AppliedChoices& applied) {
  if (!choices.format->IsReport() || applied.selected < 2) return;
  Warn("several assignments have this id; the report is about the first of them");
}
