#include "Export/Fill.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>

#include "Export/FillCheck.h"
#include "Systems/LearningSystem.h"

namespace {

bool _IsIdentity(ColumnRole role) {
  return role == ColumnRole::kIdentifier || role == ColumnRole::kName || role == ColumnRole::kIdentity;
}

class FillPlanner {
 public:
  FillPlanner(const ExportSubject& subject, const Gradebook& gradebook, const FillChoices& choices)
      : m_subject(subject), m_gradebook(gradebook), m_choices(choices) {
    m_plan.subject = &subject;
    m_plan.gradebook = &gradebook;
    m_plan.match = MatchGradebook(subject, gradebook, choices);
  }

  FillPlan Plan() {
    ChooseNewColumns();
    ListColumns();
    PlanCells();
    ListUnmatched();
    m_plan.differentPoints = DifferentPoints(m_subject, m_gradebook, m_plan.match);
    m_plan.findings = CheckFill(m_plan);
    return std::move(m_plan);
  }

 private:
  // Those with a title of their own: none of the gradebook's headings, and no other of our assignments'.
  void ChooseNewColumns() {
    if (!m_choices.newColumns || m_gradebook.system->download->newTitle == nullptr) return;
    std::map<std::string, size_t> owners;
    for (size_t column = 0; column < m_gradebook.columns.size(); ++column) {
      ++owners[ComparableText(m_gradebook.columns[column].title)];
      ++owners[ComparableText(m_gradebook.Heading(column))];
    }
    std::vector<std::string> titles;
    for (const std::string& title : m_subject.titles) {
      titles.push_back(ComparableText(AsEncoded(title)));
      ++owners[titles.back()];
    }
    for (size_t i = 0; i < m_subject.assignments.size(); ++i) {
      const std::string& title = titles[i];
      const bool isFree = m_plan.match.titles[i] == TitleMatch::kNoColumn && owners[title] == 1;
      if (isFree && !title.empty()) m_plan.newColumns.push_back(i);
    }
  }

  // A title as the gradebook's encoding holds it: with "?" for what it lacks.
  std::string AsEncoded(const std::string& title) const {
    const TextEncoding encoding = m_gradebook.table.style.encoding;
    return DecodeText(EncodeText(title, encoding), encoding).value_or(title);
  }

  // New columns come behind the others, but for the one that has to stay the last.
  void ListColumns() {
    const size_t count = m_gradebook.columns.size();
    for (size_t column = 0; column < count; ++column) {
      const size_t assignment = m_plan.match.assignmentOf[column];
      if (assignment == GradebookMatch::kNone && !_IsIdentity(m_gradebook.columns[column].role)) continue;
      m_plan.columns.push_back({column, assignment});
    }
    const char* last = m_gradebook.system->download->lastHeading;
    const bool hasEnd = last != nullptr && m_gradebook.FindHeading(last) + 1 == count;
    const auto end = m_plan.columns.end() - (hasEnd ? 1 : 0);
    std::vector<FillColumn> added;
    for (const size_t assignment : m_plan.newColumns) added.push_back({GradebookMatch::kNone, assignment});
    m_plan.columns.insert(end, added.begin(), added.end());
  }

  void PlanCells() {
    for (size_t member = 0; member < m_gradebook.members.size(); ++member) {
      const size_t student = m_plan.match.studentOf[member];
      if (student == GradebookMatch::kNone) continue;
      for (const FillColumn& column : m_plan.columns) {
        if (column.assignment != GradebookMatch::kNone)
          PlanCell(m_gradebook.members[member].row, student, column);
      }
    }
  }

  void PlanCell(size_t row, size_t student, const FillColumn& column) {
    const std::optional<double> score = m_subject.scores.Find(student, column.assignment);
    const bool isNew = column.column == GradebookMatch::kNone;
    const bool isEmpty = isNew || !m_gradebook.HasScore(row, column.column);
    if (!score && isEmpty) return;
    FillCell cell{FillKind::kKept, student, column.assignment,
                  isNew ? "" : std::string(m_gradebook.table.Text(row, column.column)), ""};
    if (score) cell.kind = Judge(row, column.column, isEmpty, *score);
    const bool isNewText = IsChange(cell.kind);
    cell.newText = isNewText ? m_gradebook.ScoreText(*score) : cell.oldText;
    m_plan.cells.push_back(std::move(cell));
  }

  FillKind Judge(size_t row, size_t column, bool isEmpty, double score) const {
    if (!std::isfinite(score)) return FillKind::kNoNumber;
    if (isEmpty) return FillKind::kFilled;
    if (IsSameScore(m_gradebook, row, column, score)) return FillKind::kSame;
    return m_choices.onlyEmpty ? FillKind::kKept : FillKind::kChanged;
  }

  void ListUnmatched() {
    const GradebookMatch& match = m_plan.match;
    for (const size_t student : m_subject.students) {
      const bool hasResult = !m_subject.scores.ScoresOf(student).empty();
      if (hasResult && match.memberOf[student] == GradebookMatch::kNone)
        m_plan.unmatchedStudents.push_back(student);
    }
    for (size_t member = 0; member < match.studentOf.size(); ++member) {
      if (match.studentOf[member] == GradebookMatch::kNone) m_plan.unmatchedMembers.push_back(member);
    }
    for (size_t i = 0; i < match.columnOf.size(); ++i) {
      const bool isNew = std::ranges::binary_search(m_plan.newColumns, i);
      if (match.columnOf[i] == GradebookMatch::kNone && !isNew) m_plan.unmatchedAssignments.push_back(i);
    }
    for (size_t column = 0; column < m_gradebook.columns.size(); ++column) {
      const bool isItem = m_gradebook.columns[column].role == ColumnRole::kItem;
      if (isItem && match.assignmentOf[column] == GradebookMatch::kNone)
        m_plan.unmatchedColumns.push_back(column);
    }
  }

  const ExportSubject& m_subject;
  const Gradebook& m_gradebook;
  const FillChoices& m_choices;
  FillPlan m_plan;
};

}  // namespace

bool FillPlan::IsNothingMatched() const {
  return std::ranges::none_of(cells, [this](const FillCell& cell) {
    const bool isKeptOnDemand =
        cell.kind == FillKind::kKept && subject->scores.Find(cell.student, cell.assignment);
    return cell.IsWritten() || isKeptOnDemand;
  });
}

bool FillPlan::IsSomethingLeftOut() const {
  if (!unmatchedStudents.empty()) return true;
  std::vector<bool> hasResult(subject->assignments.size());
  for (const size_t student : subject->students) {
    for (const ScoreTable::Score& score : subject->scores.ScoresOf(student))
      hasResult[score.assignment] = true;
  }
  return std::ranges::any_of(unmatchedAssignments, [&hasResult](size_t i) { return hasResult[i]; }) ||
         std::ranges::any_of(cells, [](const FillCell& cell) { return cell.kind == FillKind::kNoNumber; });
}

FillPlan PlanFill(const ExportSubject& subject, const Gradebook& gradebook, const FillChoices& choices) {
  return FillPlanner(subject, gradebook, choices).Plan();
}
