// The live line of the options: what the field that is chosen there means for the export, while the user
// chooses.
#ifndef GRADIX_FIELDLINE_H
#define GRADIX_FIELDLINE_H

#include <cstddef>
#include <vector>

#include "Common/QZData/QZClass.h"
#include "Toolkit/DLGRecord.h"

struct FieldLineChoices {
  qz::UserIDField field;
  std::vector<size_t> assignments;  // positions, ascending
  bool useQuotes;

  bool operator==(const FieldLineChoices&) const = default;
};

// Reads the choices off the dialog's items.
using FieldLineSource = FieldLineChoices (*)(DLGRecord* dialog);

// Makes a text item the live line on the class of the dialog's session, in the session's language as it is
// now. The dialog may cut titles of the class afterwards; the line tells what comes of it.
void StartFieldLine(DLGRecord* dialog, int32_t item, FieldLineSource choices);

// Shows what is true of the choices now. What cannot be found out leaves the line as it is.
void ShowFieldLine(DLGRecord* dialog, int32_t item);

// The same as soon as the event loop is back, once for however many calls.
void ShowFieldLineSoon(DLGRecord* dialog, int32_t item);

#endif  // GRADIX_FIELDLINE_H
