// Findings as programs read them.
#ifndef GRADIX_FINDINGSJSON_H
#define GRADIX_FINDINGSJSON_H

#include <nlohmann/json_fwd.hpp>

#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

// An array with an object per finding, in the same order: its code, consequence, sentences, and all places.
nlohmann::ordered_json FindingsJson(const Findings& findings, const ExportSubject& subject);

#endif  // GRADIX_FINDINGSJSON_H
