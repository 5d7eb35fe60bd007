// Where findings show in the table of the class.
#ifndef GRADIX_FINDINGMARKS_H
#define GRADIX_FINDINGMARKS_H

#include "Host/ClassView/ProblemMarks.h"
#include "Systems/ExportSubject.h"

namespace host {

// In the current language. What is trouble has marks. Of what only has to be known, the little that a teacher
// can do something about in the class does: a mark on every student would tell nothing.
ProblemMarks MarksOf(const Findings& findings, const ExportSubject& subject);

}  // namespace host

#endif  // GRADIX_FINDINGMARKS_H
