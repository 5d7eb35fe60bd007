// What filling did, and what it left: for people, and as JSON for programs.
#ifndef GRADIX_FILLREPORT_H
#define GRADIX_FILLREPORT_H

#include <string>

#include "CommandLine/Arguments/CommandOptions.h"
#include "CommandLine/CommandError.h"
#include "Export/Fill.h"

struct FillReport {
  const FillOptions* options;
  const FillPlan* plan;
  std::string className = {};  // UTF-8
  bool isWritten = false;
  ExitStatus status = kExitDone;
};

// To standard error.
void TellFill(const FillPlan& plan);

std::string FillJson(const FillReport& report);

// Why a student or an assignment was not matched, as programs know it; null when it was.
const char* UnmatchedKey(StudentMatch match);
const char* UnmatchedKey(TitleMatch match);

#endif  // GRADIX_FILLREPORT_H
