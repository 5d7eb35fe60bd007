// The one walk over the detailed report: which cells and lines the class record's options ask for. How they
// are written is the output's business.
//
// An output has
//   Title(field), Value(student, field), NoValue(field): the cell of a student field, left out, separator and
//     all, when the mask in optionValue lacks the field
//   Separate()                       begins a cell of a question, which stays empty unless something follows
//   Answer(question), Response(mark, results, response): texts of the class; `mark` stands before it
//   Integer(int32_t), Number(double)
//   EndLine()
// with questions by their position and the class's own records of students, results and responses.
#ifndef GRADIX_REPORTWALK_H
#define GRADIX_REPORTWALK_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Common/KeyIndex.h"
#include "Common/QZData/QZClass.h"
#include "Common/QZData/StudentFields.h"
#include "Filters/GX_StdCsv/ResultsJoin.h"

// The report's questions, indexed once, so that a student's responses are found in one walk over them.
class QuestionIndex {
 public:
  explicit QuestionIndex(const std::vector<qz::QuestionRecord>& questions);

  // By position of the question: the first response to it, or null. `results` may be null. Valid until the
  // next call.
  const std::vector<const qz::ResponseRecord*>& FindResponses(const qz::ResultsRecord* results);

 private:
  KeyIndex<uint64_t> m_keys;
  std::vector<size_t> m_numbers;
  std::vector<const qz::ResponseRecord*> m_first;
  std::vector<const qz::ResponseRecord*> m_byQuestion;
};

template <typename Output>
class ReportWalk {
 public:
  // All outlive it.
  ReportWalk(const qz::ClassRecord& record, const qz::AssignmentRecord& assignment, Output* output)
      : m_class(record), m_assignment(assignment), m_output(*output) {}

  void Write() {
    WriteHeader();
    if ((Is(qz::kReportResponses) && Is(qz::kReportAnswerKey)) ||
        (Is(qz::kReportPointsEarned) && Is(qz::kReportPointsPossible))) {
      WriteKey();
    }
    QuestionIndex questions(m_assignment.questions);
    const auto results = RosterIndex(m_class.students).FindResults(m_assignment);
    for (size_t i = 0; i < results.size(); ++i) {
      WriteStudent(m_class.students[i], results[i], questions.FindResponses(results[i]));
    }
  }

 private:
  static constexpr double kFullPointsTolerance = 0.001;

  bool Is(qz::ReportOption option) const { return m_class.options[option]; }

  void WriteHeader() {
    for (const qz::StudentField& field : qz::kStudentFields) m_output.Title(field);
    if (Is(qz::kReportResponses) || Is(qz::kReportPointsEarned)) {
      int32_t position = 0;
      for (size_t i = 0; i < m_assignment.questions.size(); ++i) {
        m_output.Separate();
        m_output.Integer(++position);
        if (Is(qz::kReportResponses) && Is(qz::kReportPointsEarned)) m_output.Separate();
      }
    }
    m_output.EndLine();
  }

  // The line of correct answers and points possible.
  void WriteKey() {
    for (const qz::StudentField& field : qz::kStudentFields) m_output.NoValue(field);
    for (size_t i = 0; i < m_assignment.questions.size(); ++i) {
      if (Is(qz::kReportResponses)) {
        m_output.Separate();
        if (Is(qz::kReportAnswerKey)) m_output.Answer(i);
      }
      if (Is(qz::kReportPointsEarned)) {
        m_output.Separate();
        if (Is(qz::kReportPointsPossible)) m_output.Number(m_assignment.questions[i].pointsPossible);
      }
    }
    m_output.EndLine();
  }

  void WriteStudent(const qz::StudentRecord& student, const qz::ResultsRecord* results,
                    const std::vector<const qz::ResponseRecord*>& responses) {
    for (const qz::StudentField& field : qz::kStudentFields) m_output.Value(student, field);
    for (size_t i = 0; i < responses.size(); ++i) {
      WriteResponse(m_assignment.questions[i], results, responses[i]);
    }
    m_output.EndLine();
  }

  void WriteResponse(const qz::QuestionRecord& question, const qz::ResultsRecord* results,
                     const qz::ResponseRecord* response) {
    if (Is(qz::kReportResponses)) {
      m_output.Separate();
      if (response != nullptr) {
        const bool full = response->pointsEarned > question.pointsPossible - kFullPointsTolerance;
        m_output.Response(Is(qz::kReportAsterisks) && full ? "*" : "", *results, *response);
      }
    }
    if (Is(qz::kReportPointsEarned)) {
      m_output.Separate();
      if (response != nullptr) m_output.Number(response->pointsEarned);
    }
  }

  const qz::ClassRecord& m_class;
  const qz::AssignmentRecord& m_assignment;
  Output& m_output;
};

#endif  // GRADIX_REPORTWALK_H
