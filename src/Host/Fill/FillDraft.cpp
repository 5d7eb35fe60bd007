#include "Host/Fill/FillDraft.h"

#include <algorithm>

#include "Common/QZData/StudentFields.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

constexpr size_t kNone = GradebookMatch::kNone;

}  // namespace

void FillDraft::SetClass(std::shared_ptr<const OpenClass> openClass) {
  m_made.reset();
  m_class = std::move(openClass);
  m_assignments.clear();
}

void FillDraft::SetGradebook(std::shared_ptr<const Gradebook> gradebook) {
  m_made.reset();
  m_gradebook = std::move(gradebook);
  m_students.clear();
  m_titles.clear();
}

int32_t FillDraft::AssignmentID(size_t assignment) const {
  return m_class->record.assignments[m_made->subject.assignments[assignment]].id;
}

void FillDraft::JoinStudent(size_t student, size_t member) {
  PartStudent(student);
  std::erase_if(m_students, [member](const StudentJoin& other) { return other.member == member; });
  m_students.push_back(
      {student, m_class->record.students[student].id, m_class->Texts().StudentName(student), member});
}

void FillDraft::PartStudent(size_t student) {
  std::erase_if(m_students,
                [this, student](const StudentJoin& join) { return FindStudent(join) == student; });
}

void FillDraft::JoinAssignment(size_t assignment, size_t column) {
  PartAssignment(assignment);
  const std::string heading(m_gradebook->Heading(column));
  std::erase_if(m_titles, [&heading](const TitleJoin& other) { return other.heading == heading; });
  m_titles.push_back({AssignmentID(assignment), heading});
}

void FillDraft::PartAssignment(size_t assignment) {
  std::erase_if(m_titles, [id = AssignmentID(assignment)](const TitleJoin& other) { return other.id == id; });
}

std::optional<ChosenTitleFault::Kind> FillDraft::TakeTitleFault() {
  if (m_made->plan.match.titleFaults.empty()) return std::nullopt;
  const ChosenTitleFault fault = m_made->plan.match.titleFaults.front();
  const int32_t id = m_choices.titles[fault.choice].first;
  std::erase_if(m_titles, [id](const TitleJoin& join) { return join.id == id; });
  return fault.kind;
}

bool FillDraft::IsStudentOf(const StudentJoin& join, size_t student) const {
  return m_class->record.students[student].id == join.id &&
         m_class->Texts().StudentName(student) == join.name;
}

size_t FillDraft::FindStudent(const StudentJoin& join) const {
  const size_t count = m_class->record.students.size();
  if (join.position < count && IsStudentOf(join, join.position)) return join.position;
  size_t found = kNone;
  for (size_t i = 0; i < count; ++i) {
    if (!IsStudentOf(join, i)) continue;
    if (found != kNone) return kNone;  // nobody is guessed
    found = i;
  }
  return found;
}

FillChoices FillDraft::Choices() const {
  FillChoices choices;
  choices.onlyEmpty = m_options.onlyEmpty;
  choices.newColumns = m_options.newColumns;
  choices.matchNames = m_options.matchNames;
  for (const TitleJoin& join : m_titles) {
    const bool isChosen = std::ranges::any_of(m_assignments, [this, &join](size_t position) {
      return m_class->record.assignments[position].id == join.id;
    });
    if (isChosen) choices.titles.emplace_back(join.id, join.heading);
  }
  for (const StudentJoin& join : m_students) {
    const size_t student = FindStudent(join);
    if (student != kNone) choices.members.emplace_back(student, join.member);
  }
  return choices;
}

const FormatRow& FillDraft::Format() const {
  return *FindFormat(m_gradebook->system->formats.front().key);
}

void FillDraft::MakePlan() {
  auto made = std::make_unique<Made>(
      Made{MakeExportSubject(Format(), m_class->Texts(), m_identifier, Dialect::kFilled, m_assignments), {}});
  m_choices = Choices();
  made->plan = PlanFill(made->subject, *m_gradebook, m_choices);
  m_made = std::move(made);
}

std::vector<FieldHits> FillDraft::HitsOfFields() const {
  std::vector<FieldHits> hits;
  ExportSubject subject = MakeExportSubject(Format(), m_class->Texts(), m_identifier, Dialect::kFilled, {});
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (!field.CanIdentify()) continue;
    subject.identifier = field.userIDField;
    const GradebookMatch match = MatchGradebook(subject, *m_gradebook, {});
    const auto found = std::ranges::count_if(match.memberOf, [](size_t member) { return member != kNone; });
    hits.push_back({field.userIDField, static_cast<size_t>(found)});
  }
  return hits;
}

}  // namespace host
