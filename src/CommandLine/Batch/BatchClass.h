// One class of many: exported, and what is left to say of it.
#ifndef GRADIX_BATCHCLASS_H
#define GRADIX_BATCHCLASS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "CommandLine/Arguments/CommandOptions.h"
#include "CommandLine/CommandError.h"
#include "Export/BatchPlan.h"

enum class BatchStatus : uint8_t { kWritten, kWarned, kRefused, kUnreadable, kNotWritten };

struct BatchStatusRow {
  const char* key;    // by which programs know it
  const char* title;  // of the classes that have it
};

constexpr std::array<BatchStatusRow, 5> kBatchStatuses = {{{"written", "Written"},
                                                           {"warned", "Written, with warnings"},
                                                           {"refused", "Refused"},
                                                           {"unreadable", "Unreadable"},
                                                           {"not-written", "Not written"}}};

constexpr const BatchStatusRow& FindBatchStatus(BatchStatus status) {
  return kBatchStatuses[static_cast<size_t>(status)];
}

// Little, whatever the size of the class.
struct BatchResult {
  BatchStatus status = BatchStatus::kNotWritten;
  ExitStatus exitStatus = kExitOutput;  // of an export of this class alone
  std::string reason;                   // UTF-8 on one line; empty when there is nothing to say
  std::string json;                     // an object on one line; empty unless it was asked for
};

// Any thread. Throws nothing: whatever happens is a result.
BatchResult ExportBatchClass(const BatchItem& item, const ExportOptions& options);

#endif  // GRADIX_BATCHCLASS_H
