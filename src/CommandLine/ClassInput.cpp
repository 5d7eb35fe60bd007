#include "CommandLine/ClassInput.h"

#include <iostream>

#include "CommandLine/CommandError.h"
#include "CommandLine/TerminalText.h"

namespace {

// `name` is the file as messages call it.
std::string _FaultText(const std::string& name, const ClassFault& fault) {
  if (fault.code == ClassFaultCode::kCannotOpen) return "cannot open " + name + ": " + fault.reason;
  if (fault.code == ClassFaultCode::kCannotRead) return "cannot read " + name + ": " + fault.reason;
  std::string text = name;
  if (fault.line > 0) {
    for (const uint64_t number : {fault.line, fault.column}) text.append(":").append(std::to_string(number));
  }
  return text.append(": ").append(PrintableUtf8(fault.reason));
}

}  // namespace

ClassFile ReadClassInput(const std::string& path) {
  const bool standardInput = path == kStandardStream;
  ClassFile file = standardInput ? ReadClassFile(std::cin, path) : ReadClassFile(path);
  if (file.IsRead()) return file;
  const std::string name = standardInput ? "(standard input)" : PrintableUtf8(path);
  throw CommandError(kExitClassFile, _FaultText(name, file.fault));
}
