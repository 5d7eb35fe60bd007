// The texts of a class that its 8-bit records could not hold, as the class file has them.
//
// A record's "?ukasz" was "Łukasz". Only such texts are kept, so that a class without them has none. Records
// are given by their position in ClassRecord; a copy or a move of the class keeps the positions.
#ifndef GRADIX_ORIGINALTEXTS_H
#define GRADIX_ORIGINALTEXTS_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <tuple>

#include "Common/QZData/StudentFields.h"

namespace qz {

enum class AssignmentText : uint8_t { kName, kAssignmentID, kCategory, kOnlineID, kDate };
enum class QuestionText : uint8_t { kAnswer, kReference, kLearningObjective, kStateStandard };

class OriginalTexts {
 public:
  bool IsEmpty() const { return m_texts.empty(); }
  size_t Count() const { return m_texts.size(); }

  // UTF-8, treated as the record's text was: at most as many characters, no control characters, no blanks at
  // the end. Null where the record's text is whole. Valid until the next Keep.
  const std::string* OfStudent(size_t student, const StudentField& field) const;
  const std::string* OfAssignment(size_t assignment, AssignmentText text) const;
  const std::string* OfQuestion(size_t assignment, size_t question, QuestionText text) const;
  const std::string* OfResponse(size_t assignment, size_t results, size_t response) const;
  const std::string* OfLabel(size_t custom) const;  // ClassRecord::customLabels

  void KeepStudent(size_t student, const StudentField& field, std::string text);
  void KeepAssignment(size_t assignment, AssignmentText which, std::string text);
  void KeepQuestion(size_t assignment, size_t question, QuestionText which, std::string text);
  void KeepResponse(size_t assignment, size_t results, size_t response, std::string text);
  void KeepLabel(size_t custom, std::string text);

  void DropLabel(size_t custom);
  // What was kept of a student, and of an assignment with all that is in it, who did not become a record.
  void DropStudent(size_t student);
  void DropAssignment(size_t assignment);

 private:
  enum class Owner : uint8_t { kClass, kStudent, kAssignment, kQuestion, kResponse };

  struct Place {
    Owner owner;
    size_t record;    // the student or the assignment
    size_t part = 0;  // the question or the results
    size_t item = 0;  // the field or the response
    bool operator<(const Place& other) const {
      return std::tie(owner, record, part, item) <
             std::tie(other.owner, other.record, other.part, other.item);
    }
  };

  const std::string* Find(const Place& place) const;

  std::map<Place, std::string> m_texts;
};

}  // namespace qz

#endif  // GRADIX_ORIGINALTEXTS_H
