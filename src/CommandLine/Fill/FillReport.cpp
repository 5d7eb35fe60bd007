#include "CommandLine/Fill/FillReport.h"

#include <algorithm>
#include <vector>

#include "CommandLine/Findings/FindingReport.h"
#include "CommandLine/TerminalText.h"
#include "Systems/LearningSystem.h"

namespace {

std::string _Count(size_t count, const char* one, const char* many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

const char* _Reason(StudentMatch match) {
  switch (match) {
    case StudentMatch::kNoIdentifier: return "has no id in the class";
    case StudentMatch::kLetterCase: return "the id differs in upper and lower case";
    case StudentMatch::kSharedIdentifier: return "another student of the class has the same id";
    case StudentMatch::kSeveralMembers: return "several students in the gradebook have the id";
    case StudentMatch::kTakenMember: return "another student was joined with the one who has the id";
    default: return "the id is not in the gradebook";
  }
}

const char* _Reason(TitleMatch match) {
  switch (match) {
    case TitleMatch::kReadOnly: return "the column with this title cannot be filled";
    case TitleMatch::kSharedTitle: return "another assignment of the class has this title";
    case TitleMatch::kSeveralColumns: return "several columns have this title; name one with --map";
    default: return "no column has this title; name one with --map, or add one with --new-columns";
  }
}

class Report {
 public:
  explicit Report(const FillPlan& plan)
      : m_plan(plan), m_subject(*m_plan.subject), m_gradebook(*m_plan.gradebook), m_text(Summary()) {}

  std::string Text() {
    Cells("Filled", FillKind::kFilled);
    Cells("Changed", FillKind::kChanged);
    Cells("Kept as in the gradebook", FillKind::kKept);
    Cells("Left out, because they are no numbers", FillKind::kNoNumber);
    Columns();
    List("Students with results who were not found in the gradebook", m_plan.unmatchedStudents,
         [this](size_t student) {
           return Student(student) + Identifier(student) + ": " + _Reason(m_plan.match.students[student]);
         });
    List("Students in the gradebook who were not found in the class", m_plan.unmatchedMembers,
         [this](size_t member) { return Member(member); });
    List("Assignments without a column", m_plan.unmatchedAssignments, [this](size_t i) {
      return Assignment(i) + " (id " + std::to_string(Record(i).id) + "): " + _Reason(m_plan.match.titles[i]);
    });
    List("Columns that get nothing", m_plan.unmatchedColumns,
         [this](size_t column) { return PrintableUtf8(std::string(m_gradebook.Heading(column))); });
    List("Points possible that differ", m_plan.differentPoints, [this](size_t i) {
      return Assignment(i) + ": " + std::to_string(Record(i).pointsPossible) + " in the class, " +
             m_gradebook.ScoreText(*m_gradebook.columns[m_plan.match.columnOf[i]].pointsPossible) +
             " in the gradebook";
    });
    return std::move(m_text);
  }

 private:
  const qz::AssignmentRecord& Record(size_t i) const {
    return m_subject.texts.Record().assignments[m_subject.assignments[i]];
  }

  std::string Student(size_t student) const { return PrintableUtf8(m_subject.texts.StudentName(student)); }

  std::string Identifier(size_t student) const {
    const std::string identifier = PrintableUtf8(m_subject.Identifier(student));
    return identifier.empty() ? "" : " (" + identifier + ")";
  }

  std::string Member(size_t member) const {
    const CourseMember& who = m_gradebook.members[member];
    std::string name = PrintableUtf8(who.name);
    if (!name.empty()) return name;
    return "line " + std::to_string(m_gradebook.table.LineOf(who.row));
  }

  std::string Assignment(size_t i) const { return PrintableUtf8(m_subject.titles[i]); }

  // "28 of 30 students and 2 of 3 assignments were found in the Canvas gradebook, by SIS User ID."
  std::string Summary() const {
    const GradebookMatch& match = m_plan.match;
    const auto isFound = [](size_t other) { return other != GradebookMatch::kNone; };
    std::string text = std::to_string(std::ranges::count_if(match.memberOf, isFound)) + " of " +
                       _Count(match.memberOf.size(), "student", "students") + " and " +
                       std::to_string(std::ranges::count_if(match.columnOf, isFound)) + " of " +
                       _Count(match.columnOf.size(), "assignment", "assignments") + " found in the " +
                       m_gradebook.system->name + " gradebook";
    if (match.identifierColumn != GradebookMatch::kNone) {
      text += "; " + PrintableUtf8(std::string(m_gradebook.Heading(match.identifierColumn))) + " is the " +
              PrintableUtf8(m_subject.texts.FieldTitle(qz::FindStudentField(m_subject.identifier)));
    }
    return text + "\n";
  }

  template <typename Items, typename Describe>
  void List(const std::string& title, const Items& items, Describe describe) {
    if (items.empty()) return;
    m_text += title + ": " + std::to_string(items.size()) + "\n";
    for (size_t i = 0; i < std::min(items.size(), kMostNames); ++i)
      m_text += "  " + describe(items[i]) + "\n";
    if (items.size() > kMostNames) m_text += "  and " + std::to_string(items.size() - kMostNames) + " more\n";
  }

  void Cells(const char* title, FillKind kind) {
    std::vector<const FillCell*> cells;
    for (const FillCell& cell : m_plan.cells) {
      if (cell.kind == kind) cells.push_back(&cell);
    }
    List(title, cells, [this](const FillCell* cell) {
      std::string text = Student(cell->student) + ", " + Assignment(cell->assignment) + ": ";
      if (cell->kind == FillKind::kChanged) text += PrintableUtf8(cell->oldText) + " -> ";
      return text + PrintableUtf8(cell->newText);
    });
  }

  // Those whose titles are not equal to ours.
  void Columns() {
    std::vector<FillColumn> columns;
    for (const FillColumn& column : m_plan.columns) {
      if (column.assignment == GradebookMatch::kNone) continue;
      const bool isExact = column.column != GradebookMatch::kNone &&
                           m_plan.match.titles[column.assignment] == TitleMatch::kExact;
      if (!isExact) columns.push_back(column);
    }
    List("Columns with another title, or new", columns, [this](const FillColumn& column) {
      return Assignment(column.assignment) + " -> " +
             (column.column == GradebookMatch::kNone
                  ? "a new column"
                  : PrintableUtf8(std::string(m_gradebook.Heading(column.column))));
    });
  }

  const FillPlan& m_plan;
  const ExportSubject& m_subject;
  const Gradebook& m_gradebook;
  std::string m_text;
};

}  // namespace

const char* UnmatchedKey(StudentMatch match) {
  switch (match) {
    case StudentMatch::kUnknown: return "unknown";
    case StudentMatch::kNoIdentifier: return "no-id";
    case StudentMatch::kLetterCase: return "letter-case";
    case StudentMatch::kSharedIdentifier: return "shared-id";
    case StudentMatch::kSeveralMembers: return "several-members";
    case StudentMatch::kTakenMember: return "taken-member";
    default: return nullptr;
  }
}

const char* UnmatchedKey(TitleMatch match) {
  switch (match) {
    case TitleMatch::kNoColumn: return "no-column";
    case TitleMatch::kReadOnly: return "read-only";
    case TitleMatch::kSharedTitle: return "shared-title";
    case TitleMatch::kSeveralColumns: return "several-columns";
    default: return nullptr;
  }
}

void TellFill(const FillPlan& plan) {
  std::string text = Report(plan).Text();
  text.pop_back();
  Say(text);
}
