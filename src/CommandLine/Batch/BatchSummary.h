// What became of many classes.
#ifndef GRADIX_BATCHSUMMARY_H
#define GRADIX_BATCHSUMMARY_H

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "CommandLine/Batch/BatchClass.h"

class BatchSummary {
 public:
  void Add(const std::string& classPath, const BatchResult& result);

  ExitStatus Status() const { return m_worst; }
  size_t Count(BatchStatus status) const { return GroupOf(status).count; }
  size_t Written() const { return Count(BatchStatus::kWritten) + Count(BatchStatus::kWarned); }
  size_t Total() const;

  // Several lines; the first classes of each kind that a reader has to know of, with the reasons.
  std::string AsText(const std::string& folder) const;

 private:
  struct Group {
    size_t count = 0;
    std::vector<std::string> lines;  // of the first classes
  };

  const Group& GroupOf(BatchStatus status) const { return m_groups[static_cast<size_t>(status)]; }

  std::array<Group, kBatchStatuses.size()> m_groups;
  ExitStatus m_worst = kExitDone;
};

#endif  // GRADIX_BATCHSUMMARY_H
