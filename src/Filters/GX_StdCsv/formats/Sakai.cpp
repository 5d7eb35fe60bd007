#include "Filters/GX_StdCsv/formats/Sakai.h"

void SessionSakai::WriteHeader(std::FILE* file, const Columns& columns) {
  WriteText(file, "Student ID,Student Name");
  for (const GradeColumn& column : columns) {
    WriteText(file, ",");
    WriteSafe(file, column.assignment->name);
    WriteText(file, " [");
    WriteInteger(file, column.assignment->pointsPossible);
    WriteText(file, "]");
  }
  WriteText(file, "\n");
}

void SessionSakai::WriteStudent(std::FILE* file, const qz::StudentRecord& student) {
  WriteUserID(file, student);
  WriteText(file, ",\"");
  WriteSafe(file, student.lastName);
  WriteText(file, " ");
  WriteSafe(file, student.firstName);
  WriteText(file, "\"");
}
