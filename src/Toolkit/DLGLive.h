// The blocks of dialog records: made, freed, and told apart from memory that is no record any more.
#ifndef GRADIX_DLGLIVE_H
#define GRADIX_DLGLIVE_H

#include <vector>

#include "Toolkit/DLGRecord.h"

// A zero-filled record for that many items, live and with a serial number of its own; null when memory is
// short. Its block has room for the items of an appended pane, whatever the capacity says.
DLGRecord* DLGNewRecord(int32_t itemCapacity);

// Forgets the record, frees its timers and its block.
void DLGFreeRecord(DLGRecord* dialog);

// Disposes a dialog that was not created to its end, whatever its kind.
void DLGDiscard(DLGRecord* dialog);

// The items a record has room for.
int32_t DLGRoom(const DLGRecord* dialog);

// Row `item` of the item table, 0 <= item <= DLGRoom.
DLGItem* DLGItemRow(DLGRecord* dialog, int32_t item);

// The records live at this moment, oldest first.
std::vector<DLGRecord*> DLGLiveRecords();

#endif  // GRADIX_DLGLIVE_H
