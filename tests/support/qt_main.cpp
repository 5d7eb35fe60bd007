// Runs a suite that needs windows. Its settings are in a folder of their own.
#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();  // while building, with no display
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
  const QApplication application(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("Gradix"));
  QApplication::setApplicationName(QStringLiteral("tests"));
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setDoubleClickInterval(0);  // within it, a popup ignores a release
  return RUN_ALL_TESTS();
}
