// Notices that the open class file has changed on disk.
#ifndef GRADIX_CLASSWATCHER_H
#define GRADIX_CLASSWATCHER_H

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>

namespace host {

// A file that is replaced by another of the same name, as programs save, counts as changed; one that was
// written again with the same bytes does not.
class ClassWatcher : public QObject {
 public:
  enum class Change { kNone, kChanged, kGone };

  // `changed` is called once for each change, when the file has been quiet for a moment.
  ClassWatcher(QObject* parent, std::function<void(Change change)> changed);

  // Watches this file, as it is now, and no other.
  void Watch(const QString& path);

  // Whether the file is still as it was when the watch began; looks at the disk.
  Change Look() const;
};

}  // namespace host

#endif  // GRADIX_CLASSWATCHER_H
