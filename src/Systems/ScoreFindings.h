// What there is to say of the scores of an export.
#ifndef GRADIX_SYSTEMS_SCOREFINDINGS_H
#define GRADIX_SYSTEMS_SCOREFINDINGS_H

#include <string>

#include "Systems/ExportCheck.h"

// A score as it stands in the file.
std::string WrittenScore(const ExportSubject& subject, double points);

// The score where it is judged, with its text as the detail.
FindingPlace ScorePlace(const ExportSubject& subject, size_t student, size_t column, double points);

// Scores above the points possible, infinite ones, missing ones, and those of students who are not in the
// class.
void FindScoreFaults(ExportCheck* check);

// Scores above a limit as the system reads them.
std::vector<FindingPlace> ScoresAbove(const ExportCheck& check, double limit);

std::vector<FindingPlace> NegativeScores(const ExportCheck& check);

#endif  // GRADIX_SYSTEMS_SCOREFINDINGS_H
