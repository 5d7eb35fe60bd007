#include "CommandLine/Batch/BatchJson.h"

#include "CommandLine/Json.h"
#include "CommandLine/OutputFile.h"

namespace {

constexpr int kBatchVersion = 1;

}  // namespace

BatchJson::BatchJson(const ExportChoices& choices) {
  const Json head = {{"version", kBatchVersion},
                     {"format", choices.format->key},
                     {"dialect", choices.dialect == Dialect::kCurrent ? "current" : "classic"}};
  std::string text = head.Line();
  text.back() = ',';
  WriteStandardOutput(text + "\n\"classes\": [");
}

void BatchJson::Add(const std::string& classObject) {
  if (classObject.empty()) return;
  WriteStandardOutput((m_isEmpty ? "\n" : ",\n") + classObject);
  m_isEmpty = false;
}

void BatchJson::Finish(const BatchSummary& summary) {
  const Json json = {{"classes", summary.Total()},
                     {"written", summary.Written()},
                     {"warned", summary.Count(BatchStatus::kWarned)},
                     {"refused", summary.Count(BatchStatus::kRefused)},
                     {"unreadable", summary.Count(BatchStatus::kUnreadable)},
                     {"notWritten", summary.Count(BatchStatus::kNotWritten)}};
  WriteStandardOutput("],\n\"summary\": " + json.Line() +
                      ",\n\"exitStatus\": " + std::to_string(summary.Status()) + "}\n");
}
