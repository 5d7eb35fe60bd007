// The gradebook files of the three generations of Blackboard.
#ifndef GRADIX_FORMATS_BLACKBOARD_H
#define GRADIX_FORMATS_BLACKBOARD_H

#include "Filters/GX_StdCsv/GradebookSession.h"

// Blackboard 6.0 - 7.0.
class SessionBlackboard : public GradebookSession {
 public:
  using GradebookSession::GradebookSession;

 private:
  void WriteHeader(std::FILE* file, const Columns& columns) override;
  void WriteStudent(std::FILE* file, const qz::StudentRecord& student) override;
  void WriteScore(std::FILE* file, const qz::AssignmentRecord& assignment,
                  std::optional<double> points) override;
  void WriteRowEnd(std::FILE* file, double runningTotal) override;
};

// Blackboard 8.0 - 9.0, with or without quotes.
class SessionBlackboard9 : public GradebookSession {
 public:
  using GradebookSession::GradebookSession;

 private:
  void WriteHeader(std::FILE* file, const Columns& columns) override;
  void WriteStudent(std::FILE* file, const qz::StudentRecord& student) override;
  void WriteScore(std::FILE* file, const qz::AssignmentRecord& assignment,
                  std::optional<double> points) override;
  void WriteRowEnd(std::FILE* file, double runningTotal) override;

  // The mark around every cell.
  const char* Quote() const { return m_bUseQuotes ? "\"" : ""; }
};

// Blackboard Learn 9.1: the same file under a name of its own.
class SessionBlackboard91 : public SessionBlackboard9 {
 public:
  using SessionBlackboard9::SessionBlackboard9;
};

#endif  // GRADIX_FORMATS_BLACKBOARD_H
