#include "Filters/GX_StdCsv/formats/WebCT.h"

void SessionWebCT::WriteHeader(std::FILE* file, const Columns& columns) {
  WriteText(file, "Last Name,First Name,User ID,Role");
  WriteAssignmentNames(file, columns, "\"");
  WriteText(file, "\n");
}

void SessionWebCT::WriteStudent(std::FILE* file, const qz::StudentRecord& student) {
  WriteText(file, "\"");
  WriteSafe(file, student.lastName);
  WriteText(file, "\",\"");
  WriteSafe(file, student.firstName);
  WriteText(file, "\",\"");
  WriteUserID(file, student);
  WriteText(file, "\",Student");
}

void SessionWebCT::WriteScore(std::FILE* file, const qz::AssignmentRecord& /*assignment*/,
                              std::optional<double> points) {
  WriteText(file, ",");
  if (points) {
    WriteNumber(file, *points);
  } else {
    WriteText(file, " ");  // WebCT's "no score"
  }
}
