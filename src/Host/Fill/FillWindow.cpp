#include "Host/Fill/FillWindow.h"

#include <QEvent>

namespace host {

FillWindow::FillWindow(QWidget* parent, std::shared_ptr<const OpenClass> /*openClass*/,
                       const LearningSystem* /*system*/, qz::UserIDField /*identifier*/,
                       Handlers /*handlers*/)
    : QWidget(parent, Qt::Window) {
  setObjectName(QStringLiteral("fillWindow"));
  setAttribute(Qt::WA_DeleteOnClose);
}

void FillWindow::SetClass(std::shared_ptr<const OpenClass> /*openClass*/) {}

void FillWindow::OpenGradebook(const QString& /*path*/) {}

void FillWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void FillWindow::Retranslate() {}

}  // namespace host
