#include <algorithm>
#include <nlohmann/json.hpp>

#include "CommandLine/FillReport.h"
#include "CommandLine/TerminalText.h"
#include "Systems/LearningSystem.h"

namespace {

using Json = nlohmann::ordered_json;

constexpr int kVersion = 1;
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
    const GradebookMatch& match = m_plan.match;
    Json json = {{"version", kVersion},
                 {"classFile", PrintableUtf8(m_report.options->classFile)},
                 {"gradebook", PrintableUtf8(m_report.options->gradebook)},
                 {"system", m_gradebook.system->key},
                 {"format", m_subject.format->key},
                 {"field", qz::FindStudentField(m_subject.identifier).key},
                 {"identifierColumn", nullptr},
                 {"written", m_report.isWritten},
                 {"status", static_cast<int>(m_report.status)}};
    if (match.identifierColumn != kNone) json["identifierColumn"] = Heading(match.identifierColumn);
    json["counts"] = Counts();
    json["columns"] = Columns();
    json["cells"] = Cells();
    json["unmatchedStudents"] = Each(m_plan.unmatchedStudents, [this](size_t student) {
      Json row = Student(student);
      row["reason"] = UnmatchedKey(m_plan.match.students[student]);
      return row;
    });
    json["unmatchedMembers"] = Each(m_plan.unmatchedMembers, [this](size_t member) {
      const CourseMember& who = m_gradebook.members[member];
      return Json{{"name", who.name}, {"line", m_gradebook.table.LineOf(who.row)}};
    });
    json["unmatchedAssignments"] = Each(m_plan.unmatchedAssignments, [this](size_t i) {
      Json row = Assignment(i);
      row["reason"] = UnmatchedKey(m_plan.match.titles[i]);
      return row;
    });
    json["unmatchedColumns"] =
        Each(m_plan.unmatchedColumns, [this](size_t column) { return Json(Heading(column)); });
    json["differentPoints"] = Each(m_plan.differentPoints, [this](size_t i) {
      Json row = Assignment(i);
      row["points"] = Record(i).pointsPossible;
      row["gradebookPoints"] = *m_gradebook.columns[m_plan.match.columnOf[i]].pointsPossible;
      return row;
    });
    return json;
  }

 private:
  template <typename Describe>
  static Json Each(const std::vector<size_t>& items, Describe describe) {
    Json array = Json::array();
    for (const size_t item : items) array.push_back(describe(item));
    return array;
  }

  const qz::AssignmentRecord& Record(size_t i) const {
    return m_subject.texts.Record().assignments[m_subject.assignments[i]];
  }
  std::string Heading(size_t column) const { return std::string(m_gradebook.Heading(column)); }

  Json Student(size_t student) const {
    return {{"studentID", m_subject.texts.Record().students[student].id},
            {"name", m_subject.texts.StudentName(student)}};
  }
  Json Assignment(size_t i) const { return {{"assignmentID", Record(i).id}, {"title", m_subject.titles[i]}}; }

  Json Counts() const {
    const auto isFound = [](size_t other) { return other != kNone; };
    Json counts = {{"students", std::ranges::count_if(m_plan.match.memberOf, isFound)},
                   {"assignments", std::ranges::count_if(m_plan.match.columnOf, isFound)}};
    for (const KindKey& each : kKinds) {
      counts[each.key] = std::ranges::count(m_plan.cells, each.kind, &FillCell::kind);
    }
    return counts;
  }

  Json Columns() const {
    Json columns = Json::array();
    for (const FillColumn& column : m_plan.columns) {
      if (column.assignment == kNone) continue;
      Json row = Assignment(column.assignment);
      row["column"] = column.column == kNone ? Json(nullptr) : Json(Heading(column.column));
      columns.push_back(std::move(row));
    }
    return columns;
  }

  Json Cells() const {
    Json cells = Json::array();
    for (const FillCell& cell : m_plan.cells) {
      cells.push_back({{"studentID", m_subject.texts.Record().students[cell.student].id},
                       {"assignmentID", Record(cell.assignment).id},
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
  return Writer(report).Whole().dump(2) + "\n";
}
