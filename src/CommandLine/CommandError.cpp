#include "CommandLine/CommandError.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr ExitStatus kWorstFirst[] = {kExitClassFile, kExitOutput, kExitIdentifiers, kExitTrouble, kExitDone};

}  // namespace

ExitStatus Worst(ExitStatus a, ExitStatus b) {
  return *std::find_if(std::begin(kWorstFirst), std::end(kWorstFirst),
                       [a, b](ExitStatus status) { return status == a || status == b; });
}
