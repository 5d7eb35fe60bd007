// Classes and downloaded gradebooks for tests, made from a few words.
#ifndef GRADIX_TESTS_FILL_FIXTURE_H
#define GRADIX_TESTS_FILL_FIXTURE_H

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Export/Fill.h"
#include "Systems/LearningSystem.h"
#include "Tables/DelimitedTable.h"

using Score = std::optional<double>;

// A class whose texts are UTF-8 as long as they are ASCII.
struct TestClass {
  qz::ClassRecord record;
  qz::OriginalTexts originals;

  void AddStudent(std::string first, std::string last, std::string id) {
    qz::StudentRecord student;
    student.firstName = std::move(first);
    student.lastName = std::move(last);
    student.studentID = std::move(id);
    student.id = static_cast<int32_t>(record.students.size()) + 1;
    record.students.push_back(std::move(student));
  }

  // Scores by student.
  void AddAssignment(std::string name, int32_t points, const std::vector<Score>& scores) {
    qz::AssignmentRecord assignment;
    assignment.name = std::move(name);
    assignment.pointsPossible = points;
    assignment.id = 301 + static_cast<int32_t>(record.assignments.size());
    assignment.selected = true;
    for (size_t i = 0; i < scores.size(); ++i) {
      if (!scores[i]) continue;
      qz::ResultsRecord results;
      results.studentID = static_cast<int32_t>(i) + 1;
      results.responses.emplace_back().pointsEarned = *scores[i];
      assignment.results.push_back(std::move(results));
    }
    record.assignments.push_back(std::move(assignment));
  }

  ExportSubject Subject(const LearningSystem& system, Dialect dialect) const {
    const FormatRow* format = FindFormat(std::string_view(system.formats.front().key));
    return MakeExportSubject(*format, {record, originals}, qz::kUserIDStudentID, dialect);
  }
};

inline Gradebook Parsed(const std::string& bytes, const LearningSystem* system = nullptr) {
  Gradebook gradebook;
  const TableFault fault = ParseGradebook(bytes, system, &gradebook);
  EXPECT_EQ(fault.reason, "") << bytes;
  return gradebook;
}

inline std::string Written(const FillPlan& plan) {
  char* text = nullptr;
  size_t size = 0;
  std::FILE* stream = open_memstream(&text, &size);
  EXPECT_EQ(WriteFill(plan, stream).error, 0);
  std::fclose(stream);
  std::string bytes(text, size);
  std::free(text);
  return bytes;
}

#endif  // GRADIX_TESTS_FILL_FIXTURE_H
