#include "Host/ClassView/ClassLoader.h"

#include <QCoreApplication>
#include <QEvent>
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
    m_result = ReadClass(path);
    // Posted, so a destroyed loader drops it.
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
  });
  return true;
}

void ClassLoader::customEvent(QEvent* /*event*/) {
  m_thread.join();
  m_loading = false;
  const Done done = std::exchange(m_done, nullptr);
  done(std::exchange(m_result, {}));
}

}  // namespace host
