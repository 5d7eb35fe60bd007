#include "Export/RunInParallel.h"

#include <algorithm>
#include <atomic>
#include <new>
#include <system_error>
#include <thread>
#include <vector>

namespace {

// Adds threads that run `work` while the system has any.
void _AddThreads(std::vector<std::jthread>* threads, size_t count, const std::function<void()>& work) {
  try {
    threads->reserve(count);
    while (threads->size() < count) threads->emplace_back(work);
  } catch (const std::system_error&) {
  } catch (const std::bad_alloc&) {
  }
}

}  // namespace

void RunInParallel(size_t count, size_t jobs, const std::function<void(size_t)>& work) {
  std::atomic<size_t> next = 0;
  const std::function<void()> run = [&next, &work, count] {
    for (size_t index = next++; index < count; index = next++) work(index);
  };
  std::vector<std::jthread> threads;
  const size_t workers = std::min(jobs, count);
  if (workers > 1) _AddThreads(&threads, workers - 1, run);
  run();
}

size_t ProcessorCount() {
  return std::max(1U, std::thread::hardware_concurrency());
}
