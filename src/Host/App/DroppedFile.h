// What is dropped on a window.
#ifndef GRADIX_DROPPEDFILE_H
#define GRADIX_DROPPEDFILE_H

#include <QString>

class QMimeData;

namespace host {

// The path of the one local file of a drop; empty for anything else.
QString DroppedFile(const QMimeData* data);

}  // namespace host

#endif  // GRADIX_DROPPEDFILE_H
