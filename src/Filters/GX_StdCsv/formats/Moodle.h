// The gradebook file of Moodle 3.1.2.
#ifndef GRADIX_FORMATS_MOODLE_H
#define GRADIX_FORMATS_MOODLE_H

#include "Filters/GX_StdCsv/GradebookSession.h"

class SessionMoodle : public GradebookSession {
 public:
  using GradebookSession::GradebookSession;

 private:
  void WriteHeader(std::FILE* file, const Columns& columns) override;
  void WriteStudent(std::FILE* file, const qz::StudentRecord& student) override;
};

#endif  // GRADIX_FORMATS_MOODLE_H
