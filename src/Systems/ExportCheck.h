// An export while it is judged.
#ifndef GRADIX_SYSTEMS_EXPORTCHECK_H
#define GRADIX_SYSTEMS_EXPORTCHECK_H

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Systems/CheckRules.h"
#include "Systems/ExportSubject.h"
#include "Systems/FileTexts.h"
#include "Systems/Finding.h"

struct ExportCheck {
  explicit ExportCheck(const ExportSubject& judged) : subject(judged), texts(judged) {}

  const ExportSubject& subject;
  const FileTexts texts;
  CheckRules rules = {};
  Findings findings = {};

  const qz::ClassRecord& Record() const { return subject.texts.Record(); }
  const qz::AssignmentRecord& Assignment(size_t column) const {
    return Record().assignments[subject.assignments[column]];
  }

  // Adds nothing when there are no places.
  void Add(const char* code, Consequence consequence, std::vector<FindingPlace> places) {
    if (!places.empty()) findings.push_back({code, consequence, std::move(places)});
  }
  // The same, but a note where no result is concerned, so that none can be lost or go astray.
  void AddForResults(const char* code, Consequence consequence, std::vector<FindingPlace> places) {
    const bool hasResults = std::ranges::any_of(
        places, [&](const FindingPlace& place) { return !subject.scores.ScoresOf(place.student).empty(); });
    const bool isAboutResults = consequence == Consequence::kLost || consequence == Consequence::kWrong;
    Add(code, isAboutResults && !hasResults ? Consequence::kNote : consequence, std::move(places));
  }
  void AddForFile(const char* code, Consequence consequence, std::vector<std::string> arguments = {}) {
    findings.push_back({code, consequence, {}, std::move(arguments)});
  }

  // The columns whose title, as it stands in the file, is `wanted(title)`.
  template <typename Wanted>
  std::vector<FindingPlace> Titles(Wanted wanted) const {
    std::vector<FindingPlace> places;
    for (size_t i = 0; i < texts.titles.size(); ++i) {
      if (wanted(std::string_view(texts.titles[i]))) places.push_back({.assignment = subject.assignments[i]});
    }
    return places;
  }

  // The students of the file whose identifier in the record is `wanted(identifier)`.
  template <typename Wanted>
  std::vector<FindingPlace> Identifiers(Wanted wanted) const {
    const qz::StudentField& field = qz::FindStudentField(subject.identifier);
    std::vector<FindingPlace> places;
    for (const size_t student : subject.students) {
      if (wanted(std::string_view(field.Value(Record().students[student])))) {
        places.push_back({.student = student});
      }
    }
    return places;
  }

  // The scores of the file that are `wanted(points, column)`.
  template <typename Visit>
  void VisitScores(Visit visit) const {
    for (const size_t student : subject.students) {
      for (const ScoreTable::Score& score : subject.scores.ScoresOf(student)) {
        visit(student, score.assignment, score.points);
      }
    }
  }
};

#endif  // GRADIX_SYSTEMS_EXPORTCHECK_H
