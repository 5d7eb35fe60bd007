#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();  // needs no display
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
