// A large class: the windows go on answering.
#include "bench/ClassGenerator.h"
#include "bench/HostTour.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

// In the main thread's own time, as other programs may keep the processors. host_gaps prints the times.
TEST_F(HostTest, AnswersWithALargeClass) {
  constexpr double kLongest = 1;  // seconds
  EXPECT_TRUE(
      TourHost(TroubledClass(2000, 60), m_folder.path(),
               [&](const std::string& step, const Gap& gap) { EXPECT_LT(gap.thread, kLongest) << step; }));
}

}  // namespace

}  // namespace host
