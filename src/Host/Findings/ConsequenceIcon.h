// The icon of a consequence, which always stands beside its word or has it as its tool tip.
#ifndef GRADIX_CONSEQUENCEICON_H
#define GRADIX_CONSEQUENCEICON_H

#include <QIcon>

#include "Systems/Finding.h"

namespace host {

// In the style of the desktop.
QIcon ConsequenceIcon(Consequence consequence);

}  // namespace host

#endif  // GRADIX_CONSEQUENCEICON_H
