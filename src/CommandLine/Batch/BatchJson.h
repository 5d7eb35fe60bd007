// What programs are told of many classes, written to standard output as soon as it is known.
#ifndef GRADIX_BATCHJSON_H
#define GRADIX_BATCHJSON_H

#include <string>

#include "CommandLine/Batch/BatchSummary.h"
#include "Export/ExportChoices.h"

// Each call throws CommandError when standard output does not take it.
class BatchJson {
 public:
  explicit BatchJson(const ExportChoices& choices);

  void Add(const std::string& classObject);
  void Finish(const BatchSummary& summary);

 private:
  bool m_isEmpty = true;
};

#endif  // GRADIX_BATCHJSON_H
