// The filter's process-wide state. Main thread only.
#ifndef GRADIX_START_H
#define GRADIX_START_H

#include "Filters/GX_StdCsv/SessionMgr.h"

extern SessionMgr g_sessionMgr;
extern unsigned long ncontextID;  // the session of the export under way
extern void* ghDllInstance;       // the module, as the host last named it

// Fills a format's record: name, extension and flags.
void _FillFormatInfo(QZEXPORTFORMAT* info, const char* name);

#endif  // GRADIX_START_H
