#include "Filters/GX_StdCsv/FilterState.h"

SessionMgr g_sessionMgr;
unsigned long ncontextID = 0;
void* ghDllInstance = nullptr;
