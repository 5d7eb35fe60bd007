#include "Host/App/AccessibleRoles.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace host {

namespace {

constexpr const char* kRole = "accessibleRole";

QAccessibleInterface* _MakeInterface(const QString& className, QObject* object) {
  auto* const widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr) return nullptr;
  const QVariant role = widget->property(kRole);
  if (role.isValid()) return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
  const bool isPlainWindow = className == QLatin1String("QWidget") && widget->isWindow();
  return isPlainWindow ? new QAccessibleWidget(widget, QAccessible::Window) : nullptr;
}

}  // namespace

void InstallAccessibleRoles() {
  QAccessible::installFactory(_MakeInterface);
}

void SetAccessibleRole(QWidget* widget, QAccessible::Role role) {
  widget->setProperty(kRole, static_cast<int>(role));
}

}  // namespace host
