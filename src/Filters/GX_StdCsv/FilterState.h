// The filter's process-wide state, beside the language (Common/Language.h). Main thread only.
#ifndef GRADIX_FILTERSTATE_H
#define GRADIX_FILTERSTATE_H

#include "Filters/GX_StdCsv/SessionMgr.h"

extern SessionMgr g_sessionMgr;
extern unsigned long ncontextID;  // the session of the export under way
extern void* ghDllInstance;       // the module, as the host last named it

#endif  // GRADIX_FILTERSTATE_H
