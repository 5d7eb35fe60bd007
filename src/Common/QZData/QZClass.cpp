#include "Common/QZData/QZClass.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace qz {

const std::string& StudentRecord::GetUserID(UserIDField field) const {
  switch (field) {
    case kUserIDFirstName: return firstName;
    case kUserIDLastName: return lastName;
    case kUserIDStudentID: return studentID;
    case kUserIDCustom1: return custom[0];
    case kUserIDCustom2: return custom[1];
    case kUserIDCustom3: return custom[2];
    case kUserIDAlias: break;
  }
  return alias;
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
