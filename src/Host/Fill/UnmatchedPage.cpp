#include "Host/Fill/UnmatchedPage.h"

#include <QVBoxLayout>
#include <utility>
#include <vector>

#include "Host/App/Texts.h"
#include "Host/Fill/FillTexts.h"

namespace host {

namespace {

std::vector<JoinEntry> _Students(const FillPlan& plan) {
  std::vector<JoinEntry> entries;
  for (size_t i = 0; i < plan.match.students.size(); ++i) {
    if (plan.match.students[i] != StudentMatch::kChosen) continue;
    const QString member = MemberText(*plan.gradebook, plan.match.memberOf[i]);
    entries.push_back({i, Texts::tr("%1 ↔ %2, joined by hand").arg(StudentText(plan, i), member), true});
  }
  for (const size_t i : plan.unmatchedStudents) {
    const QString reason = UnmatchedReason(plan.match.students[i]);
    entries.push_back({i, QStringLiteral("%1: %2").arg(StudentText(plan, i), reason)});
  }
  return entries;
}

std::vector<JoinEntry> _Assignments(const FillPlan& plan) {
  std::vector<JoinEntry> entries;
  for (size_t i = 0; i < plan.match.titles.size(); ++i) {
    if (plan.match.titles[i] != TitleMatch::kChosen) continue;
    const QString column = ColumnText(*plan.gradebook, plan.match.columnOf[i]);
    entries.push_back({i, Texts::tr("%1 ↔ %2, joined by hand").arg(AssignmentTitle(plan, i), column), true});
  }
  for (const size_t i : plan.unmatchedAssignments) {
    const QString reason = UnmatchedReason(plan.match.titles[i]);
    entries.push_back({i, QStringLiteral("%1: %2").arg(AssignmentTitle(plan, i), reason)});
  }
  return entries;
}

template <typename Describe>
std::vector<JoinEntry> _Theirs(const std::vector<size_t>& positions, Describe describe) {
  std::vector<JoinEntry> entries;
  entries.reserve(positions.size());
  for (const size_t position : positions) entries.push_back({position, describe(position)});
  return entries;
}

}  // namespace

UnmatchedPage::UnmatchedPage(QWidget* parent, JoinPanel::Handlers students, JoinPanel::Handlers assignments)
    : QWidget(parent),
      m_students(new JoinPanel(this, QStringLiteral("students"), std::move(students))),
      m_assignments(new JoinPanel(this, QStringLiteral("assignments"), std::move(assignments))) {
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(m_students, 3);
  layout->addWidget(m_assignments, 2);
}

void UnmatchedPage::Show(const FillPlan& plan) {
  const Gradebook& gradebook = *plan.gradebook;
  m_students->Show(
      _Students(plan),
      _Theirs(plan.unmatchedMembers, [&](size_t member) { return MemberText(gradebook, member); }),
      {Texts::tr("S&tudents with results, not found in the gradebook:"),
       Texts::tr("Students of the &gradebook, not in the class:"), Texts::tr("&Join"),
       Texts::tr("&Undo the Join")});
  m_assignments->Show(
      _Assignments(plan),
      _Theirs(plan.unmatchedColumns, [&](size_t column) { return ColumnText(gradebook, column); }),
      {Texts::tr("Assignments without a co&lumn:"), Texts::tr("Columns that get not&hing:"),
       Texts::tr("J&oin"), Texts::tr("Undo the Join")});
}

}  // namespace host
