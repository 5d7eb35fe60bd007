#include "Filters/GX_StdCsv/formats/ANGEL.h"

void SessionANGEL::WriteHeader(std::FILE* file, const Columns& columns) {
  WriteText(file, "Name,User ID");
  WriteAssignmentNames(file, columns, "\"");
  WriteText(file, "\n");
}

void SessionANGEL::WriteStudent(std::FILE* file, const qz::StudentRecord& student) {
  WriteText(file, "\"");
  WriteSafe(file, student.lastName);
  WriteText(file, ", ");
  WriteSafe(file, student.firstName);
  WriteText(file, "\",");
  WriteUserID(file, student);
}

void SessionANGEL::WriteScore(std::FILE* file, const qz::AssignmentRecord& assignment,
                              std::optional<double> points) {
  WriteText(file, ",");
  if (!points) return;
  if (assignment.pointsPossible > 0) {
    WriteNumber(file, 100.0 * *points / assignment.pointsPossible);
  } else {
    WriteText(file, "0");
  }
}
