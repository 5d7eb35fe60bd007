// What the system will do with the file for upload.

#include "Export/FillCheck.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string_view>

#include "Systems/LearningSystem.h"
#include "Systems/UploadRules.h"

namespace {

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
    const auto isSame = [&place](const FindingPlace& other) {
      return other.student == place.student && other.assignment == place.assignment;
    };
    if (std::ranges::none_of(known->places, isSame)) known->places.push_back(std::move(place));
  }
}

class FillChecker {
 public:
  explicit FillChecker(const FillPlan& plan)
      : m_plan(plan), m_subject(*plan.subject), m_gradebook(*plan.gradebook) {}

  Findings Check() const {
    const ExportSubject filled = FilledSubject();
    Findings findings = CheckExport(filled);
    CheckNewColumns(filled, &findings);
    std::ranges::move(CheckAgainstGradebook(filled, m_gradebook, FilledMatch()),
                      std::back_inserter(findings));
    DropKept(&findings);
    CheckKept(&findings);
    std::ranges::stable_sort(findings, {}, &Finding::consequence);
    return findings;
  }

 private:
  // Those with something of ours, whose rows are in the file.
  std::set<size_t> WrittenStudents() const {
    std::set<size_t> students;
    for (const FillCell& cell : m_plan.cells) {
      if (cell.IsWritten()) students.insert(cell.student);
    }
    return students;
  }

  // The file for upload as its system sees it: who is in it, and under which titles.
  ExportSubject FilledSubject() const {
    ExportSubject filled{.format = m_subject.format,
                         .texts = m_subject.texts,
                         .identifier = m_subject.identifier,
                         .dialect = Dialect::kFilled,
                         .delimiter = m_gradebook.table.style.separator};
    const std::set<size_t> students = WrittenStudents();
    filled.students.assign(students.begin(), students.end());
    std::vector<const qz::AssignmentRecord*> records;
    for (const FillColumn& column : m_plan.columns) {
      if (column.assignment == GradebookMatch::kNone) continue;
      filled.assignments.push_back(m_subject.assignments[column.assignment]);
      filled.titles.push_back(column.column == GradebookMatch::kNone
                                  ? m_subject.titles[column.assignment]
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
      if (column.assignment != GradebookMatch::kNone) match.columnOf.push_back(column.column);
    }
    match.titles.assign(match.columnOf.size(), TitleMatch::kExact);
    return match;
  }

  // Scores that stay away because the gradebook has others are no trouble.
  void DropKept(Findings* findings) const {
    std::set<std::pair<size_t, size_t>> kept;
    for (const FillCell& cell : m_plan.cells) {
      if (cell.kind == FillKind::kKept) kept.emplace(cell.student, m_subject.assignments[cell.assignment]);
    }
    if (kept.empty()) return;
    std::erase_if(*findings, [&kept](Finding& finding) {
      const size_t dropped = std::erase_if(finding.places, [&kept](const FindingPlace& place) {
        return kept.contains({place.student, place.assignment});
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

  // What stays travels, too, in the rows of students who get something.
  void CheckKept(Findings* findings) const {
    const UploadRules* rules = m_gradebook.system->upload;
    if (rules == nullptr || !rules->greatestScore) return;
    const std::set<size_t> students = WrittenStudents();
    Finding finding{"score-above-100", Consequence::kRefused};
    for (const FillCell& cell : m_plan.cells) {
      if (cell.kind != FillKind::kKept || !students.contains(cell.student)) continue;
      const size_t row = m_gradebook.members[m_plan.match.memberOf[cell.student]].row;
      const size_t column = m_plan.match.columnOf[cell.assignment];
      const auto score = column == GradebookMatch::kNone ? std::nullopt : m_gradebook.Score(row, column);
      if (score && *score > *rules->greatestScore) {
        finding.places.push_back({cell.student, m_subject.assignments[cell.assignment], cell.oldText});
      }
    }
    if (!finding.places.empty()) _Join(std::move(finding), findings);
  }

  const FillPlan& m_plan;
  const ExportSubject& m_subject;
  const Gradebook& m_gradebook;
};

}  // namespace

Findings CheckFill(const FillPlan& plan) {
  return FillChecker(plan).Check();
}
