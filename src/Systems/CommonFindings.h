// What there is to say of an export whatever the system is. How bad it is, its rules tell.
#ifndef GRADIX_SYSTEMS_COMMONFINDINGS_H
#define GRADIX_SYSTEMS_COMMONFINDINGS_H

#include <string>
#include <vector>

#include "Systems/ExportCheck.h"

void FindIdentifierFaults(ExportCheck* check);
void FindTextFaults(ExportCheck* check);
void FindTitleFaults(ExportCheck* check);

// What the filter's dialog does to titles.
void FindDialogFaults(ExportCheck* check);

// The assignments whose titles are equal when they are `titles`, by column. Empty ones are equal to nothing.
std::vector<FindingPlace> EqualTitles(const ExportCheck& check, const std::vector<std::string>& titles);

#endif  // GRADIX_SYSTEMS_COMMONFINDINGS_H
