#include "Host/Window/ClassWatcher.h"

#include <QFileInfo>
#include <utility>

namespace host {

ClassWatcher::ClassWatcher(QObject* parent, std::function<void(Change)> changed)
    : QObject(parent), m_changed(std::move(changed)) {
  constexpr int kMoment = 250;  // milliseconds
  m_moment.setSingleShot(true);
  m_moment.setInterval(kMoment);
  connect(&m_moment, &QTimer::timeout, this, [this] { Check(); });
  connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] { m_moment.start(); });
  // Other files in the folder must not put it off for ever.
  connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] {
    if (!m_moment.isActive()) m_moment.start();
  });
}

void ClassWatcher::Watch(const QString& path, const FileStamp& read) {
  m_moment.stop();
  const QStringList watched = m_watcher.files() + m_watcher.directories();
  if (!watched.isEmpty()) m_watcher.removePaths(watched);
  m_path = path;
  m_read = read;
  m_told = Change::kNone;
  if (m_path.isEmpty()) return;
  AddPaths();
  m_moment.start();  // it may have changed since it was read
}

// Anew each time: what is watched is the file that had the name, not the one that has it now.
void ClassWatcher::AddPaths() {
  const QString folder = QFileInfo(m_path).absolutePath();
  if (!m_watcher.directories().contains(folder) && QFileInfo::exists(folder)) m_watcher.addPath(folder);
  if (m_watcher.files().contains(m_path)) m_watcher.removePath(m_path);
  if (QFileInfo::exists(m_path)) m_watcher.addPath(m_path);
}

void ClassWatcher::Check() {
  AddPaths();
  const Change change = Look();
  const FileStamp now = LookAtFile(m_path);
  if (change == m_told && (change != Change::kChanged || now.HasTimeAndSizeOf(m_toldOf))) return;
  m_told = change;
  m_toldOf = now;
  m_changed(change);
}

ClassWatcher::Change ClassWatcher::Look() {
  // What was no plain file, as a pipe, cannot be looked at again.
  if (m_path.isEmpty() || m_read.size < 0) return Change::kNone;
  const FileStamp now = LookAtFile(m_path);
  if (now.size < 0) return Change::kGone;
  if (now.HasTimeAndSizeOf(m_read)) return Change::kNone;
  if (now.size != m_read.size || HashContent(m_path) != m_read.content) return Change::kChanged;
  m_read.modified = now.modified;  // not to be read again
  return Change::kNone;
}

}  // namespace host
