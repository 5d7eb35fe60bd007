#include "Filters/GX_StdCsv/formats/D2L.h"

void SessionD2L::WriteHeader(std::FILE* file, const Columns& columns) {
  WriteText(file, "OrgDefinedId");
  for (const GradeColumn& column : columns) {
    WriteText(file, ", ");
    WriteSafe(file, column.assignment->name);
    WriteText(file, " Points Grade");
  }
  WriteText(file, ", End-of-Line Indicator\n");
}

void SessionD2L::WriteStudent(std::FILE* file, const qz::StudentRecord& student) {
  WriteUserID(file, student);
}

void SessionD2L::WriteRowEnd(std::FILE* file, double /*runningTotal*/) {
  WriteText(file, ",#");
}
