// Reads class files away from the main thread, one at a time.
#ifndef GRADIX_CLASSLOADER_H
#define GRADIX_CLASSLOADER_H

#include <QObject>
#include <functional>
#include <thread>

#include "Host/ClassView/ClassReader.h"

namespace host {

// Main thread only. Its destruction waits for the read under way, whose result is dropped.
class ClassLoader : public QObject {
 public:
  using Done = std::function<void(const ReadResult&)>;

  explicit ClassLoader(QObject* parent);
  ~ClassLoader() override;

  // Starts reading and returns; `done` is called in the main thread. False while a read is under way.
  bool Load(const QString& path, Done done);
  bool IsLoading() const { return m_loading; }

 protected:
  void customEvent(QEvent* event) override;  // the read has ended

 private:
  std::thread m_thread;
  ReadResult m_result;  // the thread's while it runs
  bool m_loading = false;
  Done m_done;
};

}  // namespace host

#endif  // GRADIX_CLASSLOADER_H
