// The properties of the open class file.
#ifndef GRADIX_CLASSPROPERTIES_H
#define GRADIX_CLASSPROPERTIES_H

#include "Host/ClassView/ClassReader.h"

class QWidget;

namespace host {

// Shows them in a dialog and returns at once.
void ShowClassProperties(QWidget* parent, const OpenClass& openClass);

}  // namespace host

#endif  // GRADIX_CLASSPROPERTIES_H
