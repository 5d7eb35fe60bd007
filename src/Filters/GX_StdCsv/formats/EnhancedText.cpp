#include "Filters/GX_StdCsv/formats/EnhancedText.h"

#include <algorithm>
#include <array>

#include "Common/KeyIndex.h"
#include "Common/QZData/StudentFields.h"
#include "Filters/GX_StdCsv/CommaSeparatedLine.h"
#include "Filters/GX_StdCsv/CsvOutput.h"
#include "Filters/GX_StdCsv/ResultsJoin.h"

namespace {

constexpr double kFullPointsTolerance = 0.001;

uint64_t _Key(int32_t questionID, int32_t bankID) {
  return uint64_t{static_cast<uint32_t>(questionID)} << 32U | static_cast<uint32_t>(bankID);
}

// The report's questions, indexed once, so that a student's responses are found in one walk over them.
class QuestionIndex {
 public:
  explicit QuestionIndex(const std::vector<qz::QuestionRecord>& questions) : m_keys(questions.size()) {
    m_numbers.reserve(questions.size());
    for (const qz::QuestionRecord& question : questions) {
      m_numbers.push_back(m_keys.Add(_Key(question.questionID, question.bankID)));
    }
  }

  // By position of the question: the first response to it, or null. `results` may be null. Valid until the
  // next call.
  const std::vector<const qz::ResponseRecord*>& FindResponses(const qz::ResultsRecord* results) {
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

 private:
  KeyIndex<uint64_t> m_keys;
  std::vector<size_t> m_numbers;
  std::vector<const qz::ResponseRecord*> m_first;
  std::vector<const qz::ResponseRecord*> m_byQuestion;
};

// The report while it is written.
class Report {
 public:
  Report(std::FILE* file, const qz::ClassRecord& record, const qz::AssignmentRecord& assignment)
      : m_file(file),
        m_class(record),
        m_assignment(assignment),
        m_line(file, static_cast<uint32_t>(record.optionValue)) {}

  void Write() {
    WriteHeader();
    if ((Is(qz::kReportResponses) && Is(qz::kReportAnswerKey)) ||
        (Is(qz::kReportPointsEarned) && Is(qz::kReportPointsPossible))) {
      WriteKey();
    }
    QuestionIndex questions(m_assignment.questions);
    const auto results = RosterIndex(m_class.students).FindResults(m_assignment);
    for (size_t i = 0; i < results.size(); ++i) {
      WriteStudent(m_class.students[i], questions.FindResponses(results[i]));
    }
  }

 private:
  bool Is(qz::ReportOption option) const { return m_class.options[option]; }

  void WriteQuoted(const char* prefix, const std::string& text) {
    WriteText(m_file, "\"");
    WriteText(m_file, prefix);
    Session::WriteSafeCSVString(m_file, text.c_str());
    WriteText(m_file, "\"");
  }

  void WriteHeader() {
    for (const qz::StudentField& field : qz::kStudentFields) {
      m_line.InsertMaskedItem(field.Title(m_class).c_str(), field.reportBit);
    }
    if (Is(qz::kReportResponses) || Is(qz::kReportPointsEarned)) {
      int32_t position = 0;
      for (size_t i = 0; i < m_assignment.questions.size(); ++i) {
        m_line.InsertComma();
        WriteInteger(m_file, ++position);
        if (Is(qz::kReportResponses) && Is(qz::kReportPointsEarned)) m_line.InsertComma();
      }
    }
    m_line.InsertNewLine();
  }

  // The line of correct answers and points possible.
  void WriteKey() {
    for (const qz::StudentField& field : qz::kStudentFields) {
      m_line.InsertMaskedItem(nullptr, field.reportBit);
    }
    for (const qz::QuestionRecord& question : m_assignment.questions) {
      if (Is(qz::kReportResponses)) {
        m_line.InsertComma();
        if (Is(qz::kReportAnswerKey)) WriteQuoted("", question.answer);
      }
      if (Is(qz::kReportPointsEarned)) {
        m_line.InsertComma();
        if (Is(qz::kReportPointsPossible)) WriteNumber(m_file, question.pointsPossible);
      }
    }
    m_line.InsertNewLine();
  }

  void WriteStudent(const qz::StudentRecord& student,
                    const std::vector<const qz::ResponseRecord*>& responses) {
    for (const qz::StudentField& field : qz::kStudentFields) {
      m_line.InsertMaskedItem(field.Value(student).c_str(), field.reportBit);
    }
    for (size_t i = 0; i < responses.size(); ++i) {
      WriteResponse(m_assignment.questions[i], responses[i]);
    }
    m_line.InsertNewLine();
  }

  void WriteResponse(const qz::QuestionRecord& question, const qz::ResponseRecord* response) {
    if (Is(qz::kReportResponses)) {
      m_line.InsertComma();
      if (response != nullptr) {
        const bool full = response->pointsEarned > question.pointsPossible - kFullPointsTolerance;
        WriteQuoted(Is(qz::kReportAsterisks) && full ? "*" : "", response->text);
      }
    }
    if (Is(qz::kReportPointsEarned)) {
      m_line.InsertComma();
      if (response != nullptr) WriteNumber(m_file, response->pointsEarned);
    }
  }

  std::FILE* m_file;
  const qz::ClassRecord& m_class;
  const qz::AssignmentRecord& m_assignment;
  CommaSeparatedLine m_line;
};

// The first selected assignment, or null.
const qz::AssignmentRecord* _ReportAssignment(const qz::ClassRecord& record) {
  const auto found = std::find_if(record.assignments.begin(), record.assignments.end(),
                                  [](const qz::AssignmentRecord& assignment) { return assignment.selected; });
  return found == record.assignments.end() ? nullptr : &*found;
}

}  // namespace

uint32_t SessionEnhancedText::Export(const char* path) {
  if (_ReportAssignment(Class()) == nullptr) return QZFILTER_FAILED;
  return Session::Export(path);
}

void SessionEnhancedText::Write(std::FILE* file) {
  const qz::AssignmentRecord* assignment = _ReportAssignment(Class());
  if (assignment != nullptr) Report(file, Class(), *assignment).Write();
}
