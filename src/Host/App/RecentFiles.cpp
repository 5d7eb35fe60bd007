#include "Host/App/RecentFiles.h"

#include <QSettings>

namespace host {

namespace {

constexpr const char* kFilesKey = "recent/files";

void _Store(const QStringList& files) {
  QSettings().setValue(QLatin1String(kFilesKey), files.mid(0, kMaxRecentFiles));
}

}  // namespace

QStringList RecentFiles() {
  return QSettings().value(QLatin1String(kFilesKey)).toStringList().mid(0, kMaxRecentFiles);
}

void AddRecentFile(const QString& path) {
  QStringList files = RecentFiles();
  files.removeAll(path);
  files.prepend(path);
  _Store(files);
}

void RemoveRecentFile(const QString& path) {
  QStringList files = RecentFiles();
  files.removeAll(path);
  _Store(files);
}

}  // namespace host
