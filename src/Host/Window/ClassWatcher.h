// Notices that the open class file has changed on disk.
#ifndef GRADIX_CLASSWATCHER_H
#define GRADIX_CLASSWATCHER_H

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>

#include "Host/App/FileStamp.h"

namespace host {

// A file that is replaced by another of the same name, as programs save, counts as changed; one that was
// written again with the same bytes does not.
class ClassWatcher : public QObject {
 public:
  enum class Change { kNone, kChanged, kGone };

  // `changed` is called once for each change, when the file has been quiet for a moment; with kNone when it
  // is again as it was.
  ClassWatcher(QObject* parent, std::function<void(Change change)> changed);

  // Watches this file, that was read when it was like `read`, and no other. No file when the path is empty.
  void Watch(const QString& path, const FileStamp& read);

  // Whether the file is still as it was when it was read; looks at the disk.
  Change Look();

 private:
  void AddPaths();
  void Check();

  std::function<void(Change change)> m_changed;
  QString m_path;
  FileStamp m_read;
  Change m_told = Change::kNone;
  FileStamp m_toldOf;
  QFileSystemWatcher m_watcher;
  QTimer m_moment;
};

}  // namespace host

#endif  // GRADIX_CLASSWATCHER_H
