#include <algorithm>
#include <map>
#include <string_view>

#include "Common/KeyIndex.h"
#include "Systems/LearningSystem.h"
#include "Systems/UploadRules.h"

namespace {

constexpr size_t kNone = GradebookMatch::kNone;

// The number at the beginning of a text as the system reads it, "" when there is none.
std::string _LeadingNumber(std::string_view text) {
  const size_t end = std::min(text.find_first_not_of("0123456789"), text.size());
  if (end == 0) return "";
  const size_t begin = std::min(text.find_first_not_of('0'), end - 1);
  return std::string(text.substr(begin, end - begin));
}

class GradebookFindings {
 public:
  GradebookFindings(const ExportSubject& subject, const Gradebook& gradebook, const GradebookMatch& match)
      : m_subject(subject),
        m_gradebook(gradebook),
        m_match(match),
        m_rules(gradebook.system->upload != nullptr ? *gradebook.system->upload : kNoRules) {
    for (size_t column = 0; column < gradebook.columns.size(); ++column) {
      if (gradebook.columns[column].role != ColumnRole::kItem) continue;
      m_firstColumns.try_emplace(gradebook.columns[column].title, column);
    }
  }

  Findings Find() {
    if (m_subject.dialect != Dialect::kFilled) {
      if (m_match.HasStudents() || m_rules.showsAllIdentifiers) {
        FindErased();
        FindNumbersOfOthers();
        FindUnknownStudents();
        FindOtherCase();
        FindMembersWithoutResult();
      } else {
        m_findings.push_back({"gradebook-no-ids", Consequence::kNote});
      }
      FindSecondColumns();
      FindSeveralColumns();
    }
    FindCapped();
    FindDifferentPoints();
    return m_findings;
  }

 private:
  static constexpr UploadRules kNoRules = {};

  void Add(const char* code, Consequence consequence, std::vector<FindingPlace> places) {
    if (!places.empty()) m_findings.push_back({code, consequence, std::move(places)});
  }

  FindingPlace Place(size_t student, size_t assignment, std::string detail) const {
    return {student, m_subject.assignments[assignment], std::move(detail)};
  }

  // The column that the system itself puts the assignment into.
  size_t ColumnOf(size_t assignment) const {
    if (!m_rules.secondColumn || m_subject.dialect == Dialect::kFilled) return m_match.columnOf[assignment];
    switch (m_match.titles[assignment]) {
      case TitleMatch::kFolded: return kNone;
      case TitleMatch::kSeveralColumns: return FirstColumn(m_subject.titles[assignment]);
      default: return m_match.columnOf[assignment];
    }
  }

  // Of those with exactly the title, or kNone.
  size_t FirstColumn(const std::string& title) const {
    const auto found = m_firstColumns.find(title);
    return found == m_firstColumns.end() ? kNone : found->second;
  }

  size_t RowOf(size_t student) const { return m_gradebook.members[m_match.memberOf[student]].row; }

  bool IsInCourse(size_t student) const { return m_match.memberOf[student] != kNone; }

  // Whether a score of ours differs from what stands in the column.
  bool Changes(size_t assignment, size_t column) const {
    return std::ranges::any_of(m_subject.students, [this, assignment, column](size_t student) {
      if (!IsInCourse(student)) return false;
      const std::optional<double> score = m_subject.scores.Find(student, assignment);
      return score && !IsSameScore(m_gradebook, RowOf(student), column, *score);
    });
  }

  void FindErased() {
    if (m_rules.blank == BlankScore::kUnknown) return;
    std::vector<FindingPlace> places;
    for (size_t i = 0; i < m_subject.assignments.size(); ++i) {
      const size_t column = ColumnOf(i);
      if (column == kNone) continue;
      if (m_rules.blank == BlankScore::kErasesWhenChanging && !Changes(i, column)) continue;
      for (const size_t student : m_subject.students) {
        if (!IsInCourse(student) || m_subject.scores.Find(student, i)) continue;
        if (!m_gradebook.HasScore(RowOf(student), column)) continue;
        places.push_back(Place(student, i, std::string(m_gradebook.table.Text(RowOf(student), column))));
      }
    }
    Add("gradebook-erased", Consequence::kWrong, std::move(places));
  }

  void FindNumbersOfOthers() {
    if (m_rules.ownNumbers == nullptr || m_subject.dialect != Dialect::kClassic) return;
    const size_t column = m_gradebook.FindHeading(m_rules.ownNumbers);
    if (column == Gradebook::kNone) return;
    std::vector<std::string> numbers;
    numbers.reserve(m_gradebook.members.size());
    KeyIndex<std::string_view> index(m_gradebook.members.size());
    std::vector<size_t> members;
    for (size_t member = 0; member < m_gradebook.members.size(); ++member) {
      numbers.push_back(_LeadingNumber(m_gradebook.Identifier(m_gradebook.members[member], column)));
      if (index.Add(numbers.back()) == members.size()) members.push_back(member);
    }
    std::vector<FindingPlace> places;
    for (const size_t student : m_subject.students) {
      const std::string number = _LeadingNumber(m_subject.Identifier(student));
      const size_t found = number.empty() ? kNone : index.Find(number);
      if (found == kNone || members[found] == m_match.memberOf[student]) continue;
      places.push_back({.student = student, .detail = m_gradebook.members[members[found]].name});
    }
    Add("gradebook-id-of-other", Consequence::kWrong, std::move(places));
  }

