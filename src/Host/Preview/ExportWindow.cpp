#include "Host/Preview/ExportWindow.h"

#include <QEvent>

namespace host {

ExportWindow::ExportWindow(QWidget* parent, std::shared_ptr<const OpenClass> /*openClass*/,
                           const ExportStart& /*start*/, Handlers /*handlers*/)
    : QWidget(parent, Qt::Window) {
  setObjectName(QStringLiteral("exportWindow"));
  setAttribute(Qt::WA_DeleteOnClose);
}

void ExportWindow::SetClass(std::shared_ptr<const OpenClass> /*openClass*/) {}

void ExportWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void ExportWindow::Retranslate() {}

}  // namespace host
