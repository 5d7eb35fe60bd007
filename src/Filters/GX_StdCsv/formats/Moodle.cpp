#include "Filters/GX_StdCsv/formats/Moodle.h"

void SessionMoodle::WriteHeader(std::FILE* file, const Columns& columns) {
  WriteText(file, "User ID");
  WriteAssignmentNames(file, columns);
  WriteText(file, "\n");
}

void SessionMoodle::WriteStudent(std::FILE* file, const qz::StudentRecord& student) {
  WriteUserID(file, student);
}
