#include "Toolkit/DLGRegister.h"

DLGRegisterRow itemRegisterList[kMaxRegisterItems];
int32_t numRegisterItems = 0;

namespace {

const DLGRegisterRow* _FindRow(int32_t type) {
  for (int32_t i = 0; i < numRegisterItems; ++i) {
    if (itemRegisterList[i].type == type) return &itemRegisterList[i];
  }
  return nullptr;
}

}  // namespace

bool DLGRegisterItem(int32_t type, DLGItemProc procedure) {
  if (type < 1 || numRegisterItems >= kMaxRegisterItems || _FindRow(type) != nullptr) return false;
  itemRegisterList[numRegisterItems++] = {type, procedure};
  return true;
}

DLGItemProc DLGFindItemProc(int32_t type) {
  const DLGRegisterRow* row = _FindRow(type);
  return row == nullptr ? nullptr : row->procedure;
}
