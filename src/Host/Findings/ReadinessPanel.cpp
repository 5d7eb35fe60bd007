#include "Host/Findings/ReadinessPanel.h"

#include <QEvent>
#include <QScrollArea>
#include <QVBoxLayout>
#include <numeric>
#include <utility>

#include "Host/Findings/ExportPicker.h"
#include "Host/Findings/FindingMarks.h"
#include "Host/Findings/FindingsView.h"
#include "Systems/LearningSystem.h"

namespace host {

ReadinessPanel::ReadinessPanel(QWidget* parent, Handlers handlers)
    : QWidget(parent), m_handlers(std::move(handlers)) {
  setObjectName(QStringLiteral("readinessPanel"));
  auto* const scroll = new QScrollArea(this);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidgetResizable(true);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* const page = new QWidget(scroll);
  m_picker = new ExportPicker(page, [this] { Judge(); });
  m_findings = new FindingsView(
      page, [this](const std::vector<FindingPlace>& places) { m_handlers.placesChosen(places); });
  m_findings->setMinimumHeight(fontMetrics().height() * 9);
  auto* const pageLayout = new QVBoxLayout(page);
  pageLayout->addWidget(m_picker);
  pageLayout->addSpacing(fontMetrics().height() / 2);
  pageLayout->addWidget(m_findings, 1);
  scroll->setWidget(page);
  setFocusProxy(m_picker);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(scroll);
}

void ReadinessPanel::SetClass(std::shared_ptr<const OpenClass> openClass) {
  m_subject.reset();
  m_class = std::move(openClass);
  m_picker->SetClass(m_class);
  Judge();
}

const FormatRow& ReadinessPanel::Format() const {
  return m_picker->Format();
}

qz::UserIDField ReadinessPanel::Identifier() const {
  return m_picker->Identifier();
}

Dialect ReadinessPanel::ChosenDialect() const {
  return m_picker->ChosenDialect();
}

void ReadinessPanel::ChooseFormat(const FormatRow& format) {
  m_picker->ChooseFormat(format);
}

void ReadinessPanel::ChooseIdentifier(qz::UserIDField field) {
  m_picker->ChooseIdentifier(field);
}

ProblemMarks ReadinessPanel::Marks() const {
  return m_subject ? MarksOf(m_findings->Shown(), *m_subject) : ProblemMarks();
}

void ReadinessPanel::Judge() {
  if (m_class == nullptr) return;
  std::vector<size_t> all(m_class->record.assignments.size());
  std::iota(all.begin(), all.end(), size_t{0});
  m_subject = m_picker->Subject(std::move(all));
  m_findings->Show(CheckExport(*m_subject), *m_subject);
  m_handlers.changed();
}

void ReadinessPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Judge();
}

}  // namespace host
