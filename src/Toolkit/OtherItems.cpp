#include "Toolkit/OtherItems.h"

intptr_t DefItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t /*param1*/,
                     intptr_t /*param2*/) {
  const DLGItem* const found = message == kDLGGetControl ? DLGFindItem(dialog, item) : nullptr;
  return found != nullptr ? reinterpret_cast<intptr_t>(found->control) : 0;
}

// They do nothing yet, but each type is registered under its own procedure.
#define GRADIX_PLAIN_ITEM(name)                                                                       \
  intptr_t name(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2) { \
    return DefItemProc(dialog, item, message, param1, param2);                                        \
  }

GRADIX_PLAIN_ITEM(SBItemProc)
GRADIX_PLAIN_ITEM(ICItemProc)
GRADIX_PLAIN_ITEM(PIItemProc)
GRADIX_PLAIN_ITEM(UIItemProc)
GRADIX_PLAIN_ITEM(BBItemProc)
GRADIX_PLAIN_ITEM(SLItemProc)
GRADIX_PLAIN_ITEM(DIItemProc)
GRADIX_PLAIN_ITEM(PRItemProc)
GRADIX_PLAIN_ITEM(SPBItemProc)
GRADIX_PLAIN_ITEM(TAItemProc)
GRADIX_PLAIN_ITEM(HKItemProc)
GRADIX_PLAIN_ITEM(WP2ItemProc)
GRADIX_PLAIN_ITEM(TIItemProc)
GRADIX_PLAIN_ITEM(TVItemProc)
GRADIX_PLAIN_ITEM(BXItemProc)
GRADIX_PLAIN_ITEM(UBItemProc)
GRADIX_PLAIN_ITEM(DB2ItemProc)

#undef GRADIX_PLAIN_ITEM
