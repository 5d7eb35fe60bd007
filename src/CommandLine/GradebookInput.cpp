#include "CommandLine/GradebookInput.h"

#include "CommandLine/CommandError.h"
#include "CommandLine/TerminalText.h"
#include "Systems/LearningSystem.h"

namespace {

std::string _FaultText(const std::string& path, const TableFault& fault) {
  const std::string name = PrintableUtf8(path);
  const std::string reason = PrintableUtf8(fault.reason);
  if (fault.unreadable) return "cannot read " + name + ": " + reason;
  std::string place = name;
  for (const uint64_t number : {fault.line, fault.column}) {
    if (number > 0) place.append(":").append(std::to_string(number));
  }
  return place + ": " + reason;
}

}  // namespace

Gradebook ReadGradebookInput(const std::string& path, const FormatRow* format) {
  const LearningSystem* system = format != nullptr ? &SystemOf(*format) : nullptr;
  if (system != nullptr && system->download == nullptr) {
    throw CommandError(kExitUsage,
                       "nothing is known of gradebooks downloaded from " + std::string(system->name));
  }
  Gradebook gradebook;
  const TableFault fault = ReadGradebook(path, system, &gradebook);
  if (fault.IsFault()) throw CommandError(kExitClassFile, _FaultText(path, fault));
  return gradebook;
}
