// Reading of the class file that the command line names.
#ifndef GRADIX_CLASSFILE_H
#define GRADIX_CLASSFILE_H

#include <string>

#include "Common/QZData/QZClass.h"

// The name that stands for standard input and standard output.
constexpr const char* kStandardStream = "-";

// Reads the class file into an empty record. Throws CommandError, with the place of the fault, unless it was
// read completely.
void ReadClassFile(const std::string& path, qz::ClassRecord* record);

#endif  // GRADIX_CLASSFILE_H
