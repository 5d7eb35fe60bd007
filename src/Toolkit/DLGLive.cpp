#include "Toolkit/DLGLive.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <type_traits>
#include <unordered_map>

#include "Toolkit/DLGManager.h"

static_assert(std::is_trivially_copyable_v<DLGRecord>, "records are zeroed and copied as blocks");
static_assert(sizeof(DLGRecord) % alignof(DLGItem) == 0, "the item table follows the header");

namespace {

// By record: the number of items its block has room for.
std::unordered_map<const DLGRecord*, int32_t>& _Live() {
  static std::unordered_map<const DLGRecord*, int32_t> live;
  return live;
}

uint64_t gNextSerial = 1;

}  // namespace

DLGRecord* DLGNewRecord(int32_t itemCapacity) {
  const int32_t room = std::max(itemCapacity, DLGRecord::kPaneCapacity);
  const size_t size = sizeof(DLGRecord) + (static_cast<size_t>(room) + 1) * sizeof(DLGItem);
  auto* dialog = static_cast<DLGRecord*>(std::calloc(1, size));
  if (dialog == nullptr) return nullptr;
  try {
    _Live().emplace(dialog, room);
  } catch (const std::bad_alloc&) {
    std::free(dialog);
    return nullptr;
  }
  dialog->itemCapacity = itemCapacity;
  dialog->marker = DLGRecord::kMarker;
  dialog->serial = gNextSerial++;
  return dialog;
}

void DLGFreeRecord(DLGRecord* dialog) {
  if (_Live().erase(dialog) == 0) return;
  std::free(dialog->timers);
  std::free(dialog);
}

int32_t DLGRoom(const DLGRecord* dialog) {
  return _Live().at(dialog);
}

DLGItem* DLGItemRow(DLGRecord* dialog, int32_t item) {
  return reinterpret_cast<DLGItem*>(dialog + 1) + item;
}

std::vector<DLGRecord*> DLGLiveRecords() {
  std::vector<DLGRecord*> records;
  records.reserve(_Live().size());
  for (const auto& entry : _Live()) records.push_back(const_cast<DLGRecord*>(entry.first));
  std::sort(records.begin(), records.end(),
            [](const DLGRecord* a, const DLGRecord* b) { return a->serial < b->serial; });
  return records;
}

bool DialogIsValid(const DLGRecord* dialog) {
  return dialog != nullptr && _Live().count(dialog) != 0 && dialog->marker == DLGRecord::kMarker;
}

DLGItem* DLGFindItem(DLGRecord* dialog, int32_t item) {
  if (!DialogIsValid(dialog) || item < 1 || item > dialog->itemCount) return nullptr;
  return DLGItemRow(dialog, item);
}

size_t DLGDataLeft(const DLGRecord* dialog, const char* data) {
  return dialog->dataEnd == nullptr ? 0 : static_cast<size_t>(dialog->dataEnd - data);
}
