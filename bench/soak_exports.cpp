// Many exports through the module, as a host makes them, and what they leave behind: windows, and memory that
// is in use afterwards. A tenth of them warms the caches up; growth is that of the others. Fails when an
// export fails, when a window stays, or when an export leaves more than the bound.
//
//   soak_exports [EXPORTS [MOST_BYTES_PER_EXPORT]]
#include <dlfcn.h>

#include <QAbstractButton>
#include <QApplication>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include "bench/ClassGenerator.h"
#include "gradix/QZFilter.h"
#include "tests/filter/AlertAnswerer.h"

#ifdef __has_feature  // clang
#if __has_feature(address_sanitizer) && !defined __SANITIZE_ADDRESS__
#define __SANITIZE_ADDRESS__ 1
#endif
#endif
#ifdef __SANITIZE_ADDRESS__
extern "C" size_t __sanitizer_get_current_allocated_bytes();  // its header does not come with every compiler
#else
#include <malloc.h>
#endif

namespace {

constexpr uint32_t kDetailed = 3;  // the format with options of its own
constexpr int kOK = 11;            // the items of the OK buttons
constexpr int kReportOK = 16;

// But for Qt's cache of pictures, which has a limit of its own; see message_boxes.cpp.
int64_t _BytesInUse() {
  QPixmapCache::clear();
#ifdef __SANITIZE_ADDRESS__
  return static_cast<int64_t>(__sanitizer_get_current_allocated_bytes());
#else
  return static_cast<int64_t>(mallinfo2().uordblks);
#endif
}

// The host's file chooser: answers the path that `value` points to.
int32_t _ChooseFile(void*, int32_t, char* path, int32_t size, uintptr_t value) {
  const auto& chosen = *reinterpret_cast<const std::string*>(value);
  std::memcpy(path, chosen.c_str(), std::min(chosen.size() + 1, static_cast<size_t>(size)));
  return 0;
}

void _RunEvents() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

// In a visible window, the button that is its item of that number.
QAbstractButton* _FindButton(int item) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* const button = window->findChild<QAbstractButton*>(QStringLiteral("item%1").arg(item));
    if (window->isVisible() && button != nullptr) return button;
  }
  throw std::runtime_error("no dialog appeared");
}

class Module {
 public:
  explicit Module(const char* path) : m_handle(dlopen(path, RTLD_NOW | RTLD_LOCAL)) {
    if (m_handle == nullptr) throw std::runtime_error(dlerror());
    Find<decltype(DllMain)>("DllMain")(m_handle, QZFILTER_ATTACH, nullptr);
  }

  uint32_t CountFormats() const {
    return Find<decltype(QZFilter_GetNumExportFormatsA)>("QZFilter_GetNumExportFormatsA")();
  }

  // One export: its dialog, a press on OK, the message, and the file.
  void Export(uint32_t format, const std::string& classFile, const std::string& output) const {
    std::filesystem::remove(output);
    QZEXPORTBEGIN begin{};
    begin.formatIndex = format;
    begin.chooseFile = _ChooseFile;
    begin.chooseFileValue = reinterpret_cast<uintptr_t>(&output);
    unsigned long session = 0;
    Find<decltype(QZFilter_ExportBeginA)>("QZFilter_ExportBeginA")(nullptr, &begin, &session);
    QZEXPORTFILE file{};
    file.assignmentID = 7;
    file.classFile = QZFilter_MakeFSRef(classFile.c_str());
    Find<decltype(QZFilter_ExportFileA)>("QZFilter_ExportFileA")(nullptr, session, &file, m_handle);
    _RunEvents();
    QAbstractButton* const button = _FindButton(format == kDetailed ? kReportOK : kOK);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, button->height() / 2));
    _RunEvents();
    if (!std::filesystem::exists(output)) throw std::runtime_error("an export wrote no file");
  }

 private:
  template <typename Function>
  Function* Find(const char* name) const {
    void* const symbol = dlsym(m_handle, name);
    if (symbol == nullptr) throw std::runtime_error(dlerror());
    return reinterpret_cast<Function*>(symbol);
  }

  void* m_handle;
};

// Bytes that each export left, after a tenth of them as a warm-up.
double _Soak(long exports) {
  const QTemporaryDir folder;
  const std::string classFile = folder.filePath("class.xml").toStdString();
  const std::string output = folder.filePath("export.csv").toStdString();
  std::ofstream(classFile) << ClassXml({"1", "2", "3"});
  const Module module(FILTER_MODULE);
  AlertAnswerer alerts;
  const long warmUp = exports / 10;
  int64_t before = _BytesInUse();
  for (long i = 0; i < exports; ++i) {
    if (i == warmUp) before = _BytesInUse();
    module.Export(static_cast<uint32_t>(i) % module.CountFormats(), classFile, output);
    if (alerts.Take().size() != 1) throw std::runtime_error("an export did not say one thing");
  }
  return static_cast<double>(_BytesInUse() - before) / static_cast<double>(exports - warmUp);
}

int _Run(long exports, double bound) {
  const double growth = _Soak(exports);
  const auto windows = static_cast<int>(QApplication::topLevelWidgets().size());
  std::printf("%ld exports; each of the last %ld left %.0f bytes (at most %.0f); %d windows are left\n",
              exports, exports - exports / 10, growth, bound, windows);
  constexpr int kMostWindows = 5;  // Qt keeps a few of its own, hidden
  return growth <= bound && windows <= kMostWindows ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  setenv("QT_LOGGING_RULES", "default.warning=false", 0);  // of what a platform without a display lacks
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  try {
    const long exports = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 1000;
    const double bound = argc > 2 ? std::strtod(argv[2], nullptr) : 1000;
    if (exports < 1) throw std::runtime_error("a number of exports is expected");
    return _Run(exports, bound);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "soak_exports: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
