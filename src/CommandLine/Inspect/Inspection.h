// What `inspect` tells of a class, as text and as JSON.
#ifndef GRADIX_INSPECTION_H
#define GRADIX_INSPECTION_H

#include <string>
#include <vector>

#include "Export/ClassFile.h"
#include "Export/Statistics.h"
#include "Systems/IdentifierQuality.h"

struct FieldQuality {
  const qz::StudentField* field;
  IdentifierQuality quality;
};

struct ClassInspection {
  ClassFile file;
  std::vector<FieldQuality> fields;     // those that can identify a student
  std::vector<ScoreStatistics> scores;  // by assignment, of the students on the roster who have results
};

std::string InspectionText(const ClassInspection& inspection);
std::string InspectionJson(const ClassInspection& inspection);

#endif  // GRADIX_INSPECTION_H
