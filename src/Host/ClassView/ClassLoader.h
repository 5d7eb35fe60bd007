// Reads class files away from the main thread, one at a time.
#ifndef GRADIX_CLASSLOADER_H
#define GRADIX_CLASSLOADER_H

#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>
#include <thread>

#include "Host/ClassView/ClassReader.h"

namespace host {

// Main thread only. Its destruction ends the read under way, whose result is dropped.
class ClassLoader : public QObject {
 public:
  using Done = std::function<void(const ReadResult&)>;
  // Bytes; the size is -1 while it is not known: of a pipe, of a file that grows.
  using Progress = std::function<void(qint64 read, qint64 size)>;

  explicit ClassLoader(QObject* parent);
  ~ClassLoader() override;

  // Starts reading and returns; `done` is called once, and `progress` now and then before it, both in the
  // main thread. False while a read is under way.
  bool Load(const QString& path, Done done, Progress progress = nullptr);
  bool IsLoading() const { return m_loading; }

  // Ends the read under way soon; its result says that it was cancelled. Does nothing when there is none.
  void Cancel();

 protected:
  void customEvent(QEvent* event) override;  // the read has ended

 private:
  void TellProgress() const;

  std::thread m_thread;
  std::unique_ptr<ReadWatch> m_watch;
  ReadResult m_result;  // the thread's while it runs
  bool m_loading = false;
  Done m_done;
  Progress m_progress;
  QTimer m_progressTimer;
};

}  // namespace host

#endif  // GRADIX_CLASSLOADER_H
