#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

// The settings of the tests are in a folder of their own.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
  const QApplication application(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("Gradix"));
  QApplication::setApplicationName(QStringLiteral("host_tests"));
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
