#include "Common/QZData/QZClass.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Common/QZData/StudentFields.h"

namespace qz {

const std::string& StudentRecord::GetUserID(UserIDField field) const {
  return FindStudentField(field).Value(*this);
}

const ResultsRecord* AssignmentRecord::FindResultsForStudent(int32_t studentID) const {
  const auto found = std::find_if(results.begin(), results.end(), [studentID](const ResultsRecord& record) {
    return record.studentID == studentID;
  });
  return found == results.end() ? nullptr : &*found;
}

ResultsRecord* AssignmentRecord::FindResultsForStudent(int32_t studentID) {
  return const_cast<ResultsRecord*>(std::as_const(*this).FindResultsForStudent(studentID));
}

const ResponseRecord* ResultsRecord::FindResponseForQuestion(const QuestionRecord& question) const {
  const auto found =
      std::find_if(responses.begin(), responses.end(), [&question](const ResponseRecord& response) {
        return response.questionID == question.questionID && response.bankID == question.bankID;
      });
  return found == responses.end() ? nullptr : &*found;
}

ResponseRecord* ResultsRecord::FindResponseForQuestion(const QuestionRecord& question) {
  return const_cast<ResponseRecord*>(std::as_const(*this).FindResponseForQuestion(question));
}

double ResultsRecord::GetTotalPoints() const {
  double total = 0.0;
  for (const ResponseRecord& response : responses) {
    if (!std::isnan(total)) total += response.pointsEarned;  // of two NaNs the first stays
  }
  return total;
}

}  // namespace qz
