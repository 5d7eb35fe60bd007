// Names of output files.
#ifndef GRADIX_FILENAMES_H
#define GRADIX_FILENAMES_H

#include <QString>

#include "gradix/QZFilter.h"

namespace host {

// The path's bytes that an export can take, without the terminator.
inline constexpr qsizetype kMaxPathBytes = QZFILTER_PATH_SIZE - 1;

// The format's name without what all gradebook formats begin with: "Canvas".
QString ShortFormatName(const QString& formatName);

// What an export of the assignment in the format is proposed to be called: "Quiz 1 - Canvas.csv". Characters
// that some file system refuses become "_"; long names are cut.
QString ProposedFileName(const QString& assignmentName, const QString& formatName, const QString& extension);

bool FitsIntoPath(const QString& path);

}  // namespace host

#endif  // GRADIX_FILENAMES_H
