// The class files opened last, remembered in the user's settings.
#ifndef GRADIX_RECENTFILES_H
#define GRADIX_RECENTFILES_H

#include <QStringList>

namespace host {

inline constexpr qsizetype kMaxRecentFiles = 8;

// Absolute paths, the latest first. A file may have gone since.
QStringList RecentFiles();
void AddRecentFile(const QString& path);
void RemoveRecentFile(const QString& path);

}  // namespace host

#endif  // GRADIX_RECENTFILES_H
