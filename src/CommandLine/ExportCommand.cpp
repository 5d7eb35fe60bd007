#include <cstdio>
#include <memory>
#include <string>

#include "CommandLine/ClassInput.h"
#include "CommandLine/CommandError.h"
#include "CommandLine/Commands.h"
#include "CommandLine/IdentifierMessages.h"
#include "CommandLine/OutputFile.h"
#include "CommandLine/TerminalText.h"
#include "Export/ExportWriter.h"

namespace {

[[noreturn]] void _Fail(const std::string& text) {
  throw CommandError(kExitUsage, text);
}

void _RefuseToOverwrite(const ExportOptions& options) {
  if (!IsSameFile(options.classFiles.front(), options.outputFile)) return;
  _Fail("the output would overwrite the class file; choose another name with -o");
}

std::string _AssignmentList(const qz::ClassRecord& record) {
  if (record.assignments.empty()) return "The class has no assignments.";
  std::string text = "The assignments of the class are:";
  for (const qz::AssignmentRecord& assignment : record.assignments) {
    text += "\n  " + std::to_string(assignment.id) + "  " + PrintableRoman(assignment.name);
  }
  return text;
}

// The report is about the first selected assignment.
void _WarnOfTwins(const ExportChoices& choices, const AppliedChoices& applied) {
  if (!choices.format->IsReport() || applied.selected < 2) return;
  Warn("several assignments have this id; the report is about the first of them");
}

void _ApplyChoices(const ExportChoices& choices, Session* session) {
  const qz::ClassRecord& record = *session->GetClass();
  const AppliedChoices applied = Apply(choices, session);
  switch (applied.fault) {
    case ChoiceFault::kNone: return _WarnOfTwins(choices, applied);
    case ChoiceFault::kUnknownAssignment:
      _Fail("there is no assignment with the id " + std::to_string(applied.unknownID) + ". " +
            _AssignmentList(record));
    case ChoiceFault::kNotOneAssignment:
      _Fail("the detailed report is about one assignment; name it with -a. " + _AssignmentList(record));
  }
}

void _CheckClass(const ExportOptions& options, const qz::ClassRecord& record) {
  const ExportChoices& choices = options.choices;
  if (choices.format->IsReport()) return;
  if (record.assignments.empty()) Warn("the class has no assignments; the file will hold the students only");
  RequireIdentifiers(record, *choices.format, choices.identifier, options.force);
}

FileOutcome _Write(const std::string& path, Session* session) {
  return IsStandardOutput(path) ? WriteExport(session, stdout) : WriteExport(session, path);
}

}  // namespace

ExitStatus RunExport(const ExportOptions& options) {
  _RefuseToOverwrite(options);
  const std::unique_ptr<Session> session = MakeSession(*options.choices.format);
  *session->GetClass() = ReadClassInput(options.classFiles.front()).record;
  _ApplyChoices(options.choices, session.get());
  _CheckClass(options, *session->GetClass());
  TellOutcome(options.outputFile, _Write(options.outputFile, session.get()));
  return kExitDone;
}
