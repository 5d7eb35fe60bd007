#include "Filters/GX_StdCsv/formats/Canvas.h"

void SessionCanvas::WriteHeader(std::FILE* file, const Columns& columns) {
  WriteText(file, "Student,ID,Section");
  WriteAssignmentNames(file, columns);
  WriteText(file, "\nPoints Possible,,");
  for (const GradeColumn& column : columns) {
    WriteText(file, ",");
    WriteNumber(file, column.assignment->pointsPossible);
  }
  WriteText(file, "\n");
}

void SessionCanvas::WriteStudent(std::FILE* file, const qz::StudentRecord& student) {
  WriteText(file, "\"");
  WriteSafe(file, student.firstName);
  WriteText(file, " ");
  WriteSafe(file, student.lastName);
  WriteText(file, "\",");
  WriteUserID(file, student);
  WriteText(file, ",");  // no section
}
