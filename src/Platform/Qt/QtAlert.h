// The alerts that are open.
#ifndef GRADIX_QTALERT_H
#define GRADIX_QTALERT_H

#include "Platform/Ui/Windows.h"

namespace ui {

void CloseAlertsOf(WindowRef window);  // before the window goes

}  // namespace ui

#endif  // GRADIX_QTALERT_H
