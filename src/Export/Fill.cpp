#include "Export/Fill.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <set>
#include <string_view>

#include "Systems/LearningSystem.h"
#include "Systems/UploadRules.h"

namespace {

constexpr size_t kNone = GradebookMatch::kNone;

bool _IsIdentity(ColumnRole role) {
  return role == ColumnRole::kIdentifier || role == ColumnRole::kName || role == ColumnRole::kIdentity;
}

// What is wrong with columns, whoever has results in them.
bool _IsColumnTrouble(const Finding& finding) {
  const auto isColumn = [](const FindingPlace& place) {
    return place.student == FindingPlace::kNone && place.assignment != FindingPlace::kNone;
  };
  return IsTrouble(finding.consequence) && !finding.places.empty() &&
         std::ranges::all_of(finding.places, isColumn);
}

// Puts the places of a finding to those that are known under its code.
void _Join(Finding finding, Findings* findings) {
  const auto known = std::ranges::find_if(
      *findings, [&finding](const Finding& other) { return std::string_view(other.code) == finding.code; });
  if (known == findings->end()) {
    findings->push_back(std::move(finding));
    return;
  }
  for (FindingPlace& place : finding.places) {
    const auto isSame = [&place](const FindingPlace& other) { return other.assignment == place.assignment; };
    if (std::ranges::none_of(known->places, isSame)) known->places.push_back(std::move(place));
  }
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
    Check();
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
      if (assignment == kNone && !_IsIdentity(m_gradebook.columns[column].role)) continue;
      m_plan.columns.push_back({column, assignment});
    }
    const char* last = m_gradebook.system->download->lastHeading;
    const bool hasEnd = last != nullptr && m_gradebook.FindHeading(last) + 1 == count;
    const auto end = m_plan.columns.end() - (hasEnd ? 1 : 0);
    std::vector<FillColumn> added;
    for (const size_t assignment : m_plan.newColumns) added.push_back({kNone, assignment});
    m_plan.columns.insert(end, added.begin(), added.end());
  }

  void PlanCells() {
    for (size_t member = 0; member < m_gradebook.members.size(); ++member) {
      const size_t student = m_plan.match.studentOf[member];
      if (student == kNone) continue;
      for (const FillColumn& column : m_plan.columns) {
        if (column.assignment != kNone) PlanCell(m_gradebook.members[member].row, student, column);
      }
    }
  }

  void PlanCell(size_t row, size_t student, const FillColumn& column) {
    const std::optional<double> score = m_subject.scores.Find(student, column.assignment);
    const bool isNew = column.column == kNone;
    const bool isEmpty = isNew || !m_gradebook.HasScore(row, column.column);
    if (!score && isEmpty) return;
    FillCell cell{FillKind::kKept, student, column.assignment,
                  isNew ? "" : std::string(m_gradebook.table.Text(row, column.column)), ""};
    if (score) cell.kind = Judge(row, column.column, isEmpty, *score);
    const bool isNewText = cell.kind == FillKind::kFilled || cell.kind == FillKind::kChanged;
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
      if (hasResult && match.memberOf[student] == kNone) m_plan.unmatchedStudents.push_back(student);
    }
    for (size_t member = 0; member < match.studentOf.size(); ++member) {
      if (match.studentOf[member] == kNone) m_plan.unmatchedMembers.push_back(member);
    }
    for (size_t i = 0; i < match.columnOf.size(); ++i) {
      const bool isNew = std::ranges::binary_search(m_plan.newColumns, i);
      if (match.columnOf[i] == kNone && !isNew) m_plan.unmatchedAssignments.push_back(i);
    }
    for (size_t column = 0; column < m_gradebook.columns.size(); ++column) {
      const bool isItem = m_gradebook.columns[column].role == ColumnRole::kItem;
      if (isItem && match.assignmentOf[column] == kNone) m_plan.unmatchedColumns.push_back(column);
    }
  }

  // The file for upload as its system sees it: who is in it, and under which titles.
  ExportSubject FilledSubject() const {
    ExportSubject filled{.format = m_subject.format,
                         .texts = m_subject.texts,
                         .identifier = m_subject.identifier,
                         .dialect = Dialect::kFilled,
                         .delimiter = m_gradebook.table.style.separator};
    for (const FillCell& cell : m_plan.cells) {
      const bool isNext = filled.students.empty() || filled.students.back() != cell.student;
      if (isNext && cell.IsWritten()) filled.students.push_back(cell.student);
    }
    std::ranges::sort(filled.students);
    std::vector<const qz::AssignmentRecord*> records;
    for (const FillColumn& column : m_plan.columns) {
      if (column.assignment == kNone) continue;
      filled.assignments.push_back(m_subject.assignments[column.assignment]);
      filled.titles.push_back(column.column == kNone ? m_subject.titles[column.assignment]
                                                     : m_gradebook.columns[column.column].title);
      records.push_back(&m_subject.texts.Record().assignments[filled.assignments.back()]);
    }
    filled.scores = ScoreTable(m_subject.texts.Record().students, records);
    return filled;
  }

  // The same people and columns in the order of the filled subject.
  GradebookMatch FilledMatch() const {
    GradebookMatch match = m_plan.match;
    match.columnOf.clear();
    for (const FillColumn& column : m_plan.columns) {
      if (column.assignment != kNone) match.columnOf.push_back(column.column);
    }
    match.titles.assign(match.columnOf.size(), TitleMatch::kExact);
    return match;
  }

  // Scores that stay away because the gradebook has others are no trouble.
  void DropUnwritten(Findings* findings) const {
    std::set<std::pair<size_t, size_t>> unwritten;
    for (const FillCell& cell : m_plan.cells) {
      if (cell.kind == FillKind::kKept) unwritten.emplace(cell.student, m_subject.assignments[cell.assignment]);
    }
    if (unwritten.empty()) return;
    std::erase_if(*findings, [&unwritten](Finding& finding) {
      const size_t dropped = std::erase_if(finding.places, [&unwritten](const FindingPlace& place) {
        return unwritten.contains({place.student, place.assignment});
      });
      return dropped > 0 && finding.places.empty();
    });
  }

  // A new column is to the system what a column of a whole file of ours is.
  void CheckNewColumns(ExportSubject filled, Findings* findings) const {
    if (m_plan.newColumns.empty() || FindCurrentFile(*m_subject.format) == nullptr) return;
    filled.dialect = Dialect::kCurrent;
    filled.assignments.clear();
    filled.titles.clear();
    std::vector<const qz::AssignmentRecord*> records;
    for (const size_t i : m_plan.newColumns) {
      filled.assignments.push_back(m_subject.assignments[i]);
      filled.titles.push_back(m_subject.titles[i]);
      records.push_back(&m_subject.texts.Record().assignments[filled.assignments.back()]);
    }
    filled.scores = ScoreTable(m_subject.texts.Record().students, records);
    for (Finding& finding : CheckExport(filled)) {
      if (_IsColumnTrouble(finding)) _Join(std::move(finding), findings);
    }
  }

  void Check() {
    const ExportSubject filled = FilledSubject();
    Findings& findings = m_plan.findings = CheckExport(filled);
    CheckNewColumns(filled, &findings);
    std::ranges::move(CheckAgainstGradebook(filled, m_gradebook, FilledMatch()),
                      std::back_inserter(findings));
    DropUnwritten(&findings);
    std::ranges::stable_sort(findings, {}, &Finding::consequence);
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
