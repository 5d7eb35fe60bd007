// What an export holds in memory, counted by replacing operator new: as much as the class has students and
// results, though it writes a cell for every student on every assignment.
#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

#include "tests/support/Exported.h"

namespace {

size_t gHeld = 0;
size_t gPeak = 0;

}  // namespace

// Not inlined, or the compiler sees through them and takes new and free for a mismatch.
[[gnu::noinline]] void* operator new(size_t size) {
  void* block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  gHeld += malloc_usable_size(block);
  gPeak = std::max(gPeak, gHeld);
  return block;
}
[[gnu::noinline]] void operator delete(void* block) noexcept {
  gHeld -= malloc_usable_size(block);
  std::free(block);
}
[[gnu::noinline]] void operator delete(void* block, size_t) noexcept {
  operator delete(block);
}

namespace {

// The most that writing a class of `n` students holds: `n` assignments, `n` results and `n` questions.
size_t _PeakOf(const FormatRow& format, int32_t n) {
  const auto session = NewSession(format);
  qz::ClassRecord* record = session->GetClass();
  record->students.resize(static_cast<size_t>(n));
  record->assignments.resize(static_cast<size_t>(n));
  record->assignments[0].questions.resize(static_cast<size_t>(n));
  for (int32_t i = 0; i < n; ++i) {
    const auto position = static_cast<size_t>(i);
    record->students[position].id = i;
    record->assignments[position].selected = true;
    record->assignments[position].results.resize(1);
    record->assignments[position].results[0].studentID = i;
  }
  std::FILE* sink = std::fopen("/dev/null", "wb");
  const size_t before = gHeld;
  gPeak = before;
  session->ExportTo(sink);
  std::fclose(sink);
  return gPeak - before;
}

TEST(ExportMemory, FollowsStudentsAndResults) {
  for (const FormatRow& format : FormatTable()) {
    constexpr int32_t kSmall = 150;
    const auto small = static_cast<double>(_PeakOf(format, kSmall));
    for (const int32_t times : {2, 4}) {
      const double ratio = static_cast<double>(_PeakOf(format, times * kSmall)) / small;
      EXPECT_LT(ratio, 1.5 * times) << format.key;
    }
  }
}

}  // namespace
