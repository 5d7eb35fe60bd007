// The gradebook file of Sakai.
#ifndef GRADIX_FORMATS_SAKAI_H
#define GRADIX_FORMATS_SAKAI_H

#include "Filters/GX_StdCsv/GradebookSession.h"

class SessionSakai : public GradebookSession {
 public:
  using GradebookSession::GradebookSession;

 private:
  void WriteHeader(std::FILE* file, const Columns& columns) override;
  void WriteStudent(std::FILE* file, const qz::StudentRecord& student) override;
};

#endif  // GRADIX_FORMATS_SAKAI_H
