// What the tests of the host share.
#ifndef GRADIX_HOSTFIXTURE_H
#define GRADIX_HOSTFIXTURE_H

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <cstring>
#include <functional>
#include <string>

#include "Host/App/Language.h"
#include "Host/Export/FilterModule.h"
#include "tests/host/fake_filter.h"
#include "tests/support/Gestures.h"

inline const QString kFakeFilter = QStringLiteral(FILTERS "/fake_filter.so");

inline void WriteFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
  ASSERT_EQ(file.write(bytes), bytes.size());
}

inline QByteArray ReadFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The options dialog: as the filter has it, a window of its own.
inline QPointer<QDialog> gDialog;

inline void ShowDialog() {
  gDialog = new QDialog;
  gDialog->setAttribute(Qt::WA_DeleteOnClose);
  gDialog->show();
}

// The visible window of that name, or null.
inline QWidget* FindWindow(const char* name) {
  return gestures::FindWindow(
      [name](const QWidget& window) { return window.objectName() == QLatin1String(name); });
}

inline void ClickButton(QWidget* window, const char* text) {
  gestures::PressTitled(window, QString::fromUtf8(text));
}

// Every test begins with empty settings, in English, and with a filter that has been asked for nothing.
class HostTest : public testing::Test {
 protected:
  explicit HostTest(const char* module = FILTERS "/fake_filter.so")
      : m_filter(host::FilterModule::Load(QString::fromUtf8(module), nullptr)) {
    QSettings().clear();
    qputenv("GXHOST_QT_DIALOGS", "1");
    qputenv("PATH", QFile::encodeName(m_folder.path()));  // without the desktop's opener
    host::SetCurrentLanguage(host::HostLanguage::kEnglish);
    void* const handle = ::dlopen(module, RTLD_NOW | RTLD_NOLOAD);
    m_fake = handle != nullptr ? static_cast<FakeFilter*>(::dlsym(handle, "gFake")) : nullptr;
    if (m_fake != nullptr) *m_fake = {.showDialog = ShowDialog};
  }
  ~HostTest() override { delete gDialog; }

  void SetUp() override {
    ASSERT_NE(m_filter, nullptr);
    ASSERT_NE(m_fake, nullptr);
    ASSERT_TRUE(m_folder.isValid());
  }

  QString PathOf(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }

  // Calls `act` with the window of that name as soon as it is visible, even inside a modal dialog's loop.
  static void WhenVisible(const char* name, std::function<void(QWidget*)> act, int tries = 200) {
    ASSERT_GT(tries, 0) << name << " did not come";
    QTimer::singleShot(10, qApp, [name, act, tries] {
      QWidget* const window = FindWindow(name);
      if (window != nullptr) {
        act(window);
      } else {
        WhenVisible(name, act, tries - 1);
      }
    });
  }

  // Types the path into the file chooser when it shows, and presses Save.
  static void SaveAs(const QString& path) {
    WhenVisible("saveChooser", [path](QWidget* window) {
      window->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
      ClickButton(window, "Save");
    });
  }

  // The same for a path that is refused, with a message that has that part; the chooser stays. Then gives up.
  static void SaveAsRefused(const QString& path, const char* part) {
    SaveAs(path);
    WhenVisible("message", [part](QWidget* message) {
      EXPECT_TRUE(static_cast<QMessageBox*>(message)->text().contains(QString::fromUtf8(part)))
          << static_cast<QMessageBox*>(message)->text().toStdString();
      QWidget* const chooser = FindWindow("saveChooser");
      EXPECT_NE(chooser, nullptr);
      WhenVisible("saveChooser", [](QWidget* window) { ClickButton(window, "Cancel"); });
      ClickButton(message, "OK");
    });
  }

  // Presses OK as the filter's dialog does: asks for the file. Gives the path of the buffer of `size` bytes.
  std::string AskForFile(int32_t size = QZFILTER_PATH_SIZE) {
    std::string buffer(static_cast<size_t>(size), '#');
    const int32_t status = m_fake->begin.chooseFile(reinterpret_cast<void*>(gDialog->winId()), 0,
                                                    buffer.data(), size, m_fake->begin.chooseFileValue);
    if (status != 0) return "status " + std::to_string(status);
    buffer.resize(std::strlen(buffer.c_str()));
    return buffer;
  }

  std::unique_ptr<host::FilterModule> m_filter;
  FakeFilter* m_fake;
  QTemporaryDir m_folder;
};

#endif  // GRADIX_HOSTFIXTURE_H
