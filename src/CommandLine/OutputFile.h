// Where a command's data goes, and what is told when it does not get there.
#ifndef GRADIX_OUTPUTFILE_H
#define GRADIX_OUTPUTFILE_H

#include <string>

#include "Common/AtomicFile.h"

// True of "-" and of any other name of standard output.
bool IsStandardOutput(const std::string& path);

// Throws CommandError when the output was not completely written. Warns of a file that had to be written in
// place.
void TellOutcome(const std::string& path, const FileOutcome& outcome);

// Writes the text to standard output, with the same failures.
void WriteStandardOutput(const std::string& text);

// True when both names, each possibly "-", mean one regular file.
bool IsSameFile(const std::string& inputPath, const std::string& outputPath);

#endif  // GRADIX_OUTPUTFILE_H
