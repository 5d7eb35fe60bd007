#include "Toolkit/DLGTimers.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "Platform/Ui/Events.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGLive.h"
#include "Toolkit/DLGManager.h"

int32_t gTimerInterval = 0;

bool DLGInit(int32_t timerInterval) {
  gTimerInterval = timerInterval;
  return true;
}

namespace {

// Runs while any dialog has a timer.
EventLoopTimerRef gEventLoopTimer = nullptr;

bool _IsDue(const DLGTimerEntry& entry) {
  return static_cast<int32_t>(TickCount() - entry.due) >= 0;  // the tick count may wrap around
}

}  // namespace

bool DLGServeTimers(DLGRecord* dialog) {
  if (dialog->trackingItem > 0) return false;
  const DLGWatch watch(dialog);
  bool served = false;
  while (watch.IsLive()) {
    DLGTimerEntry* end = dialog->timers + dialog->timerCount;
    DLGTimerEntry* due = std::find_if(dialog->timers, end, _IsDue);
    if (due == end) break;
    const int32_t item = due->item;
    std::copy(due + 1, end, due);
    --dialog->timerCount;
    served = true;
    DLGNotifyChange(dialog, item);
  }
  return served;
}

namespace {

// May come again while a notified item runs the event loop.
void _ServeAllTimers(void* /*data*/) {
  for (DLGRecord* dialog : DLGLiveRecords()) {
    if (DialogIsValid(dialog)) DLGServeTimers(dialog);
  }
  const std::vector<DLGRecord*> live = DLGLiveRecords();
  if (std::any_of(live.begin(), live.end(), [](const DLGRecord* d) { return d->timerCount > 0; })) return;
  RemoveEventLoopTimer(gEventLoopTimer);
  gEventLoopTimer = nullptr;
}

}  // namespace

bool DLGRegisterTimer(DLGRecord* dialog, int32_t item, uint32_t ticks) {
  if (!DialogIsValid(dialog) || dialog->timerCount >= DLGRecord::kMaxTimers) return false;
  if (dialog->timers == nullptr) {
    dialog->timers = static_cast<DLGTimerEntry*>(std::calloc(DLGRecord::kMaxTimers, sizeof(DLGTimerEntry)));
    if (dialog->timers == nullptr) return false;
  }
  dialog->timers[dialog->timerCount++] = {item, TickCount() + ticks};
  if (gEventLoopTimer == nullptr) {
    const auto interval = static_cast<uint32_t>(std::max(gTimerInterval, 1));
    gEventLoopTimer = InstallEventLoopTimer(interval, _ServeAllTimers, nullptr);
  }
  return true;
}
