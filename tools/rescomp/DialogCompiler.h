// Dialogs.
#ifndef GRADIX_DIALOGCOMPILER_H
#define GRADIX_DIALOGCOMPILER_H

#include "rescomp/ForkWriter.h"
#include "rescomp/Source.h"

// Compiles one element of "dialogs": the 'DLOG', its 'DITL', the toolkit's item extension 'luDI', the
// controls with what their lists need, and the help tags. Throws SourceError.
void CompileDialog(const Node& source, ForkWriter* file);

#endif  // GRADIX_DIALOGCOMPILER_H
