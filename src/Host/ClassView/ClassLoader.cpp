#include "Host/ClassView/ClassLoader.h"

#include <QCoreApplication>
#include <QEvent>
#include <system_error>
#include <utility>

#include "Host/ClassView/WatchedFile.h"

namespace host {

ClassLoader::ClassLoader(QObject* parent) : QObject(parent) {
  constexpr int kProgressInterval = 50;  // milliseconds
  m_progressTimer.setInterval(kProgressInterval);
  connect(&m_progressTimer, &QTimer::timeout, this, [this] { TellProgress(); });
}

ClassLoader::~ClassLoader() {
  Cancel();
  if (m_thread.joinable()) m_thread.join();
}

bool ClassLoader::Load(const QString& path, Done done, Progress progress) {
  if (m_loading) return false;
  m_loading = true;
  m_done = std::move(done);
  m_progress = std::move(progress);
  m_watch = std::make_unique<ReadWatch>();
  // Posted, so a destroyed loader drops it.
  const auto tellEnd = [this] { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); };
  try {
    m_thread = std::thread([this, path, tellEnd] {
      m_result = ReadClass(path, m_watch.get());
      tellEnd();
    });
  } catch (const std::system_error&) {
    m_result.path = path;
    m_result.fault = {ClassFaultCode::kOutOfMemory, 0, 0, {}};
    tellEnd();
  }
  m_progressTimer.start();
  return true;
}

void ClassLoader::Cancel() {
  if (m_loading) m_watch->stop = true;
}

void ClassLoader::TellProgress() const {
  if (m_progress == nullptr || m_watch->stop) return;
  const qint64 read = m_watch->read;
  const qint64 size = m_watch->size;
  m_progress(read, read <= size ? size : -1);
}

void ClassLoader::customEvent(QEvent* /*event*/) {
  if (m_thread.joinable()) m_thread.join();
  m_progressTimer.stop();
  ReadResult result = std::exchange(m_result, {});
  // Whoever has cancelled wants no class, even if it came in time.
  if (m_watch->stop && !result.cancelled) {
    result = {.openClass = nullptr, .path = result.path, .fault = {}, .cancelled = true};
  }
  m_progress = nullptr;
  m_loading = false;
  const Done done = std::exchange(m_done, nullptr);
  done(result);
}

}  // namespace host
