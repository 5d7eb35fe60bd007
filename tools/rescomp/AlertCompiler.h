// Alerts.
#ifndef GRADIX_ALERTCOMPILER_H
#define GRADIX_ALERTCOMPILER_H

#include "rescomp/ForkWriter.h"
#include "rescomp/Source.h"

// Compiles one element of "alerts": the 'ALRT' and its 'DITL', laid out here. Throws SourceError.
void CompileAlert(const Node& source, ForkWriter* file);

#endif  // GRADIX_ALERTCOMPILER_H
