// The destination of a command's data: a file that is replaced as a whole or not at all, or a stream.
#ifndef GRADIX_OUTPUTFILE_H
#define GRADIX_OUTPUTFILE_H

#include <cstdio>
#include <functional>
#include <string>

// Writes the data to the stream and returns 0, or the errno value of what went wrong.
using OutputWriter = std::function<int(std::FILE*)>;

// Has `write` fill the destination. A file is written under a temporary name in its own folder and takes its
// place once it is complete, with the permissions of the file it replaces; a symbolic link stays and the file
// behind it is replaced. Devices and pipes are written directly, "-" is standard output. Throws CommandError
// when the output was not completely written; an old file is then untouched. One call at a time.
void WriteOutput(const std::string& path, const OutputWriter& write);

// Writes the text to standard output, with the same failures.
void WriteStandardOutput(const std::string& text);

// True when both names, each possibly "-", mean one regular file.
bool IsSameFile(const std::string& inputPath, const std::string& outputPath);

#endif  // GRADIX_OUTPUTFILE_H
