#include "Host/ClassView/ClassLoader.h"

#include <QMetaObject>
#include <utility>

namespace host {

ClassLoader::ClassLoader(QObject* parent) : QObject(parent) {}

ClassLoader::~ClassLoader() {
  if (m_thread.joinable()) m_thread.join();
}

bool ClassLoader::Load(const QString& path, Done done) {
  if (m_loading) return false;
  m_loading = true;
  m_done = std::move(done);
  m_thread = std::thread([this, path] {
    const ReadResult result = ReadClass(path);
    // Posted, so a destroyed loader drops it.
    QMetaObject::invokeMethod(
        this, [this, result] { Finish(result); }, Qt::QueuedConnection);
  });
  return true;
}

void ClassLoader::Finish(const ReadResult& result) {
  m_thread.join();
  m_loading = false;
  const Done done = std::exchange(m_done, nullptr);
  done(result);
}

}  // namespace host
