// The class file that the command line names, and standard input in its place.
#ifndef GRADIX_CLASSINPUT_H
#define GRADIX_CLASSINPUT_H

#include <string>

#include "Export/ClassFile.h"

// The name that stands for standard input and standard output.
constexpr const char* kStandardStream = "-";

// Throws CommandError, with the place of the fault, unless the file was read completely.
ClassFile ReadClassInput(const std::string& path);

#endif  // GRADIX_CLASSINPUT_H
