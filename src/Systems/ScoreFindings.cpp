#include "Systems/ScoreFindings.h"

#include <cmath>

#include "Common/number.h"
#include "Systems/CurrentFile.h"
#include "Systems/Download.h"
#include "Systems/LearningSystem.h"

namespace {

int32_t _MaxDecimals(const ExportSubject& subject) {
  if (subject.dialect == Dialect::kFilled) {
    const DownloadLayout* download = SystemOf(*subject.format).download;
    return download != nullptr ? download->maxDecimals : -1;
  }
  const CurrentFile* current = FindCurrentFile(*subject.format);
  return current != nullptr ? current->maxDecimals : -1;
}

// Whether the score is above the limit as it is written: a sum of 10.000000000000002 is 10 there.
bool _IsWrittenAbove(const ExportSubject& subject, double points, double limit) {
  return points > limit && ParseDouble(WrittenScore(subject, points).c_str()) > limit;
}

FindingPlace _OfPossible(const ExportCheck& check, size_t student, size_t column, double points) {
  FindingPlace place = ScorePlace(check.subject, student, column, points);
  place.detail.append("/").append(std::to_string(check.Assignment(column).pointsPossible));
  return place;
}

void _FindHighScores(ExportCheck* check) {
  // Without points possible nothing can be above them for certain.
  const bool isTrouble = IsTrouble(check->rules.scoreAbovePoints);
  std::vector<FindingPlace> places;
  std::vector<double> limits;
  for (size_t i = 0; i < check->subject.assignments.size(); ++i) {
    const int32_t possible = check->Assignment(i).pointsPossible;
    limits.push_back(possible > 0 || !isTrouble ? possible : HUGE_VAL);
  }
  check->VisitScores([&](size_t student, size_t column, double points) {
    if (points > limits[column] && std::isfinite(points) &&
        _IsWrittenAbove(check->subject, points, limits[column])) {
      places.push_back(_OfPossible(*check, student, column, points));
    }
  });
  check->Add("score-above-points", check->rules.scoreAbovePoints, std::move(places));
}

void _FindNoNumbers(ExportCheck* check) {
  std::vector<FindingPlace> places;
  check->VisitScores([&](size_t student, size_t column, double points) {
    if (!std::isfinite(points)) places.push_back(ScorePlace(check->subject, student, column, points));
  });
  check->Add("score-no-number", check->rules.scoreNoNumber, std::move(places));
}

// An assignment that nobody has a result on, and a student without any, are one place each.
void _FindMissingResults(ExportCheck* check) {
  const ExportSubject& subject = check->subject;
  if (subject.students.empty()) return;
  std::vector<bool> hasResults(subject.assignments.size());
  size_t columnsWithResults = 0;
  check->VisitScores([&](size_t, size_t column, double) {
    if (!hasResults[column]) ++columnsWithResults;
    hasResults[column] = true;
  });

  std::vector<FindingPlace> places;
  for (size_t column = 0; column < subject.assignments.size(); ++column) {
    if (!hasResults[column]) places.push_back({.assignment = subject.assignments[column]});
  }
  for (const size_t student : subject.students) {
    const auto scores = subject.scores.ScoresOf(student);
    if (scores.size() == columnsWithResults) continue;
    if (scores.empty()) {
      places.push_back({.student = student});
      continue;
    }
    auto score = scores.begin();
    for (size_t column = 0; column < subject.assignments.size(); ++column) {
      if (score != scores.end() && score->assignment == column) {
        ++score;
      } else if (hasResults[column]) {
        places.push_back({.student = student, .assignment = subject.assignments[column]});
      }
    }
  }
  check->Add("result-missing", Consequence::kNote, std::move(places));
}

void _FindResultsOffRoster(ExportCheck* check) {
  const std::vector<size_t>& assignments = check->subject.assignments;
  size_t results = 0;
  for (size_t i = 0; i < assignments.size(); ++i) results += check->Assignment(i).results.size();
  if (results == check->subject.scores.Count()) return;  // every one is a student's

  const RosterIndex roster(check->Record().students);
  std::vector<FindingPlace> places;
  for (const size_t assignment : assignments) {
    for (const qz::ResultsRecord& record : check->Record().assignments[assignment].results) {
      if (roster.NumberOf(record) == RosterIndex::kNone) {
        places.push_back({.assignment = assignment, .detail = std::to_string(record.studentID)});
      }
    }
  }
  check->Add("results-off-roster", Consequence::kNote, std::move(places));
}

}  // namespace

std::string WrittenScore(const ExportSubject& subject, double points) {
  if (subject.dialect == Dialect::kClassic || !std::isfinite(points)) {
    char text[32];
    return {text, FormatGeneral(text, points)};
  }
  return PlainNumber(points, _MaxDecimals(subject));
}

FindingPlace ScorePlace(const ExportSubject& subject, size_t student, size_t column, double points) {
  return {student, subject.assignments[column], WrittenScore(subject, points)};
}

void FindScoreFaults(ExportCheck* check) {
  _FindHighScores(check);
  _FindNoNumbers(check);
  if (check->rules.tellsMissingResults && check->subject.dialect != Dialect::kFilled) {
    _FindMissingResults(check);
  }
  _FindResultsOffRoster(check);
}

std::vector<FindingPlace> ScoresAbove(const ExportCheck& check, double limit) {
  std::vector<FindingPlace> places;
  check.VisitScores([&](size_t student, size_t column, double points) {
    if (std::isfinite(points) && _IsWrittenAbove(check.subject, points, limit)) {
      places.push_back(ScorePlace(check.subject, student, column, points));
    }
  });
  return places;
}

std::vector<FindingPlace> NegativeScores(const ExportCheck& check) {
  std::vector<FindingPlace> places;
  check.VisitScores([&](size_t student, size_t column, double points) {
    if (points < 0 && std::isfinite(points) && WrittenScore(check.subject, points)[0] == '-') {
      places.push_back(ScorePlace(check.subject, student, column, points));
    }
  });
  return places;
}
