#include "Toolkit/DLGRegister.h"

#include <gtest/gtest.h>

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

}  // namespace
