// The table of item procedures by type id.
#ifndef GRADIX_DLGREGISTER_H
#define GRADIX_DLGREGISTER_H

#include "Toolkit/DLGRecord.h"

inline constexpr int32_t kMaxRegisterItems = 100;

struct DLGRegisterRow {
  int32_t type;
  DLGItemProc procedure;
};

// In the order of registration, `numRegisterItems` rows used.
extern DLGRegisterRow itemRegisterList[kMaxRegisterItems];
extern int32_t numRegisterItems;

// False for an id below 1, a full table, or an id that is registered already.
bool DLGRegisterItem(int32_t type, DLGItemProc procedure);

// Null for an id that is not registered.
DLGItemProc DLGFindItemProc(int32_t type);

#endif  // GRADIX_DLGREGISTER_H
