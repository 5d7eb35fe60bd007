// The filter's process-wide state. Main thread only.
#ifndef GRADIX_START_H
#define GRADIX_START_H

#include "Filters/GX_StdCsv/SessionMgr.h"

extern SessionMgr g_sessionMgr;

#endif  // GRADIX_START_H
