// Names of output files.
#ifndef GRADIX_FILENAMES_H
#define GRADIX_FILENAMES_H

#include <QDate>
#include <QString>

#include "Filters/GX_StdCsv/FormatTable.h"
#include "gradix/QZFilter.h"

namespace host {

// The path's bytes that an export through the filter can take, without the terminator.
inline constexpr qsizetype kMaxPathBytes = QZFILTER_PATH_SIZE - 1;

// The format's name without what all gradebook formats begin with: "Canvas".
QString ShortFormatName(const QString& formatName);

// The same of a format that the program knows, in the current language.
QString FormatTitle(const FormatRow& format);

// What an export of the class, or of its one assignment, in the format is proposed to be called:
// "Biology 9 – Canvas – 2026-11-21.csv". Characters that some file system refuses become blanks or "-"; long
// names are cut.
QString ProposedFileName(const QString& name, const QString& formatName, const QString& extension,
                         QDate date = QDate::currentDate());

}  // namespace host

#endif  // GRADIX_FILENAMES_H
