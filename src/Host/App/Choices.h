// What the user chose last for an export, remembered in the user's settings, and the order in which formats
// are offered.
#ifndef GRADIX_CHOICES_H
#define GRADIX_CHOICES_H

#include <vector>

#include "Filters/GX_StdCsv/FormatTable.h"

namespace host {

// The format used last; null: none yet.
const FormatRow* LastFormat();
void SetLastFormat(const FormatRow& format);

// The student field that was chosen for the format, or the one that its dialog proposes.
qz::UserIDField FieldOf(const FormatRow& format);
void SetFieldOf(const FormatRow& format, qz::UserIDField field);

struct FormatOrder {
  std::vector<const FormatRow*> inUse;    // the last used one first, retired or not; the report last
  std::vector<const FormatRow*> retired;  // of systems no longer sold, and of old versions
};

// Every format once, as a teacher expects them.
FormatOrder FormatsInTeachersOrder();

}  // namespace host

#endif  // GRADIX_CHOICES_H
