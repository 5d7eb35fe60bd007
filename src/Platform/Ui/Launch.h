// The desktop's opener of URLs.
#ifndef GRADIX_LAUNCH_H
#define GRADIX_LAUNCH_H

#include "Platform/Ui/Windows.h"

// Shows the URL (UTF-8) in the application that the desktop has for it. False when it is not taken.
bool ExecuteURL(WindowRef parent, const char* url);

#endif  // GRADIX_LAUNCH_H
