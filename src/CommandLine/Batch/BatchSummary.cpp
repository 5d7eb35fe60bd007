#include "CommandLine/Batch/BatchSummary.h"

#include "CommandLine/TerminalText.h"

namespace {

constexpr size_t kMostLines = 20;

}  // namespace

void BatchSummary::Add(const std::string& classPath, const BatchResult& result) {
  m_worst = Worst(m_worst, result.exitStatus);
  Group& group = m_groups[static_cast<size_t>(result.status)];
  ++group.count;
  if (result.status == BatchStatus::kWritten || group.lines.size() == kMostLines) return;
  group.lines.push_back("\n  " + PrintableUtf8(classPath) + ": " + result.reason);
}

size_t BatchSummary::Total() const {
  size_t total = 0;
  for (const Group& group : m_groups) total += group.count;
  return total;
}

std::string BatchSummary::AsText(const std::string& folder) const {
  std::string text = std::to_string(Written()) + " of " + std::to_string(Total()) + " classes written to " +
                     PrintableUtf8(folder);
  for (size_t i = 0; i < m_groups.size(); ++i) {
    const Group& group = m_groups[i];
    if (group.lines.empty()) continue;
    text.append("\n").append(kBatchStatuses[i].title).append(": ").append(std::to_string(group.count));
    for (const std::string& line : group.lines) text += line;
    if (group.count > group.lines.size()) {
      text += "\n  and " + std::to_string(group.count - group.lines.size()) + " more; --json names all";
    }
  }
  return text;
}
