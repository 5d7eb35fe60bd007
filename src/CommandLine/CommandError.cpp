#include "CommandLine/CommandError.h"

namespace {

constexpr ExitStatus kWorstFirst[] = {kExitClassFile, kExitOutput, kExitIdentifiers, kExitUsage,
                                      kExitTrouble};

}  // namespace

ExitStatus Worst(ExitStatus a, ExitStatus b) {
  for (const ExitStatus status : kWorstFirst) {
    if (status == a || status == b) return status;
  }
  return kExitDone;
}
