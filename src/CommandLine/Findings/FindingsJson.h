// Findings as programs read them.
#ifndef GRADIX_FINDINGSJSON_H
#define GRADIX_FINDINGSJSON_H

#include "CommandLine/Json.h"
#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

// An array with an object per finding, in the same order, with all its places.
Json FindingsJson(const Findings& findings, const ExportSubject& subject);

// How many findings have each consequence.
Json ConsequenceCountsJson(const Findings& findings);

#endif  // GRADIX_FINDINGSJSON_H
