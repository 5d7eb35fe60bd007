#include "CommandLine/Batch/BatchClass.h"

#include <exception>
#include <new>
#include <system_error>
#include <utility>
#include <vector>

#include "CommandLine/Findings/FindingsJson.h"
#include "CommandLine/Json.h"
#include "CommandLine/TerminalText.h"
#include "Export/ClassExport.h"
#include "Systems/FindingTexts.h"

namespace {

constexpr size_t kMostShared = 3;

std::string _SystemText(int error) {
  return std::generic_category().message(error);
}

std::string _FaultText(const ClassFault& fault) {
  std::string text;
  if (fault.line > 0) {
    text = "line " + std::to_string(fault.line) + ", column " + std::to_string(fault.column) + ": ";
  }
  if (fault.code == ClassFaultCode::kCannotOpen) text = "cannot be opened: ";
  if (fault.code == ClassFaultCode::kCannotRead) text = "cannot be read: ";
  return text + fault.reason;
}

std::string _ChoiceText(const AppliedChoices& applied) {
  if (applied.fault == ChoiceFault::kNotOneAssignment) {
    return "the detailed report is about one assignment; name it with -a";
  }
  return "there is no assignment with the id " + std::to_string(applied.unknownID);
}

// "Ann Smith, Bob Smith and 3 more"
std::string _NamesText(const qz::ClassTexts& texts, const std::vector<size_t>& students) {
  std::vector<std::string> names;
  for (size_t i = 0; i < students.size() && i < kMostShared; ++i) {
    names.push_back(texts.StudentName(students[i]));
  }
  std::string text = Join(names, ", ");
  if (students.size() > kMostShared)
    text += " and " + std::to_string(students.size() - kMostShared) + " more";
  return text;
}

// What an export of the class alone would say of its identifiers, in short. Empty: nothing.
std::string _IdentifierText(const ClassExport& exporting) {
  const IdentifierCheck& check = exporting.Identifiers();
  if (exporting.Choices().format->IsReport()) return "";
  if (check.studentCount == 0) return "the class has no students";
  const std::string name = exporting.Choices().format->idName;
  if (check.AllEmpty()) return "no " + name + " for any student";
  if (check.HasDuplicates()) {
    const std::vector<size_t>& first = check.duplicates.front();
    const std::string shared = exporting.Subject().Identifier(first.front());
    return (shared.empty() ? "no " + name : "the same " + name + " \"" + shared + "\"") + " for " +
           _NamesText(exporting.Texts(), first);
  }
  return check.SomeEmpty() ? "no " + name + " for " + _NamesText(exporting.Texts(), check.empty) : "";
}

// The worst finding that counts as trouble. Empty: none does.
std::string _TroubleText(const ClassExport& exporting) {
  size_t troubles = 0;
  for (const Finding& finding : exporting.Found()) troubles += IsTrouble(finding.consequence) ? 1 : 0;
  if (troubles == 0) return "";
  std::string text =
      DescribeFinding(exporting.Found().front(), exporting.Subject(), TextLanguage::kEnglish).what;
  if (troubles > 1) text += " And " + std::to_string(troubles - 1) + " more.";
  return text;
}

std::string _WarningText(const ClassExport& exporting, const FileOutcome& outcome) {
  if (outcome.inPlace != InPlace::kNo) return "the file was written in place";
  if (exporting.Texts().Record().assignments.empty()) return "the class has no assignments";
  std::string text = _TroubleText(exporting);
  if (text.empty()) text = _IdentifierText(exporting);
  if (text.empty() && exporting.Choices().format->IsReport() && exporting.Applied().selected > 1) {
    text = "several assignments have this id; the report is about the first of them";
  }
  return text;
}

BatchResult _Written(const ClassExport& exporting, const FileOutcome& outcome) {
  if (outcome.error != 0) {
    const char* end = outcome.incomplete ? "; the file is incomplete" : "";
    return {BatchStatus::kNotWritten, kExitOutput, _SystemText(outcome.error) + end, ""};
  }
  std::string text = _WarningText(exporting, outcome);
  const BatchStatus status = text.empty() ? BatchStatus::kWritten : BatchStatus::kWarned;
  return {status, kExitDone, std::move(text), ""};
}

BatchResult _Export(ClassExport* exporting, const std::string& path) {
  switch (exporting->Obstacle()) {
    case ExportObstacle::kNone: break;
    case ExportObstacle::kClassFile:
      return {BatchStatus::kUnreadable, kExitClassFile, _FaultText(exporting->File().fault), ""};
    case ExportObstacle::kChoices:
      return {BatchStatus::kRefused, kExitUsage, _ChoiceText(exporting->Applied()), ""};
    case ExportObstacle::kIdentifiers:
      return {BatchStatus::kRefused, kExitIdentifiers, _IdentifierText(*exporting), ""};
    case ExportObstacle::kTrouble: return {BatchStatus::kRefused, kExitTrouble, _TroubleText(*exporting), ""};
  }
  return _Written(*exporting, exporting->Write(path));
}

bool _IsWritten(BatchStatus status) {
  return status == BatchStatus::kWritten || status == BatchStatus::kWarned;
}

// `exporting` is null when nothing is known of the class.
std::string _AsJson(const BatchItem& item, const BatchResult& result, const ClassExport* exporting) {
  const bool isRead = exporting != nullptr && exporting->File().IsRead();
  const bool isChecked = isRead && exporting->Obstacle() != ExportObstacle::kChoices;
  const ExportCounts counts = isChecked ? exporting->Counts() : ExportCounts{};
  const Json json = {
      {"file", item.source.path},
      {"output", _IsWritten(result.status) ? Json(item.outputPath) : Json()},
      {"status", FindBatchStatus(result.status).key},
      {"exitStatus", static_cast<int>(result.exitStatus)},
      {"reason", result.reason},
      {"className", isRead ? exporting->File().name : ""},
      {"students", counts.students},
      {"assignments", counts.assignments},
      {"scores", counts.scores},
      {"findings", isChecked ? FindingsJson(exporting->Found(), exporting->Subject()) : Json::List()}};
  return json.Line();
}

BatchResult _ExportClass(const BatchItem& item, const ExportOptions& options) {
  if (item.source.folderError != 0) {
    const std::string reason = "the folder cannot be read: " + _SystemText(item.source.folderError);
    return {BatchStatus::kUnreadable, kExitClassFile, reason, ""};
  }
  ClassExport exporting(ReadClassFile(item.source.path), options.choices, {options.force, options.strict});
  BatchResult result = _Export(&exporting, item.outputPath);
  result.reason = PrintableUtf8(result.reason);
  if (options.json) result.json = _AsJson(item, result, &exporting);
  return result;
}

BatchResult _ExportSafely(const BatchItem& item, const ExportOptions& options) {
  try {
    return _ExportClass(item, options);
  } catch (const std::bad_alloc&) {
    return {BatchStatus::kNotWritten, kExitOutput, "out of memory", ""};
  } catch (const std::exception& error) {
    return {BatchStatus::kNotWritten, kExitOutput, error.what(), ""};
  }
}

}  // namespace

BatchResult ExportBatchClass(const BatchItem& item, const ExportOptions& options) {
  try {
    BatchResult result = _ExportSafely(item, options);
    if (options.json && result.json.empty()) result.json = _AsJson(item, result, nullptr);
    return result;
  } catch (const std::exception&) {
    return {};
  }
}
