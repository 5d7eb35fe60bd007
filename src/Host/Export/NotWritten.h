// What is told of a file that was to be written and was not.
#ifndef GRADIX_NOTWRITTEN_H
#define GRADIX_NOTWRITTEN_H

#include <QString>

class QWidget;

namespace host {

// Says why, what became of an earlier file of that name, and what to do; returns at once. `error` is an errno
// value, 0 when the reason is not known. `incomplete`: a part of the new file took the earlier one's place.
void ShowNotWritten(QWidget* parent, const QString& path, int error, bool incomplete);

}  // namespace host

#endif  // GRADIX_NOTWRITTEN_H
