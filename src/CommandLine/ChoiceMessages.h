// What there is to say when choices do not fit a class.
#ifndef GRADIX_CHOICEMESSAGES_H
#define GRADIX_CHOICEMESSAGES_H

#include <string>

#include "Common/QZData/ClassTexts.h"
#include "Export/ExportChoices.h"

// The assignments of the class with their ids, in lines.
std::string AssignmentList(const qz::ClassTexts& texts);

// Of a fault. Lists the assignments there are.
std::string ChoiceFaultText(const AppliedChoices& applied, const qz::ClassTexts& texts);

// Warns of a report whose assignment is one of several with its id.
void WarnOfTwins(const ExportChoices& choices, const AppliedChoices& applied);

#endif  // GRADIX_CHOICEMESSAGES_H
