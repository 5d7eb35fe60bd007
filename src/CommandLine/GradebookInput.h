// The downloaded gradebook that the command line names.
#ifndef GRADIX_GRADEBOOKINPUT_H
#define GRADIX_GRADEBOOKINPUT_H

#include <string>

#include "Filters/GX_StdCsv/FormatTable.h"
#include "Systems/Download.h"

// `format` null: the headings tell whose it is. Throws CommandError, with the place of the fault, unless it
// is a gradebook of that system.
Gradebook ReadGradebookInput(const std::string& path, const FormatRow* format);

#endif  // GRADIX_GRADEBOOKINPUT_H
