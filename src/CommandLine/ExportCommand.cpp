#include <algorithm>
#include <memory>
#include <string>

#include "CommandLine/ClassInput.h"
#include "CommandLine/CommandError.h"
#include "CommandLine/Commands.h"
#include "CommandLine/IdentifierCheck.h"
#include "CommandLine/OutputFile.h"
#include "CommandLine/TextOut.h"
#include "Filters/GX_StdCsv/Session.h"

namespace {

[[noreturn]] void _Fail(const std::string& text) {
  throw CommandError(kExitUsage, text);
}

void _RefuseToOverwrite(const ExportOptions& options) {
  if (!IsSameFile(options.classFile, options.outputFile)) return;
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

void _RequireAssignment(const qz::ClassRecord& record, int32_t id) {
  const bool known =
      std::any_of(record.assignments.begin(), record.assignments.end(),
                  [id](const qz::AssignmentRecord& assignment) { return assignment.id == id; });
  if (!known)
    _Fail("there is no assignment with the id " + std::to_string(id) + ". " + _AssignmentList(record));
}

void _SelectAssignments(qz::ClassRecord* record, const std::vector<int32_t>& ids) {
  for (const int32_t id : ids) _RequireAssignment(*record, id);
  for (qz::AssignmentRecord& assignment : record->assignments) {
    assignment.selected = ids.empty() || std::find(ids.begin(), ids.end(), assignment.id) != ids.end();
  }
}

// The report is about the first selected assignment. Ids are not necessarily unique.
void _WarnOfTwins(const qz::ClassRecord& record) {
  const auto selected =
      std::count_if(record.assignments.begin(), record.assignments.end(),
                    [](const qz::AssignmentRecord& assignment) { return assignment.selected; });
  if (selected > 1) Warn("several assignments have this id; the report is about the first of them");
}

void _SetUpReport(const ExportOptions& options, qz::ClassRecord* record) {
  const size_t count =
      options.assignmentIDs.empty() ? record->assignments.size() : options.assignmentIDs.size();
  if (count != 1)
    _Fail("the detailed report is about one assignment; name it with -a. " + _AssignmentList(*record));
  _WarnOfTwins(*record);
  const ReportOptions& report = options.report;
  record->optionValue = static_cast<int32_t>(report.fieldMask);
  record->options[qz::kReportAnswerKey] = report.answerKey;
  record->options[qz::kReportResponses] = report.responses;
  record->options[qz::kReportPointsEarned] = report.pointsEarned;
  record->options[qz::kReportPointsPossible] = report.pointsPossible;
  record->options[qz::kReportAsterisks] = report.asterisks;
}

void _SetUpGradebook(const ExportOptions& options, Session* session) {
  qz::ClassRecord* record = session->GetClass();
  if (record->assignments.empty()) Warn("the class has no assignments; the file will hold the students only");
  CheckIdentifiers(*record, *options.format, options.userIDField, options.force);
  record->userIDField = options.userIDField;
  session->m_bUseQuotes = options.useQuotes;
}

void _SetUp(const ExportOptions& options, Session* session) {
  _SelectAssignments(session->GetClass(), options.assignmentIDs);
  if (options.format->index == kDetailedResultsFormat) {
    _SetUpReport(options, session->GetClass());
  } else {
    _SetUpGradebook(options, session);
  }
}

std::unique_ptr<Session> _MakeSession(const FormatRow& format) {
  QZEXPORTBEGIN begin{};
  begin.formatIndex = format.index;
  return format.make(&begin);
}

}  // namespace

void RunExport(const ExportOptions& options) {
  _RefuseToOverwrite(options);
  const std::unique_ptr<Session> session = _MakeSession(*options.format);
  *session->GetClass() = ReadClassInput(options.classFile).record;
  _SetUp(options, session.get());
  WriteOutput(options.outputFile, [&session](std::FILE* stream) {
    session->ExportTo(stream);
    return session->WriteError();
  });
}
