// Fails each allocation of a read in turn: the read has to tell, keep what was complete, and leak nothing.
//
// The tree's malloc and realloc are wrapped by the linker; operator new is replaced. The parser's own
// allocations are its library's business.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <new>
#include <sstream>
#include <string>

#include "Common/QZXMLParse/QZClassParse.h"
#include "tests/support/Exported.h"

namespace {

constexpr long kNever = -1;
long gAllocationsLeft = kNever;  // until the one that fails

bool _Fails() {
  if (gAllocationsLeft == kNever) return false;
  return gAllocationsLeft == 0 || --gAllocationsLeft == 0;
}

}  // namespace

extern "C" {
void* __real_malloc(size_t size);
void* __real_realloc(void* block, size_t size);
void* __wrap_malloc(size_t size) {
  return _Fails() ? nullptr : __real_malloc(size);
}
void* __wrap_realloc(void* block, size_t size) {
  return _Fails() ? nullptr : __real_realloc(block, size);
}
}

// Not inlined, or the compiler sees through them and takes new and free for a mismatch.
[[gnu::noinline]] void* operator new(size_t size) {
  void* block = _Fails() ? nullptr : __real_malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}
[[gnu::noinline]] void* operator new(size_t size, const std::nothrow_t&) noexcept {
  return _Fails() ? nullptr : __real_malloc(size);
}
[[gnu::noinline]] void operator delete(void* block) noexcept {
  std::free(block);
}
[[gnu::noinline]] void operator delete(void* block, size_t) noexcept {
  std::free(block);
}

namespace {

TEST(OutOfMemory, EveryAllocationMayFail) {
  std::string document = ReadFile(SAMPLES "/village-school.xml");
  for (const char* name : {"Mia", "Animals"}) document.replace(document.find(name), 1, "Ł");
  long failing = 1;
  for (bool parsed = false; !parsed; failing += failing < 3000 ? 1 : 97) {
    std::istringstream stream(document);
    qz::ClassRecord record;
    QZClassParseReport report;
    qz::OriginalTexts originals;
    report.originals = &originals;
    gAllocationsLeft = failing;
    parsed = QZClassParse(&record, stream, &report);
    gAllocationsLeft = kNever;
    ASSERT_EQ(report.reason == nullptr, parsed) << failing;
    if (!parsed) {
      ASSERT_STREQ(report.reason, "out of memory") << failing;
      ASSERT_GT(report.line, 0U);
    }
    ASSERT_LE(record.students.size(), 8U);
    if (parsed) {
      EXPECT_EQ(record.assignments.size(), 3U);
      EXPECT_EQ(originals.Count(), 2U);
    }
  }
  // Freed nodes are reused, but the records' texts and lists alone are more than this.
  EXPECT_GT(failing, 200) << "the failures did not reach the reader";
}

}  // namespace
