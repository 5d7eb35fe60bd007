#include "Host/Fill/FillWorkPage.h"

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "Host/App/Messages.h"
#include "Host/App/Numbers.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Fill/FillCellsPage.h"
#include "Host/Fill/FillChoicesPanel.h"
#include "Host/Fill/FillTexts.h"
#include "Host/Fill/UnmatchedPage.h"
#include "Host/Findings/ConsequenceIcon.h"
#include "Host/Findings/FindingsView.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

size_t _CountFound(const std::vector<size_t>& others) {
  return static_cast<size_t>(
      std::ranges::count_if(others, [](size_t other) { return other != GradebookMatch::kNone; }));
}

// The findings of the worst consequence, in a word.
QString _WorstText(const Findings& findings) {
  const Consequence worst = findings.front().consequence;
  const auto count = static_cast<size_t>(std::ranges::count(findings, worst, &Finding::consequence));
  switch (worst) {
    case Consequence::kRefused: return Texts::tr("%1 refused").arg(CountText(count));
    case Consequence::kWrong: return Texts::tr("%1 wrong").arg(CountText(count));
    case Consequence::kLost: return Texts::tr("%1 lost").arg(CountText(count));
    case Consequence::kChanged: return Texts::tr("%1 altered").arg(CountText(count));
    case Consequence::kNote: return Texts::tr("%n note(s)", nullptr, static_cast<int>(count));
  }
  return {};
}

}  // namespace

FillWorkPage::FillWorkPage(QWidget* parent, Handlers handlers)
    : QWidget(parent),
      m_handlers(std::move(handlers)),
      m_recognised(new QLabel(this)),
      m_another(new QPushButton(this)),
      m_choices(new FillChoicesPanel(this, [this] { Plan(); })),
      m_tabs(new QTabWidget(this)) {
  m_recognised->setObjectName(QStringLiteral("recognised"));
  m_recognised->setTextFormat(Qt::PlainText);
  m_recognised->setWordWrap(true);
  m_another->setObjectName(QStringLiteral("chooseAnother"));
  connect(m_another, &QPushButton::clicked, this, [this] { m_handlers.chooseAnother(); });
  AddTabs();
  auto* const top = new QHBoxLayout;
  top->addWidget(m_recognised, 1);
  top->addWidget(m_another, 0, Qt::AlignTop);
  auto* const splitter = new QSplitter(this);
  splitter->addWidget(m_choices);
  splitter->addWidget(m_tabs);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addLayout(top);
  layout->addWidget(splitter, 1);
}

void FillWorkPage::AddTabs() {
  m_tabs->setObjectName(QStringLiteral("fillPages"));
  m_cells =
      new FillCellsPage(m_tabs, [this](const FindingPlace& place) { m_handlers.placesChosen({place}); });
  JoinPanel::Handlers students{[this](size_t student, size_t member) {
                                 m_draft.JoinStudent(student, member);
                                 Plan();
                               },
                               [this](size_t student) {
                                 m_draft.PartStudent(student);
                                 Plan();
                               }};
  JoinPanel::Handlers assignments{[this](size_t i, size_t column) { JoinAssignment(i, column); },
                                  [this](size_t i) {
                                    m_draft.PartAssignment(i);
                                    Plan();
                                  }};
  m_unmatched = new UnmatchedPage(m_tabs, std::move(students), std::move(assignments));
  auto* const findings = new QWidget(m_tabs);
  m_findings = new FindingsView(findings, m_handlers.placesChosen);
  (new QVBoxLayout(findings))->addWidget(m_findings);
  for (QWidget* page : std::initializer_list<QWidget*>{m_cells, m_unmatched, findings})
    m_tabs->addTab(page, {});
}

void FillWorkPage::SetClass(std::shared_ptr<const OpenClass> openClass) {
  m_cells->Show(nullptr);
  m_draft.SetClass(openClass);
  m_choices->SetClass(std::move(openClass));
  if (!HasGradebook()) return;
  m_choices->Propose(m_draft, m_draft.Identifier());
  Plan();
}

