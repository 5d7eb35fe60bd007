#include "Filters/GX_StdCsv/GradebookSession.h"

#include <cmath>

void GradebookSession::Write(std::FILE* file) {
  const Columns columns = SelectedColumns(Class());
  WriteHeader(file, columns);

  size_t row = 0;
  for (const qz::StudentRecord& student : Class().students) {
    WriteStudent(file, student);
    double runningTotal = 0.0;
    for (const GradeColumn& column : columns) {
      const std::optional<double> points = column.points[row];
      WriteScore(file, *column.assignment, points);
      if (!std::isnan(runningTotal)) runningTotal += points.value_or(0.0);  // of two NaNs the first stays
    }
    WriteRowEnd(file, runningTotal);
    WriteText(file, "\n");
    ++row;
  }
}

void GradebookSession::WriteAssignmentNames(std::FILE* file, const Columns& columns, const char* quote) {
  for (const GradeColumn& column : columns) {
    WriteText(file, ",");
    WriteText(file, quote);
    WriteSafe(file, column.assignment->name);
    WriteText(file, quote);
  }
}

void GradebookSession::WriteScore(std::FILE* file, const qz::AssignmentRecord& /*assignment*/,
                                  std::optional<double> points) {
  WriteText(file, ",");
  if (points) WriteNumber(file, *points);
}
