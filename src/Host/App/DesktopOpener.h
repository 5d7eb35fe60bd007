// Opens files and folders in whatever the desktop has for them.
#ifndef GRADIX_DESKTOPOPENER_H
#define GRADIX_DESKTOPOPENER_H

#include <QString>
#include <functional>

namespace host {

// Returns at once. `failed` is called, perhaps before it returns, when nothing on the desktop takes the file.
void OpenOnDesktop(const QString& path, std::function<void()> failed);

}  // namespace host

#endif  // GRADIX_DESKTOPOPENER_H
