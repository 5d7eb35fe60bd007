// A class as people and today's systems write it: its texts in UTF-8, where the 8-bit records have lost
// letters as the class file has them.
#ifndef GRADIX_CLASSTEXTS_H
#define GRADIX_CLASSTEXTS_H

#include <cstddef>
#include <string>

#include "Common/QZData/OriginalTexts.h"
#include "Common/QZData/QZClass.h"
#include "Common/QZData/StudentFields.h"

namespace qz {

// A view: both outlive it. Records are given by their position.
class ClassTexts {
 public:
  ClassTexts(const ClassRecord& record, const OriginalTexts& originals)
      : m_record(&record), m_originals(&originals) {}

  const ClassRecord& Record() const { return *m_record; }
  const OriginalTexts& Originals() const { return *m_originals; }

  std::string Student(size_t student, const StudentField& field) const;
  std::string StudentName(size_t student) const;  // "First Last"; one of them alone without the blank
  std::string AssignmentName(size_t assignment) const;
  std::string Assignment(size_t assignment, AssignmentText text) const;
  std::string Question(size_t assignment, size_t question, QuestionText text) const;
  std::string Response(size_t assignment, size_t results, size_t response) const;
  std::string FieldTitle(const StudentField& field) const;  // English, or the class's label

 private:
  const ClassRecord* m_record;
  const OriginalTexts* m_originals;
};

}  // namespace qz

#endif  // GRADIX_CLASSTEXTS_H