  void FindUnknownStudents() {
    std::vector<FindingPlace> places;
    for (const size_t student : m_subject.students) {
      const StudentMatch how = m_match.students[student];
      const bool isUnknown =
          how == StudentMatch::kUnknown || (how == StudentMatch::kNoIdentifier && m_rules.matchesNames);
      if (!isUnknown) continue;
      if (m_rules.refusesUnknownRows || !m_subject.scores.ScoresOf(student).empty()) {
        places.push_back({.student = student});
      }
    }
    Add("gradebook-unknown-student", m_rules.unknownStudent, std::move(places));
  }

  void FindOtherCase() {
    std::vector<FindingPlace> same;
    std::vector<FindingPlace> another;
    for (const size_t student : m_subject.students) {
      const StudentMatch how = m_match.students[student];
      if (how != StudentMatch::kFoldedIdentifier && how != StudentMatch::kLetterCase) continue;
      const size_t member = m_match.likeMember[student];
      FindingPlace place{.student = student};
      if (member != kNone) {
        place.detail = m_gradebook.Identifier(m_gradebook.members[member], m_match.identifierColumn);
      }
      (how == StudentMatch::kFoldedIdentifier ? same : another).push_back(std::move(place));
    }
    Add("gradebook-id-case", m_rules.otherCase, std::move(another));
    Add("gradebook-id-case", Consequence::kNote, std::move(same));
  }

  void FindMembersWithoutResult() {
    std::vector<FindingPlace> places;
    for (size_t member = 0; member < m_gradebook.members.size(); ++member) {
      const size_t student = m_match.studentOf[member];
      if (student == kNone) {
        places.push_back({.detail = m_gradebook.members[member].name});
      } else if (m_subject.scores.ScoresOf(student).empty()) {
        places.push_back({.student = student});
      }
    }
    Add("gradebook-no-result", Consequence::kNote, std::move(places));
  }

  void FindSecondColumns() {
    if (!m_rules.secondColumn) return;
    std::vector<FindingPlace> places;
    for (size_t i = 0; i < m_subject.assignments.size(); ++i) {
      if (m_match.titles[i] != TitleMatch::kFolded) continue;
      places.push_back(Place(FindingPlace::kNone, i, m_gradebook.columns[m_match.columnOf[i]].title));
    }
    Add("gradebook-second-column", *m_rules.secondColumn, std::move(places));
  }

  void FindSeveralColumns() {
    if (!m_rules.secondColumn) return;
    std::vector<FindingPlace> places;
    for (size_t i = 0; i < m_subject.assignments.size(); ++i) {
      if (m_match.titles[i] == TitleMatch::kSeveralColumns)
        places.push_back(Place(FindingPlace::kNone, i, ""));
    }
    Add("gradebook-several-columns", Consequence::kNote, std::move(places));
  }

  // Above the points there, where they are fewer than ours: those above ours are everybody's finding.
  void FindCapped() {
    if (!m_rules.capsScores) return;
    std::vector<FindingPlace> places;
    for (const size_t i : DifferentPoints(m_subject, m_gradebook, m_match)) {
      if (ColumnOf(i) == kNone) continue;
      const double theirs = *m_gradebook.columns[ColumnOf(i)].pointsPossible;
      const int32_t ours = m_subject.texts.Record().assignments[m_subject.assignments[i]].pointsPossible;
      for (const size_t student : m_subject.students) {
        const std::optional<double> score = m_subject.scores.Find(student, i);
        if (!score || *score <= theirs || *score > ours || !IsInCourse(student)) continue;
        places.push_back(
            Place(student, i, m_gradebook.ScoreText(*score) + "/" + m_gradebook.ScoreText(theirs)));
      }
    }
    Add("gradebook-score-above-points", Consequence::kChanged, std::move(places));
  }

  void FindDifferentPoints() {
    std::vector<FindingPlace> places;
    for (const size_t i : DifferentPoints(m_subject, m_gradebook, m_match)) {
      if (ColumnOf(i) == kNone) continue;
      const int32_t ours = m_subject.texts.Record().assignments[m_subject.assignments[i]].pointsPossible;
      const double theirs = *m_gradebook.columns[ColumnOf(i)].pointsPossible;
      places.push_back(
          Place(FindingPlace::kNone, i, std::to_string(ours) + " / " + m_gradebook.ScoreText(theirs)));
    }
    const bool isFilled = m_subject.dialect == Dialect::kFilled;
    Add("gradebook-points", isFilled ? Consequence::kNote : m_rules.otherPoints, std::move(places));
  }

  const ExportSubject& m_subject;
  const Gradebook& m_gradebook;
  const GradebookMatch& m_match;
  const UploadRules& m_rules;
  std::map<std::string_view, size_t> m_firstColumns;  // by title
  Findings m_findings;
};

}  // namespace

Findings CheckAgainstGradebook(const ExportSubject& subject, const Gradebook& gradebook,
                               const GradebookMatch& match) {
  return GradebookFindings(subject, gradebook, match).Find();
}
