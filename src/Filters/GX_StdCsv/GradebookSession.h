// What the gradebook formats share: a header, then one row per student of the class with one cell per
// selected assignment. A format says what its header, its name cells and its score cells look like.
#ifndef GRADIX_GRADEBOOKSESSION_H
#define GRADIX_GRADEBOOKSESSION_H

#include <optional>
#include <string>
#include <vector>

#include "Filters/GX_StdCsv/CsvText.h"
#include "Filters/GX_StdCsv/GradeColumns.h"
#include "Filters/GX_StdCsv/Session.h"

class GradebookSession : public Session {
 public:
  using Session::Session;

 protected:
  using Columns = std::vector<GradeColumn>;

  static void WriteSafe(std::FILE* file, const std::string& text) { WriteSafeCSVString(file, text.c_str()); }

  void WriteUserID(std::FILE* file, const qz::StudentRecord& student) const {
    WriteSafe(file, student.GetUserID(Class().userIDField));
  }

  // The assignment names, each behind a comma, each between two `quote`s.
  static void WriteAssignmentNames(std::FILE* file, const Columns& columns, const char* quote = "");

 private:
  void Write(std::FILE* file) final;

  // The header with its line ends.
  virtual void WriteHeader(std::FILE* file, const Columns& columns) = 0;

  // The cells before the scores, without a comma behind them.
  virtual void WriteStudent(std::FILE* file, const qz::StudentRecord& student) = 0;

  // One score cell with the comma before it. `points` is empty when the student has no results. Writes the
  // points, or an empty cell, unless a format has other ideas.
  virtual void WriteScore(std::FILE* file, const qz::AssignmentRecord& assignment,
                          std::optional<double> points);

  // What follows the scores, without the line end. `runningTotal` is the sum of the row's points.
  virtual void WriteRowEnd(std::FILE* /*file*/, double /*runningTotal*/) {}
};

#endif  // GRADIX_GRADEBOOKSESSION_H
