// What a learning system will do with a filled gradebook.
#ifndef GRADIX_EXPORT_FILLCHECK_H
#define GRADIX_EXPORT_FILLCHECK_H

#include "Export/Fill.h"

// Of a plan that is complete but for its findings. Worst first.
Findings CheckFill(const FillPlan& plan);

#endif  // GRADIX_EXPORT_FILLCHECK_H
