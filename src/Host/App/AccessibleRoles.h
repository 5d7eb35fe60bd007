// What plain widgets are to assistive technology.
#ifndef GRADIX_ACCESSIBLEROLES_H
#define GRADIX_ACCESSIBLEROLES_H

#include <QAccessible>

class QWidget;

namespace host {

// Has every window be told as a window; Qt tells a QWidget that is one as a pane. To be called once, before
// the first window is shown.
void InstallAccessibleRoles();

// The role of a widget that draws itself, or that Qt tells as nothing in particular; to be set before it is
// shown.
void SetAccessibleRole(QWidget* widget, QAccessible::Role role);

}  // namespace host

#endif  // GRADIX_ACCESSIBLEROLES_H
