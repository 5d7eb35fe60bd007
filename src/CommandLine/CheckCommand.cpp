#include <utility>

#include "CommandLine/ChoiceMessages.h"
#include "CommandLine/ClassInput.h"
#include "CommandLine/Commands.h"
#include "CommandLine/Findings/FindingReport.h"
#include "CommandLine/Findings/FindingsJson.h"
#include "CommandLine/GradebookInput.h"
#include "CommandLine/Json.h"
#include "CommandLine/OutputFile.h"
#include "CommandLine/TerminalText.h"
#include "Export/ClassExport.h"
#include "Export/GradebookCheck.h"
#include "Systems/LearningSystem.h"

namespace {

constexpr int kCheckVersion = 1;

enum class CheckStatus : uint8_t { kClean, kTrouble, kRefused, kUnreadable };

struct CheckStatusRow {
  const char* key;  // by which programs know it
  ExitStatus exitStatus;
};
constexpr CheckStatusRow kStatuses[] = {{"clean", kExitDone},
                                        {"trouble", kExitTrouble},
                                        {"refused", kExitUsage},  // the choices do not fit the class
                                        {"unreadable", kExitClassFile}};

const CheckStatusRow& _RowOf(CheckStatus status) {
  return kStatuses[static_cast<size_t>(status)];
}

// What is left of a class that was checked.
struct CheckedClass {
  CheckStatus status = CheckStatus::kClean;
  std::string reason;  // why it could not be checked
  std::string text;    // unless JSON was asked for
};

const char* _DialectKey(Dialect dialect) {
  return dialect == Dialect::kCurrent ? "current" : "classic";
}

// "algebra.xml (Algebra I), for Canvas, classic file"
std::string _Heading(const ClassExport& exporting) {
  const ClassFile& file = exporting.File();
  std::string text = file.path == kStandardStream ? "(standard input)" : PrintableUtf8(file.path);
  if (!file.name.empty()) text += " (" + PrintableUtf8(file.name) + ")";
  const ExportSubject& subject = exporting.Subject();
  if (subject.format->IsReport()) return text + ", " + subject.format->name;
  return text + ", for " + SystemOf(*subject.format).name + ", " + _DialectKey(subject.dialect) + " file";
}

std::string _AsText(const ClassExport& exporting, const Findings& findings) {
  const ExportSubject& subject = exporting.Subject();
  std::string text = _Heading(exporting) + "\n";
  text += findings.empty() ? "Nothing was found.\n" : FindingGroups(findings, subject);
  if (!HasTrouble(findings) && !findings.empty()) text += "Nothing of this is trouble.\n";
  const std::string hint = CurrentFileHint(findings, subject);
  return hint.empty() ? text : text + hint + "\n";
}

// `exporting` is null when the class was not read.
Json _AsJson(const std::string& path, const ExportChoices& choices, const ClassExport* exporting,
             const Findings& findings, const CheckedClass& checked) {
  const bool isChecked = checked.status == CheckStatus::kClean || checked.status == CheckStatus::kTrouble;
  const bool hasField = !choices.format->IsReport();
  Json json = {{"file", PrintableUtf8(path)},
               {"className", exporting != nullptr ? exporting->File().name : ""},
               {"format", choices.format->key},
               {"system", SystemOf(*choices.format).key},
               {"dialect", _DialectKey(choices.dialect)},
               {"field", hasField ? Json(qz::FindStudentField(choices.identifier).key) : Json()},
               {"status", _RowOf(checked.status).key},
               {"exitStatus", static_cast<int>(_RowOf(checked.status).exitStatus)},
               {"reason", checked.reason}};
  json.Set("findings", isChecked ? FindingsJson(findings, exporting->Subject()) : Json::List());
  json.Set("counts", ConsequenceCountsJson(findings));
  return json;
}

Findings _Find(const ClassExport& exporting, const CheckOptions& options) {
  if (options.gradebook.empty()) return exporting.Found();
  return CheckExport(exporting.Subject(), ReadGradebookInput(options.gradebook, options.choices.format));
}

// With JSON the class is added to `classes`.
CheckedClass _CheckRead(const ClassExport& exporting, const CheckOptions& options, Json* classes) {
  CheckedClass checked;
  Findings findings;
  if (exporting.Obstacle() == ExportObstacle::kChoices) {
    checked.status = CheckStatus::kRefused;
    checked.reason = ChoiceFaultText(exporting.Applied(), exporting.Texts());
  } else {
    findings = _Find(exporting, options);
    if (HasTrouble(findings)) checked.status = CheckStatus::kTrouble;
  }
  if (options.json) {
    classes->Add(_AsJson(exporting.File().path, options.choices, &exporting, findings, checked));
  } else if (checked.reason.empty()) {
    WarnOfTwins(options.choices, exporting.Applied());
    checked.text = _AsText(exporting, findings);
  }
  return checked;
}

CheckedClass _Check(const std::string& path, const CheckOptions& options, Json* classes) {
  CheckedClass checked;
  try {
    const ClassExport exporting(ReadClassInput(path), options.choices, {.force = true});
    return _CheckRead(exporting, options, classes);
  } catch (const CommandError& error) {
    if (!options.gradebook.empty()) throw;
    checked.status = CheckStatus::kUnreadable;
    checked.reason = error.what();
  }
  if (options.json) classes->Add(_AsJson(path, options.choices, nullptr, {}, checked));
  return checked;
}

// What became of all classes.
class CheckSummary {
 public:
  void Add(const CheckedClass& checked) {
    ++m_counts[static_cast<size_t>(checked.status)];
    m_worst = Worst(m_worst, _RowOf(checked.status).exitStatus);
  }

