// Tells the user about students whom the learning system could not recognise.
#ifndef GRADIX_IDENTIFIERMESSAGES_H
#define GRADIX_IDENTIFIERMESSAGES_H

#include "Export/ClassExport.h"

// Warns of students without an identifier. Refuses, by throwing CommandError, a class in which nobody has one
// or in which students share one; `force` makes these warnings, too. Names the students concerned.
void RequireIdentifiers(const ClassExport& exporting, bool force);

#endif  // GRADIX_IDENTIFIERMESSAGES_H
