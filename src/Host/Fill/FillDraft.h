// A filling before it is saved: the class, the download, what was chosen, and the plan that follows from it.
#ifndef GRADIX_FILLDRAFT_H
#define GRADIX_FILLDRAFT_H

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Export/Fill.h"
#include "Host/ClassView/ClassReader.h"

namespace host {

struct FieldHits {
  qz::UserIDField field;
  size_t found;  // students of the class whom it finds in the gradebook
};

class FillDraft {
 public:
  struct Options {
    bool onlyEmpty = false;
    bool newColumns = false;
    bool matchNames = false;
  };

  // What changes the draft leaves the plan as it was until MakePlan.

  // Without assignments. Joins hold for the students and assignments that are still there.
  void SetClass(std::shared_ptr<const OpenClass> openClass);
  // Without the joins made for another one.
  void SetGradebook(std::shared_ptr<const Gradebook> gradebook);
  void SetIdentifier(qz::UserIDField field) { m_identifier = field; }
  void SetAssignments(std::vector<size_t> positions) { m_assignments = std::move(positions); }
  void SetOptions(const Options& options) { m_options = options; }

  // Joins by hand, of positions in the plan. An earlier join of either side is taken back.
  void JoinStudent(size_t student, size_t member);
  void PartStudent(size_t student);
  void JoinAssignment(size_t assignment, size_t column);
  void PartAssignment(size_t assignment);

  // Why a join of assignments does not hold, which is then taken back; after MakePlan.
  std::optional<ChosenTitleFault::Kind> TakeTitleFault();

  // There have to be a class and a gradebook.
  void MakePlan();

  // After MakePlan.
  const FillPlan& Plan() const { return m_made->plan; }
  const ExportSubject& Subject() const { return m_made->subject; }

  const OpenClass& Class() const { return *m_class; }
  std::shared_ptr<const OpenClass> SharedClass() const { return m_class; }
  const Gradebook* Download() const { return m_gradebook.get(); }  // null: none yet
  qz::UserIDField Identifier() const { return m_identifier; }
  const FormatRow& Format() const;

  // Of each field that can identify students, in their order.
  std::vector<FieldHits> HitsOfFields() const;

 private:
  struct StudentJoin {
    size_t position;   // the student's, while nobody else has it
    int32_t id;        // with the name, by which the student is known in a class read again
    std::string name;  // UTF-8
    size_t member;
  };
  struct TitleJoin {
    int32_t id;           // the assignment's
    std::string heading;  // of the column
  };
  struct Made {
    ExportSubject subject;
    FillPlan plan;
  };

  int32_t AssignmentID(size_t assignment) const;
  FillChoices Choices() const;
  bool IsStudentOf(const StudentJoin& join, size_t student) const;
  size_t FindStudent(const StudentJoin& join) const;

  std::shared_ptr<const OpenClass> m_class;
  std::shared_ptr<const Gradebook> m_gradebook;
  qz::UserIDField m_identifier = qz::kUserIDAlias;
  std::vector<size_t> m_assignments;
  Options m_options;
  std::vector<StudentJoin> m_students;
  std::vector<TitleJoin> m_titles;
  FillChoices m_choices;  // of the plan
  std::unique_ptr<const Made> m_made;
};

}  // namespace host

#endif  // GRADIX_FILLDRAFT_H
