#include "Common/QZData/OriginalTexts.h"

#include <utility>

namespace qz {

namespace {

size_t _NumberOf(const StudentField& field) {
  return static_cast<size_t>(&field - kStudentFields);
}

}  // namespace

const std::string* OriginalTexts::Find(const Place& place) const {
  if (m_texts.empty()) return nullptr;
  const auto found = m_texts.find(place);
  return found == m_texts.end() ? nullptr : &found->second;
}

const std::string* OriginalTexts::OfStudent(size_t student, const StudentField& field) const {
  return Find({Owner::kStudent, student, 0, _NumberOf(field)});
}

const std::string* OriginalTexts::OfAssignment(size_t assignment, AssignmentText text) const {
  return Find({Owner::kAssignment, assignment, 0, static_cast<size_t>(text)});
}

const std::string* OriginalTexts::OfQuestion(size_t assignment, size_t question, QuestionText text) const {
  return Find({Owner::kQuestion, assignment, question, static_cast<size_t>(text)});
}

const std::string* OriginalTexts::OfResponse(size_t assignment, size_t results, size_t response) const {
  return Find({Owner::kResponse, assignment, results, response});
}

const std::string* OriginalTexts::OfLabel(size_t custom) const {
  return Find({Owner::kClass, 0, 0, custom});
}

void OriginalTexts::KeepStudent(size_t student, const StudentField& field, std::string text) {
  m_texts.insert_or_assign({Owner::kStudent, student, 0, _NumberOf(field)}, std::move(text));
}

void OriginalTexts::KeepAssignment(size_t assignment, AssignmentText which, std::string text) {
  m_texts.insert_or_assign({Owner::kAssignment, assignment, 0, static_cast<size_t>(which)}, std::move(text));
}

void OriginalTexts::KeepQuestion(size_t assignment, size_t question, QuestionText which, std::string text) {
  m_texts.insert_or_assign({Owner::kQuestion, assignment, question, static_cast<size_t>(which)},
                           std::move(text));
}

void OriginalTexts::KeepResponse(size_t assignment, size_t results, size_t response, std::string text) {
  m_texts.insert_or_assign({Owner::kResponse, assignment, results, response}, std::move(text));
}

void OriginalTexts::KeepLabel(size_t custom, std::string text) {
  m_texts.insert_or_assign({Owner::kClass, 0, 0, custom}, std::move(text));
}

void OriginalTexts::DropLabel(size_t custom) {
  m_texts.erase({Owner::kClass, 0, 0, custom});
}

void OriginalTexts::DropStudent(size_t student) {
  std::erase_if(m_texts, [student](const auto& entry) {
    return entry.first.owner == Owner::kStudent && entry.first.record == student;
  });
}

void OriginalTexts::DropAssignment(size_t assignment) {
  std::erase_if(m_texts, [assignment](const auto& entry) {
    const Owner owner = entry.first.owner;
    return owner != Owner::kClass && owner != Owner::kStudent && entry.first.record == assignment;
  });
}

}  // namespace qz
