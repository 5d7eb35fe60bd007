// Reads downloaded gradebooks away from the main thread.
#ifndef GRADIX_GRADEBOOKLOADER_H
#define GRADIX_GRADEBOOKLOADER_H

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "Host/App/FileKind.h"
#include "Systems/Download.h"
#include "Systems/LearningSystem.h"

namespace host {

struct GradebookRead {
  QString path = {};                                // absolute
  const LearningSystem* system = nullptr;           // whose gradebook it had to be; null: any
  std::shared_ptr<const Gradebook> gradebook = {};  // null after a fault
  TableFault fault = {};
  const LearningSystem* other = nullptr;  // after a fault: whose gradebook it is
  FileKind kind = FileKind::kDownload;    // after a fault: what it seems to be
};

// Main thread only. Its destruction waits for the read under way, whose result is dropped.
class GradebookLoader : public QObject {
 public:
  using Done = std::function<void(const GradebookRead& read)>;

  // `done` is called in the main thread.
  GradebookLoader(QObject* parent, Done done);
  ~GradebookLoader() override;

  // Starts reading and returns. The result of a read under way is dropped.
  void Load(const QString& path, const LearningSystem* system);

 protected:
  void customEvent(QEvent* event) override;  // the read has ended

 private:
  void Start(const GradebookRead& wanted);

  Done m_done;
  std::thread m_thread;
  GradebookRead m_read;                 // the thread's while it runs
  std::optional<GradebookRead> m_next;  // to be read when the thread has ended
};

}  // namespace host

#endif  // GRADIX_GRADEBOOKLOADER_H
