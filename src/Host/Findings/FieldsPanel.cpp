#include "Host/Findings/FieldsPanel.h"

#include <QEvent>

namespace host {

FieldsPanel::FieldsPanel(QWidget* parent, Handlers /*handlers*/) : QWidget(parent) {}

void FieldsPanel::Show(std::shared_ptr<const OpenClass> /*openClass*/, const FormatRow& /*format*/,
                       qz::UserIDField /*chosen*/) {}

void FieldsPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void FieldsPanel::Retranslate() {}

}  // namespace host
