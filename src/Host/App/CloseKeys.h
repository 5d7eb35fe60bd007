// The keys that close a window.
#ifndef GRADIX_CLOSEKEYS_H
#define GRADIX_CLOSEKEYS_H

class QWidget;

namespace host {

// Escape and the desktop's own key close the window.
void CloseByKeys(QWidget* window);

}  // namespace host

#endif  // GRADIX_CLOSEKEYS_H
