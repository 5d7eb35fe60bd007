// The two halves of matching a class with a gradebook. Each fills its part of the match.
#ifndef GRADIX_SYSTEMS_GRADEBOOKMATCHERS_H
#define GRADIX_SYSTEMS_GRADEBOOKMATCHERS_H

#include "Systems/GradebookMatch.h"

void MatchStudents(const ExportSubject& subject, const Gradebook& gradebook, const MatchChoices& choices,
                   GradebookMatch* match);

void MatchTitles(const ExportSubject& subject, const Gradebook& gradebook, const MatchChoices& choices,
                 GradebookMatch* match);

#endif  // GRADIX_SYSTEMS_GRADEBOOKMATCHERS_H
