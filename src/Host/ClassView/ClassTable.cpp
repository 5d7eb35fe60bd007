#include "Host/ClassView/ClassTable.h"

#include <QEvent>

namespace host {

ClassTable::ClassTable(QWidget* parent, std::function<void(int)> /*selected*/) : QWidget(parent) {}

void ClassTable::SetClass(std::shared_ptr<const OpenClass> /*openClass*/) {}

void ClassTable::SetIdentifier(qz::UserIDField /*field*/) {}

void ClassTable::SetMarks(ProblemMarks /*marks*/) {}

void ClassTable::SelectAssignment(int /*assignment*/) {}

void ClassTable::SelectPlaces(const std::vector<FindingPlace>& /*places*/) {}

void ClassTable::Find() {}

void ClassTable::SortByCurrentColumn() {}

void ClassTable::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void ClassTable::Retranslate() {}

}  // namespace host
