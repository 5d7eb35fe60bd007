// The gradebook file of ANGEL: percentages instead of points.
#ifndef GRADIX_FORMATS_ANGEL_H
#define GRADIX_FORMATS_ANGEL_H

#include "Filters/GX_StdCsv/GradebookSession.h"

class SessionANGEL : public GradebookSession {
 public:
  using GradebookSession::GradebookSession;

 private:
  void WriteHeader(std::FILE* file, const Columns& columns) override;
  void WriteStudent(std::FILE* file, const qz::StudentRecord& student) override;
  void WriteScore(std::FILE* file, const qz::AssignmentRecord& assignment,
                  std::optional<double> points) override;
};

#endif  // GRADIX_FORMATS_ANGEL_H
