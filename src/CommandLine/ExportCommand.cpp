#include <cstdio>
#include <string>
#include <string_view>

#include "CommandLine/ChoiceMessages.h"
#include "CommandLine/ClassInput.h"
#include "CommandLine/Commands.h"
#include "CommandLine/Findings/FindingReport.h"
#include "CommandLine/Findings/FindingsJson.h"
#include "CommandLine/Findings/IdentifierMessages.h"
#include "CommandLine/Json.h"
#include "CommandLine/OutputFile.h"
#include "CommandLine/TerminalText.h"
#include "Export/ClassExport.h"
#include "Systems/FindingTexts.h"
#include "Systems/LearningSystem.h"

namespace {

constexpr int kExportVersion = 1;

void _RefuseToOverwrite(const ExportOptions& options) {
  if (!IsSameFile(options.classFiles.front(), options.outputFile)) return;
  throw CommandError(kExitUsage, "the output would overwrite the class file; choose another name with -o");
}

void _WarnOfNoAssignments(const ClassExport& exporting) {
  if (exporting.Choices().format->IsReport() || !exporting.Texts().Record().assignments.empty()) return;
  std::string text = "the class has no assignments; the file will hold the students only";
  const Finding* finding = FindFinding(exporting.Found(), "no-assignments");
  if (finding != nullptr && IsTrouble(finding->consequence)) {
    text += "\n  " + DescribeFinding(*finding, exporting.Subject(), TextLanguage::kEnglish).what;
  }
  Warn(text);
}

// Whether the messages about the class or its identifiers have said it.
bool _IsTold(const Finding& finding, const ClassExport& exporting) {
  const std::string_view code = finding.code;
  if (code == "no-assignments") return exporting.Texts().Record().assignments.empty();
  if (code == "id-missing" || code == "no-students") return true;
  return code == "id-duplicate" && exporting.Identifiers().HasDuplicates();
}

void _WarnOfTrouble(const ClassExport& exporting) {
  for (const Finding& finding : exporting.Found()) {
    if (!IsTrouble(finding.consequence) || _IsTold(finding, exporting)) continue;
    Warn(FindingBlock(finding, exporting.Subject()));
  }
  const std::string hint = CurrentFileHint(exporting.Found(), exporting.Subject());
  if (!hint.empty()) Say(hint);
}

FileOutcome _WriteFile(const std::string& path, ClassExport* exporting) {
  return IsStandardOutput(path) ? exporting->Write(stdout) : exporting->Write(path);
}

void _Write(const ExportOptions& options, ClassExport* exporting) {
  WarnOfTwins(options.choices, exporting->Applied());
  _WarnOfNoAssignments(*exporting);
  RequireIdentifiers(*exporting, options.force);
  _WarnOfTrouble(*exporting);
  if (exporting->Obstacle() == ExportObstacle::kTrouble) {
    throw CommandError(kExitTrouble, "nothing was written, because the check found trouble");
  }
  TellOutcome(options.outputFile, _WriteFile(options.outputFile, exporting));
}

const char* _StatusKey(ExitStatus status, const Findings& findings) {
  if (status == kExitDone) return HasTrouble(findings) ? "warned" : "written";
  return status == kExitOutput ? "not-written" : "refused";
}

std::string _AsJson(const ExportOptions& options, const ClassExport& exporting, ExitStatus status,
                    const std::string& reason) {
  const ExportChoices& choices = options.choices;
  const ExportCounts counts = exporting.Counts();
  const bool hasField = !choices.format->IsReport();
  Json json = {{"version", kExportVersion},
               {"file", PrintableUtf8(options.classFiles.front())},
               {"output", status == kExitDone ? Json(PrintableUtf8(options.outputFile)) : Json()},
               {"className", exporting.File().name},
               {"format", choices.format->key},
               {"system", SystemOf(*choices.format).key},
               {"dialect", choices.dialect == Dialect::kCurrent ? "current" : "classic"},
               {"field", hasField ? Json(qz::FindStudentField(choices.identifier).key) : Json()},
               {"status", _StatusKey(status, exporting.Found())},
               {"exitStatus", static_cast<int>(status)},
               {"reason", reason},
               {"students", counts.students},
               {"assignments", counts.assignments},
               {"scores", counts.scores}};
  json.Set("findings", FindingsJson(exporting.Found(), exporting.Subject()));
  json.Set("counts", ConsequenceCountsJson(exporting.Found()));
  return json.Text();
}

// The same, and its outcome as data.
ExitStatus _WriteAndTell(const ExportOptions& options, ClassExport* exporting) {
  ExitStatus status = kExitDone;
  std::string reason;
  try {
    _Write(options, exporting);
  } catch (const CommandError& error) {
    status = error.Status();
    reason = error.what();
    Say(reason);
  }
  WriteStandardOutput(_AsJson(options, *exporting, status, reason));
  return status;
}

}  // namespace

ExitStatus RunExport(const ExportOptions& options) {
  _RefuseToOverwrite(options);
  if (options.json && IsStandardOutput(options.outputFile))
    throw CommandError(kExitUsage, "--json needs --output-dir, or the name of a file with -o");
  ClassExport exporting(ReadClassInput(options.classFiles.front()), options.choices,
                        {options.force, options.strict});
  if (exporting.Obstacle() == ExportObstacle::kChoices) {
    throw CommandError(kExitUsage, ChoiceFaultText(exporting.Applied(), exporting.Texts()));
  }
  if (options.json) return _WriteAndTell(options, &exporting);
  _Write(options, &exporting);
  return kExitDone;
}
