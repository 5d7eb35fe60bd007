#include "Filters/GX_StdCsv/ReportWalk.h"

namespace {

uint64_t _Key(int32_t questionID, int32_t bankID) {
  return uint64_t{static_cast<uint32_t>(questionID)} << 32U | static_cast<uint32_t>(bankID);
}

}  // namespace

QuestionIndex::QuestionIndex(const std::vector<qz::QuestionRecord>& questions) : m_keys(questions.size()) {
  m_numbers.reserve(questions.size());
  for (const qz::QuestionRecord& question : questions) {
    m_numbers.push_back(m_keys.Add(_Key(question.questionID, question.bankID)));
  }
}

const std::vector<const qz::ResponseRecord*>& QuestionIndex::FindResponses(const qz::ResultsRecord* results) {
  m_first.assign(m_keys.Count(), nullptr);
  if (results != nullptr) {
    for (const qz::ResponseRecord& response : results->responses) {
      const size_t number = m_keys.Find(_Key(response.questionID, response.bankID));
      if (number != KeyIndex<uint64_t>::kNone && m_first[number] == nullptr) m_first[number] = &response;
    }
  }
  m_byQuestion.clear();
  for (const size_t number : m_numbers) m_byQuestion.push_back(m_first[number]);
  return m_byQuestion;
}
