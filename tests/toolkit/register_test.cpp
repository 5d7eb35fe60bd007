#include "Toolkit/DLGRegister.h"

#include <gtest/gtest.h>

#include <vector>

#include "Toolkit/DLGFocus.h"
#include "Toolkit/OtherItems.h"

namespace {

intptr_t _First(DLGRecord*, int32_t, int32_t, intptr_t, intptr_t) {
  return 0;
}

// The table is the process's own, so these work in what start-up left free of it.
TEST(Register, RefusesBadIdsRepeatedIdsAndAFullTable) {
  const int32_t before = numRegisterItems;
  EXPECT_FALSE(DLGRegisterItem(0, _First));
  EXPECT_FALSE(DLGRegisterItem(-7, _First));
  ASSERT_TRUE(DLGRegisterItem(5000, _First));
  EXPECT_FALSE(DLGRegisterItem(5000, DefItemProc));
  EXPECT_EQ(DLGFindItemProc(5000), &_First);
  while (numRegisterItems < kMaxRegisterItems)
    ASSERT_TRUE(DLGRegisterItem(5000 + numRegisterItems + 1, _First));
  EXPECT_FALSE(DLGRegisterItem(9000, _First));
  EXPECT_EQ(DLGFindItemProc(9000), nullptr);
  numRegisterItems = before;
}

struct Walk {
  int32_t from, direction, expected;
};

TEST(TabOrder, WrapsAndPassesOverWhatTakesNoFocus) {
  constexpr uint32_t kStop = kDLGTabStop | kDLGEnabled;
  std::vector<DLGItem> items(6);
  items[2].flags = kStop;
  items[3].flags = kDLGTabStop;  // disabled
  items[4].flags = kStop;
  for (const Walk& walk : {Walk{2, 1, 4}, Walk{4, 1, 2}, Walk{2, -1, 4}, Walk{4, -1, 2}, Walk{0, 1, 2},
                           Walk{0, -1, 4}, Walk{3, 1, 4}, Walk{5, 1, 2}, Walk{1, -1, 4}}) {
    EXPECT_EQ(DLGNextTabStop(items.data(), 5, walk.from, walk.direction), walk.expected)
        << "from " << walk.from << ", direction " << walk.direction;
  }
  items[1].flags = items[5].flags = kStop;
  EXPECT_EQ(DLGNextTabStop(items.data(), 5, 1, -1), 5) << "from the first to the last";
  EXPECT_EQ(DLGNextTabStop(items.data(), 5, 5, 1), 1) << "and back";
  items[1].flags = items[4].flags = items[5].flags = 0;
  EXPECT_EQ(DLGNextTabStop(items.data(), 5, 2, 1), 2) << "the only stop keeps the focus";
  items[2].flags = 0;
  EXPECT_EQ(DLGNextTabStop(items.data(), 5, 0, 1), 0) << "no stop at all";
}

}  // namespace
