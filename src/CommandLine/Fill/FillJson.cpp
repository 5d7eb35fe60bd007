#include <algorithm>

#include "CommandLine/Fill/FillReport.h"
#include "CommandLine/Findings/FindingsJson.h"
#include "CommandLine/Json.h"
#include "CommandLine/TerminalText.h"
#include "Systems/LearningSystem.h"

namespace {

constexpr int kFillVersion = 1;
constexpr size_t kNone = GradebookMatch::kNone;

struct KindKey {
  FillKind kind;
  const char* key;
};
constexpr KindKey kKinds[] = {{FillKind::kFilled, "filled"},
                              {FillKind::kChanged, "changed"},
                              {FillKind::kSame, "same"},
                              {FillKind::kKept, "kept"},
                              {FillKind::kNoNumber, "no-number"}};

const char* _Key(FillKind kind) {
  return std::ranges::find(kKinds, kind, &KindKey::kind)->key;
}

class Writer {
 public:
  explicit Writer(const FillReport& report)
      : m_report(report), m_plan(*report.plan), m_subject(*m_plan.subject), m_gradebook(*m_plan.gradebook) {}

  Json Whole() const {
    const FillOptions& options = *m_report.options;
    const size_t identifiers = m_plan.match.identifierColumn;
    Json json = {{"version", kFillVersion},
                 {"file", PrintableUtf8(options.classFile)},
                 {"className", m_report.className},
                 {"gradebook", PrintableUtf8(options.gradebook)},
                 {"output", m_report.isWritten ? Json(PrintableUtf8(options.outputFile)) : Json()},
                 {"written", m_report.isWritten},
                 {"exitStatus", static_cast<int>(m_report.status)},
                 {"system", m_gradebook.system->key},
                 {"format", m_subject.format->key},
                 {"field", qz::FindStudentField(m_subject.identifier).key},
                 {"identifierColumn", identifiers == kNone ? Json() : Json(Heading(identifiers))}};
    json.Set("counts", Counts());
    json.Set("columns", Columns());
    json.Set("cells", Cells());
    json.Set("unmatchedStudents", Each(m_plan.unmatchedStudents, [this](size_t student) {
               return Json{{"student", Student(student)},
                           {"reason", UnmatchedKey(m_plan.match.students[student])}};
             }));
    json.Set("unmatchedMembers", Each(m_plan.unmatchedMembers, [this](size_t member) {
               const CourseMember& who = m_gradebook.members[member];
               return Json{{"name", who.name}, {"line", m_gradebook.table.LineOf(who.row)}};
             }));
    json.Set("unmatchedAssignments", Each(m_plan.unmatchedAssignments, [this](size_t i) {
               return Json{{"assignment", Assignment(i)}, {"reason", UnmatchedKey(m_plan.match.titles[i])}};
             }));
    json.Set("unmatchedColumns",
             Each(m_plan.unmatchedColumns, [this](size_t column) { return Json(Heading(column)); }));
    json.Set("differentPoints", Each(m_plan.differentPoints, [this](size_t i) {
               return Json{
                   {"assignment", Assignment(i)},
                   {"points", Record(i).pointsPossible},
                   {"gradebookPoints", *m_gradebook.columns[m_plan.match.columnOf[i]].pointsPossible}};
             }));
    json.Set("findings", FindingsJson(m_plan.findings, m_subject));
    return json;
  }

 private:
  template <typename Describe>
  static Json Each(const std::vector<size_t>& items, Describe describe) {
    Json array = Json::List();
    for (const size_t item : items) array.Add(describe(item));
    return array;
  }

  const qz::AssignmentRecord& Record(size_t i) const {
    return m_subject.texts.Record().assignments[m_subject.assignments[i]];
  }
  std::string Heading(size_t column) const { return std::string(m_gradebook.Heading(column)); }

  Json Student(size_t student) const {
    return {{"id", m_subject.texts.Record().students[student].id},
            {"name", m_subject.texts.StudentName(student)}};
  }
  Json Assignment(size_t i) const { return {{"id", Record(i).id}, {"name", m_subject.titles[i]}}; }

  Json Counts() const {
    const auto isFound = [](size_t other) { return other != kNone; };
    Json counts = {{"students", std::ranges::count_if(m_plan.match.memberOf, isFound)},
                   {"assignments", std::ranges::count_if(m_plan.match.columnOf, isFound)}};
    for (const KindKey& each : kKinds) {
      counts.Set(each.key, std::ranges::count(m_plan.cells, each.kind, &FillCell::kind));
    }
    return counts;
  }

  Json Columns() const {
    Json columns = Json::List();
    for (const FillColumn& column : m_plan.columns) {
      if (column.assignment == kNone) continue;
      columns.Add({{"assignment", Assignment(column.assignment)},
                   {"column", column.column == kNone ? Json() : Json(Heading(column.column))}});
    }
    return columns;
  }

  Json Cells() const {
    Json cells = Json::List();
    for (const FillCell& cell : m_plan.cells) {
      cells.Add({{"student", m_subject.texts.Record().students[cell.student].id},
                 {"assignment", Record(cell.assignment).id},
                 {"kind", _Key(cell.kind)},
                 {"old", cell.oldText},
                 {"new", cell.newText}});
    }
    return cells;
  }

  const FillReport& m_report;
  const FillPlan& m_plan;
  const ExportSubject& m_subject;
  const Gradebook& m_gradebook;
};

}  // namespace

std::string FillJson(const FillReport& report) {
  return Writer(report).Whole().Text();
}
