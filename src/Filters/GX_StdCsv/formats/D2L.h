// The gradebook file of Brightspace by D2L.
#ifndef GRADIX_FORMATS_D2L_H
#define GRADIX_FORMATS_D2L_H

#include "Filters/GX_StdCsv/GradebookSession.h"

class SessionD2L : public GradebookSession {
 public:
  using GradebookSession::GradebookSession;

 private:
  void WriteHeader(std::FILE* file, const Columns& columns) override;
  void WriteStudent(std::FILE* file, const qz::StudentRecord& student) override;
  void WriteRowEnd(std::FILE* file, double runningTotal) override;
};

#endif  // GRADIX_FORMATS_D2L_H