void FillWorkPage::SetGradebook(std::shared_ptr<const Gradebook> gradebook, const QString& path,
                                qz::UserIDField wanted) {
  m_cells->Show(nullptr);
  m_path = path;
  m_draft.SetGradebook(std::move(gradebook));
  m_choices->Propose(m_draft, wanted);
  Plan();
}

void FillWorkPage::Plan() {
  if (!HasGradebook()) return;
  m_cells->Show(nullptr);
  m_draft.SetIdentifier(m_choices->Identifier());
  m_draft.SetOptions(m_choices->Options());
  m_draft.SetAssignments(m_choices->Assignments());
  m_draft.MakePlan();
  ShowPlan();
  m_handlers.planned();
}

void FillWorkPage::JoinAssignment(size_t assignment, size_t column) {
  const QString title = AssignmentTitle(m_draft.Plan(), assignment);
  m_draft.JoinAssignment(assignment, column);
  Plan();
  const std::optional<ChosenTitleFault::Kind> fault = m_draft.TakeTitleFault();
  if (!fault) return;
  ShowMessage(this, Texts::tr("“%1” cannot be joined with this column.").arg(title), TitleFaultText(*fault));
}

void FillWorkPage::ShowPlan() {
  const FillPlan& plan = m_draft.Plan();
  m_cells->Show(&plan);
  m_unmatched->Show(plan);
  m_findings->Show(plan.findings, m_draft.Subject());
  m_another->setText(Texts::tr("Choose Another &Download…"));
  ShowRecognised();
  ShowTabTitles();
}

// "Canvas gradebook “grades.csv”: 9 students and 2 columns. Of the class, 8 of 8 students and 2 of 2
// assignments were found in it, by SIS User ID."
void FillWorkPage::ShowRecognised() {
  const FillPlan& plan = m_draft.Plan();
  const Gradebook& gradebook = *plan.gradebook;
  const auto columns =
      static_cast<size_t>(std::ranges::count(gradebook.columns, ColumnRole::kItem, &DownloadColumn::role));
  QString text = Texts::tr("%1 gradebook “%2”. Students: %3, columns to fill: %4.")
                     .arg(QString::fromUtf8(gradebook.system->name), QFileInfo(m_path).fileName(),
                          CountText(gradebook.members.size()), CountText(columns));
  const GradebookMatch& match = plan.match;
  text += u'\n' + Texts::tr("Found of the class: %1 of %2 students, %3 of %4 assignments.")
                      .arg(CountText(_CountFound(match.memberOf)), CountText(match.memberOf.size()),
                           CountText(_CountFound(match.columnOf)), CountText(match.columnOf.size()));
  if (match.identifierColumn != GradebookMatch::kNone) {
    text += u' ' + Texts::tr("The identifier is in “%1”.").arg(ColumnText(gradebook, match.identifierColumn));
  }
  m_recognised->setText(text);
  m_recognised->setToolTip(m_path);
}

void FillWorkPage::ShowTabTitles() {
  const FillPlan& plan = m_draft.Plan();
  const size_t unmatched = plan.unmatchedStudents.size() + plan.unmatchedMembers.size() +
                           plan.unmatchedAssignments.size() + plan.unmatchedColumns.size();
  m_tabs->setTabText(0, Texts::tr("&Results (%1)").arg(CountText(plan.cells.size())));
  m_tabs->setTabText(1, Texts::tr("Not &matched (%1)").arg(CountText(unmatched)));
  if (plan.findings.empty()) {
    m_tabs->setTabText(2, Texts::tr("F&indings"));
    m_tabs->setTabIcon(2, {});
    return;
  }
  m_tabs->setTabText(2, Texts::tr("F&indings (%1)").arg(_WorstText(plan.findings)));
  m_tabs->setTabIcon(2, ConsequenceIcon(plan.findings.front().consequence));
}

void FillWorkPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::LanguageChange) return;
  m_cells->Retranslate();
  if (HasGradebook()) ShowPlan();
}

}  // namespace host