  ExitStatus Status() const { return m_worst; }

  std::string AsText() const {
    const size_t unchecked = Count(CheckStatus::kRefused) + Count(CheckStatus::kUnreadable);
    std::string text = std::to_string(Total()) + " classes: " + std::to_string(Count(CheckStatus::kTrouble)) +
                       " with trouble, " + std::to_string(Count(CheckStatus::kClean)) + " without";
    if (unchecked > 0) text += ", " + std::to_string(unchecked) + " not checked";
    return text + ".\n";
  }

  Json AsJson() const {
    Json counts = {{"classes", Total()}};
    for (size_t i = 0; i < std::size(kStatuses); ++i) counts.Set(kStatuses[i].key, m_counts[i]);
    return counts;
  }

 private:
  size_t Count(CheckStatus status) const { return m_counts[static_cast<size_t>(status)]; }
  size_t Total() const {
    size_t total = 0;
    for (const size_t count : m_counts) total += count;
    return total;
  }

  size_t m_counts[std::size(kStatuses)] = {};
  ExitStatus m_worst = kExitDone;
};

ExitStatus _TellJson(const CheckOptions& options) {
  CheckSummary summary;
  Json classes = Json::List();
  for (const std::string& path : options.classFiles) {
    const CheckedClass checked = _Check(path, options, &classes);
    summary.Add(checked);
    if (!checked.reason.empty()) Say(checked.reason);
  }
  const Json json = {{"version", kCheckVersion},
                     {"status", static_cast<int>(summary.Status())},
                     {"counts", summary.AsJson()},
                     {"classes", std::move(classes)}};
  WriteStandardOutput(json.Text());
  return summary.Status();
}

ExitStatus _TellText(const CheckOptions& options) {
  CheckSummary summary;
  for (const std::string& path : options.classFiles) {
    const CheckedClass checked = _Check(path, options, nullptr);
    summary.Add(checked);
    if (!checked.reason.empty()) Say(checked.reason);
    if (!checked.text.empty())
      WriteStandardOutput(checked.text + (options.classFiles.size() > 1 ? "\n" : ""));
  }
  if (options.classFiles.size() > 1) WriteStandardOutput(summary.AsText());
  return summary.Status();
}

}  // namespace

ExitStatus RunCheck(const CheckOptions& options) {
  return options.json ? _TellJson(options) : _TellText(options);
}
