// Help tags: short texts that appear while the mouse rests on a control.
#ifndef GRADIX_HELPTAGS_H
#define GRADIX_HELPTAGS_H

#include <string>

#include "Platform/Ui/Controls.h"

void HMSetControlHelpContent(ControlRef control, const std::string& text);  // Mac OS Roman; empty: none
void HMSetTagDelay(uint32_t milliseconds);                                  // for all controls

#endif  // GRADIX_HELPTAGS_H
