// Files written as a whole: afterwards there is the complete new file, or the old one as it was.
#ifndef GRADIX_ATOMICFILE_H
#define GRADIX_ATOMICFILE_H

#include <cstdio>
#include <functional>
#include <string>

// Why an old file was overwritten where it is, so that for a while there was neither the old file nor the
// new.
enum class InPlace {
  kNo,
  kNoSecondFile,    // its folder takes no other file
  kNotReplaceable,  // the name cannot be given to another file; a mount point's, for one
};

struct FileOutcome {
  int error = 0;            // an errno value; 0: all is written
  bool begun = false;       // the destination could be opened; otherwise nothing has changed
  bool incomplete = false;  // it holds a part of the new text, and the old one is lost
  InPlace inPlace = InPlace::kNo;
  int inPlaceError = 0;  // the errno value behind it
};

// Writes the text to the stream and returns 0, or the errno value of what went wrong. Does not close it.
using FileWriter = std::function<int(std::FILE*)>;

// Has `write` fill a file in the destination's folder that nobody sees, and gives it the name once it is
// complete and on the disk. A replaced file's owner, group and permissions stay; a protected one is refused;
// a symbolic link stays, and the file behind it is replaced. Devices and pipes are written directly. Where
// the file system knows no unnamed files, the unfinished one has a hidden name, which a program that is
// killed leaves behind.
//
// Any thread. Passes on what `write` throws; the old file is then untouched, unless it is written in place.
FileOutcome WriteAtomicFile(const std::string& path, const FileWriter& write);

#endif  // GRADIX_ATOMICFILE_H
