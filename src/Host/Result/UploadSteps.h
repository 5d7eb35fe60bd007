// What to click in a learning system so that it takes a file.
#ifndef GRADIX_UPLOADSTEPS_H
#define GRADIX_UPLOADSTEPS_H

#include <QStringList>

#include "Host/Result/ExportedFile.h"

namespace host {

// One short sentence for each step, in the current language. Never empty for a format that is known.
QStringList UploadStepsOf(const ExportedFile& file);

}  // namespace host

#endif  // GRADIX_UPLOADSTEPS_H
