// The callbacks of an application, which every program that links the toolkit defines.
#ifndef GRADIX_APPLICATION_H
#define GRADIX_APPLICATION_H

#include <cstdint>

#include "gradix/QZFilter.h"

extern "C" {

// Closes all dialogs and, when none refuses, has the event loop end. Gives whether it is to end.
QZFILTER_API int32_t QuitApplication();
QZFILTER_API void OpenApplication();
QZFILTER_API void OpenDataFile(const char* path);
QZFILTER_API int32_t PrintDataFile(const char* path);  // 0: nothing was printed
QZFILTER_API int32_t DoCommand(int32_t command);       // 1: the command is done
QZFILTER_API void UpdateMenus();

}  // extern "C"

#endif  // GRADIX_APPLICATION_H
