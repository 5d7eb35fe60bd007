#include "Systems/GradebookMatch.h"

#include <algorithm>
#include <cmath>

#include "Common/CaseFold.h"
#include "Systems/GradebookMatchers.h"

std::string ComparableText(std::string_view text) {
  std::string words;
  bool blank = false;
  for (const char character : text) {
    if (character == ' ' || (character >= '\t' && character <= '\r')) {
      blank = true;
      continue;
    }
    if (blank && !words.empty()) words += ' ';
    blank = false;
    words += character;
  }
  return FoldCase(words);
}

bool GradebookMatch::HasStudents() const {
  return std::ranges::any_of(memberOf, [](size_t member) { return member != GradebookMatch::kNone; });
}

GradebookMatch MatchGradebook(const ExportSubject& subject, const Gradebook& gradebook,
                              const MatchChoices& choices) {
  GradebookMatch match;
  MatchStudents(subject, gradebook, choices, &match);
  MatchTitles(subject, gradebook, choices, &match);
  return match;
}

bool IsSameScore(const Gradebook& gradebook, size_t row, size_t column, double score) {
  const std::optional<double> theirs = gradebook.Score(row, column);
  return theirs && std::isfinite(score) &&
         (*theirs == score || gradebook.ScoreText(*theirs) == gradebook.ScoreText(score));
}

std::vector<size_t> DifferentPoints(const ExportSubject& subject, const Gradebook& gradebook,
                                    const GradebookMatch& match) {
  std::vector<size_t> different;
  for (size_t i = 0; i < match.columnOf.size(); ++i) {
    if (match.columnOf[i] == GradebookMatch::kNone) continue;
    const std::optional<double> theirs = gradebook.columns[match.columnOf[i]].pointsPossible;
    const int32_t ours = subject.texts.Record().assignments[subject.assignments[i]].pointsPossible;
    if (theirs && *theirs != ours) different.push_back(i);
  }
  return different;
}
