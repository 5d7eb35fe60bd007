#include "Filters/GX_StdCsv/formats/Blackboard.h"

namespace {

// The points part of a column title, as Blackboard writes it itself.
void _WritePointsPossible(std::FILE* file, int32_t points) {
  WriteText(file, " [Pts: ");
  WriteInteger(file, points);
}

void _WriteTitle(std::FILE* file, const qz::AssignmentRecord& assignment, const char* quote) {
  WriteText(file, ",");
  WriteText(file, quote);
  Session::WriteSafeCSVString(file, assignment.name.c_str());
  _WritePointsPossible(file, assignment.pointsPossible);
  WriteText(file, " Weight:: 0% Category:: Quiz]");
  WriteText(file, quote);
}

void _WriteRunningTotalTitle(std::FILE* file, const std::vector<GradeColumn>& columns, const char* quote) {
  WriteText(file, ",");
  WriteText(file, quote);
  WriteText(file, "Running Total");
  _WritePointsPossible(file, TotalPointsPossible(columns));
  WriteText(file, "]");
  WriteText(file, quote);
}

void _WritePoints(std::FILE* file, std::optional<double> points, const char* quote) {
  WriteText(file, ",");
  WriteText(file, quote);
  if (points) {
    WriteNumber(file, *points);
  } else {
    WriteText(file, "-");
  }
  WriteText(file, quote);
}

}  // namespace

void SessionBlackboard::WriteHeader(std::FILE* file, const Columns& columns) {
  WriteText(file, "\"Last Name, First Name (User Name) | Student Id\"");
  for (const GradeColumn& column : columns) _WriteTitle(file, *column.assignment, "\"");
  _WriteRunningTotalTitle(file, columns, "\"");
  WriteText(file, ",\"Running Weighted Total\"\n");
}

void SessionBlackboard::WriteStudent(std::FILE* file, const qz::StudentRecord& student) {
  WriteText(file, "\"");
  WriteSafe(file, student.lastName);
  WriteText(file, ", ");
  WriteSafe(file, student.firstName);
  WriteText(file, " (");
  WriteUserID(file, student);
  WriteText(file, ") | \"");  // this generation wants no student id behind the bar
}

void SessionBlackboard::WriteScore(std::FILE* file, const qz::AssignmentRecord& /*assignment*/,
                                   std::optional<double> points) {
  _WritePoints(file, points, "\"");
}

void SessionBlackboard::WriteRowEnd(std::FILE* file, double runningTotal) {
  _WritePoints(file, runningTotal, "\"");
  WriteText(file, ",\"Not Applicable\"");
}

void SessionBlackboard9::WriteHeader(std::FILE* file, const Columns& columns) {
  constexpr const char* kTitles[] = {"Last Name",   "First Name",   "Username",      "Student ID",
                                     "Last Access", "Availability", "Weighted Total"};
  const char* separator = "";
  for (const char* title : kTitles) {
    WriteText(file, separator);
    WriteText(file, Quote());
    WriteText(file, title);
    WriteText(file, Quote());
    separator = ",";
  }
  for (const GradeColumn& column : columns) _WriteTitle(file, *column.assignment, Quote());
  _WriteRunningTotalTitle(file, columns, Quote());
  WriteText(file, "\n");
}

void SessionBlackboard9::WriteStudent(std::FILE* file, const qz::StudentRecord& student) {
  const std::string separator = std::string(Quote()) + "," + Quote();
  WriteText(file, Quote());
  WriteSafe(file, student.lastName);
  WriteText(file, separator.c_str());
  WriteSafe(file, student.firstName);
  WriteText(file, separator.c_str());
  WriteUserID(file, student);
  WriteText(file, separator.c_str());
  WriteSafe(file, student.studentID);
  WriteText(file, separator.c_str());  // no last access
  WriteText(file, separator.c_str());
  WriteText(file, "Yes");
  WriteText(file, separator.c_str());
  WriteText(file, "Not Applicable");
  WriteText(file, Quote());
}

void SessionBlackboard9::WriteScore(std::FILE* file, const qz::AssignmentRecord& /*assignment*/,
                                    std::optional<double> points) {
  _WritePoints(file, points, Quote());
}

void SessionBlackboard9::WriteRowEnd(std::FILE* file, double runningTotal) {
  _WritePoints(file, runningTotal, Quote());
}
