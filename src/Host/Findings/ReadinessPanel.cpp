#include "Host/Findings/ReadinessPanel.h"

#include <QEvent>

#include "Systems/LearningSystem.h"

namespace host {

ReadinessPanel::ReadinessPanel(QWidget* parent, Handlers /*handlers*/) : QWidget(parent) {}

void ReadinessPanel::SetClass(std::shared_ptr<const OpenClass> /*openClass*/) {}

const FormatRow& ReadinessPanel::Format() const {
  return *FindFormat(LearningSystems().front()->formats.front().key);
}

qz::UserIDField ReadinessPanel::Identifier() const {
  return Format().defaultUserIDField;
}

Dialect ReadinessPanel::ChosenDialect() const {
  return Dialect::kClassic;
}

void ReadinessPanel::ChooseFormat(const FormatRow& /*format*/) {}

void ReadinessPanel::ChooseIdentifier(qz::UserIDField /*field*/) {}

ProblemMarks ReadinessPanel::Marks() const {
  return {};
}

void ReadinessPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void ReadinessPanel::Retranslate() {}

}  // namespace host
