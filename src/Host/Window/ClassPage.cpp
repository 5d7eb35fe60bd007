#include "Host/Window/ClassPage.h"

#include <QDir>
#include <QEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "Host/App/Texts.h"
#include "Host/ClassView/AssignmentPanel.h"
#include "Host/ClassView/ClassTable.h"
#include "Host/Findings/FieldsPanel.h"
#include "Host/Findings/ReadinessPanel.h"

namespace host {

ClassPage::ClassPage(QWidget* parent, std::function<void()> changed)
    : QWidget(parent),
      m_changed(std::move(changed)),
      m_heading(new QLabel(this)),
      m_splitter(new QSplitter(this)),
      m_table(new ClassTable(m_splitter, [this](int assignment) { m_assignment->Select(assignment); })),
      m_panes(new QTabWidget(m_splitter)) {
  m_heading->setObjectName(QStringLiteral("classHeading"));
  m_heading->setTextFormat(Qt::PlainText);
  m_splitter->setObjectName(QStringLiteral("classSplitter"));
  m_panes->setObjectName(QStringLiteral("panes"));
  m_readiness = new ReadinessPanel(
      m_panes, {.changed = [this] { ShowReadiness(); },
                .placesChosen = [this](const std::vector<FindingPlace>& places) { SelectPlaces(places); }});
  m_fields = new FieldsPanel(
      m_panes, {.fieldChosen = [this](qz::UserIDField field) { m_readiness->ChooseIdentifier(field); },
                .placesChosen = [this](const std::vector<FindingPlace>& places) { SelectPlaces(places); }});
  m_assignment = new AssignmentPanel(m_panes, [this](int assignment) {
    if (m_class == nullptr) return;
    if (!m_isOpening) m_table->SelectAssignment(assignment);
    m_changed();
  });
  for (QWidget* const pane : {static_cast<QWidget*>(m_readiness), static_cast<QWidget*>(m_fields),
                              static_cast<QWidget*>(m_assignment)}) {
    m_panes->addTab(pane, QString());
  }
  m_splitter->setStretchFactor(0, 1);
  m_splitter->setStretchFactor(1, 0);
  m_splitter->setSizes({630, 370});  // as parts of the width, at first
  m_splitter->setChildrenCollapsible(false);
  auto* const layout = new QVBoxLayout(this);
  const int margin = fontMetrics().height() / 2;
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->addWidget(m_heading);
  layout->addWidget(m_splitter, 1);
}

void ClassPage::SetClass(std::shared_ptr<const OpenClass> openClass, bool keepsSelection) {
  // A class begins at its left edge, with nothing selected.
  const QScopedValueRollback<bool> opening(m_isOpening, !keepsSelection);
  const int selected = keepsSelection ? SelectedAssignment() : -1;
  m_class = std::move(openClass);
  m_table->SetClass(m_class);
  m_assignment->SetClass(m_class);
  m_readiness->SetClass(m_class);
  m_assignment->Select(selected);
  Retranslate();
}

int ClassPage::SelectedAssignment() const {
  return m_assignment->Selected();
}

const FormatRow& ClassPage::Format() const {
  return m_readiness->Format();
}

qz::UserIDField ClassPage::Identifier() const {
  return m_readiness->Identifier();
}

void ClassPage::ChooseFormat(const FormatRow& format) {
  m_readiness->ChooseFormat(format);
}

void ClassPage::SelectPlaces(const std::vector<FindingPlace>& places) {
  const auto named = std::ranges::find_if(
      places, [](const FindingPlace& place) { return place.assignment != FindingPlace::kNone; });
  if (named != places.end()) m_assignment->Select(static_cast<int>(named->assignment));
  m_table->SelectPlaces(places);
}

void ClassPage::ShowPane(Pane pane) {
  m_panes->setCurrentIndex(static_cast<int>(pane));
  m_panes->currentWidget()->setFocus(Qt::ShortcutFocusReason);
}

QByteArray ClassPage::SplitterState() const {
  return m_splitter->saveState();
}

void ClassPage::RestoreSplitter(const QByteArray& state) {
  m_splitter->restoreState(state);
}

void ClassPage::ShowReadiness() {
  if (m_class == nullptr) return;
  m_table->SetIdentifier(m_readiness->Identifier());
  m_table->SetMarks(m_readiness->Marks());
  m_fields->Show(m_class, m_readiness->Format(), m_readiness->Identifier());
  m_changed();
}

void ClassPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void ClassPage::Retranslate() {
  m_panes->setTabText(static_cast<int>(Pane::kReadiness), Texts::tr("&Readiness"));
  m_panes->setTabText(static_cast<int>(Pane::kFields), Texts::tr("&Id Fields"));
  m_panes->setTabText(static_cast<int>(Pane::kAssignment), Texts::tr("Assi&gnment"));
  if (m_class == nullptr) return;
  const auto students = static_cast<int>(m_class->record.students.size());
  const auto assignments = static_cast<int>(m_class->record.assignments.size());
  m_heading->setText(Texts::tr("%1: %2, %3")
                         .arg(m_class->name, Texts::tr("%n student(s)", nullptr, students),
                              Texts::tr("%n assignment(s)", nullptr, assignments)));
  m_heading->setToolTip(QDir::toNativeSeparators(m_class->path));
}

}  // namespace host
