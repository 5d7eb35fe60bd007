#include "Systems/GradebookMatch.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "Common/CaseFold.h"
#include "Common/KeyIndex.h"
#include "Systems/LearningSystem.h"
#include "Systems/UploadRules.h"

namespace {

constexpr size_t kNone = GradebookMatch::kNone;
constexpr size_t kSeveral = kNone - 1;

using Texts = std::vector<std::string>;

// Finds the one owner of a text. An empty text is nobody's.
class OwnerIndex {
 public:
  explicit OwnerIndex(size_t expectedTexts) : m_texts(expectedTexts) { m_owners.reserve(expectedTexts); }

  // Owners are the positions in the texts, which outlive the index.
  explicit OwnerIndex(const Texts& texts) : OwnerIndex(texts.size()) {
    for (size_t owner = 0; owner < texts.size(); ++owner) Add(texts[owner], owner);
  }

  void Add(std::string_view text, size_t owner) {
    if (text.empty()) return;
    const size_t number = m_texts.Add(text);
    if (number == m_owners.size()) {
      m_owners.push_back(owner);
    } else if (m_owners[number] != owner) {
      m_owners[number] = kSeveral;
    }
  }

  // kNone: nobody, kSeveral: more than one.
  size_t Find(std::string_view text) const {
    const size_t number = text.empty() ? KeyIndex<std::string_view>::kNone : m_texts.Find(text);
    return number == KeyIndex<std::string_view>::kNone ? kNone : m_owners[number];
  }

 private:
  KeyIndex<std::string_view> m_texts;
  std::vector<size_t> m_owners;
};

template <typename Text>
Texts _Each(const Texts& texts, Text text) {
  Texts changed;
  changed.reserve(texts.size());
  for (const std::string& each : texts) changed.push_back(text(each));
  return changed;
}

// Students and members by the texts of one column.
class StudentMatcher {
 public:
  StudentMatcher(const ExportSubject& subject, const Gradebook& gradebook, GradebookMatch* match)
      : m_subject(subject), m_gradebook(gradebook), m_match(*match) {
    const size_t count = subject.texts.Record().students.size();
    m_match.memberOf.assign(count, kNone);
    m_match.likeMember.assign(count, kNone);
    m_match.students.assign(count, StudentMatch::kUnknown);
    m_match.studentOf.assign(gradebook.members.size(), kNone);
    m_ours.reserve(count);
    for (size_t i = 0; i < count; ++i) {
      m_ours.push_back(subject.Identifier(i));
      if (m_ours.back().empty()) m_match.students[i] = StudentMatch::kNoIdentifier;
    }
  }

  void MatchIdentifiers() {
    const bool folds = m_gradebook.system->download->foldsIdentifierCase;
    const OwnerIndex ours(m_ours);
    Texts theirs = ChooseColumn(m_ours, [](std::string text) { return text; });
    if (m_match.identifierColumn != kNone) MatchExactly(ours, OwnerIndex(theirs));
    Texts oursFolded = _Each(m_ours, FoldCase);
    if (m_match.identifierColumn == kNone) {
      theirs = ChooseColumn(oursFolded, FoldCase);
    } else {
      theirs = _Each(theirs, FoldCase);
    }
    if (m_match.identifierColumn != kNone) MatchFolded(oursFolded, OwnerIndex(theirs), folds);
  }

  void MatchNames() {
    Texts ours;
    for (size_t i = 0; i < m_ours.size(); ++i) ours.push_back(ComparableText(m_subject.texts.StudentName(i)));
    Texts theirs;
    for (const CourseMember& member : m_gradebook.members) theirs.push_back(ComparableText(member.name));
    const OwnerIndex ownersOfOurs(ours);
    const OwnerIndex ownersOfTheirs(theirs);
    for (size_t i = 0; i < ours.size(); ++i) {
      const StudentMatch how = m_match.students[i];
      const bool isUnknown = how == StudentMatch::kUnknown || how == StudentMatch::kNoIdentifier ||
                             how == StudentMatch::kLetterCase;
      const size_t member = ownersOfTheirs.Find(ours[i]);
      if (isUnknown && ownersOfOurs.Find(ours[i]) == i && IsFree(member))
        Join(i, member, StudentMatch::kName);
    }
  }

 private:
  bool IsFree(size_t member) const {
    return member != kNone && member != kSeveral && m_match.studentOf[member] == kNone;
  }

  void Join(size_t student, size_t member, StudentMatch how) {
    m_match.memberOf[student] = member;
    m_match.studentOf[member] = student;
    m_match.students[student] = how;
  }

  // Chooses the column in which most of our texts stand, the first of several such. Gives its texts by
  // member.
  template <typename Text>
  Texts ChooseColumn(const Texts& ours, Text text) {
    size_t most = 0;
    Texts chosen;
    for (const size_t column : IdentifierColumns()) {
      Texts theirs;
      theirs.reserve(m_gradebook.members.size());
      for (const CourseMember& member : m_gradebook.members) {
        theirs.push_back(text(m_gradebook.Identifier(member, column)));
      }
      const size_t hits = CountOwners(ours, OwnerIndex(theirs), column);
      if (hits <= most) continue;
      most = hits;
      chosen = std::move(theirs);
      m_match.identifierColumn = column;
    }
    return chosen;
  }

  // How many of our texts stand in the column. A number that the system gave its users may stand in our class
  // for somebody else: it counts only when most of the names say so, too.
  size_t CountOwners(const Texts& ours, const OwnerIndex& theirs, size_t column) const {
    const bool areOwnNumbers = column == OwnNumbers();
    size_t hits = 0;
    size_t sameNames = 0;
    for (size_t i = 0; i < ours.size(); ++i) {
      const size_t member = theirs.Find(ours[i]);
      if (member == kNone) continue;
      ++hits;
      if (areOwnNumbers && member != kSeveral && HasNameOf(i, member)) ++sameNames;
    }
    return areOwnNumbers && 2 * sameNames < hits ? 0 : hits;
  }

  // The system's own numbers come last.
  std::vector<size_t> IdentifierColumns() const {
    std::vector<size_t> columns;
    for (size_t column = 0; column < m_gradebook.columns.size(); ++column) {
      const bool isIdentifier = m_gradebook.columns[column].role == ColumnRole::kIdentifier;
      if (isIdentifier && column != OwnNumbers()) columns.push_back(column);
    }
    if (OwnNumbers() != kNone) columns.push_back(OwnNumbers());
    return columns;
  }

  // The column of the system's own numbers, or kNone.
  size_t OwnNumbers() const {
    const UploadRules* rules = m_gradebook.system->upload;
    return rules == nullptr || rules->ownNumbers == nullptr ? kNone
                                                            : m_gradebook.FindHeading(rules->ownNumbers);
  }

  bool HasNameOf(size_t student, size_t member) const {
    return ComparableText(m_subject.texts.StudentName(student)) ==
           ComparableText(m_gradebook.members[member].name);
  }

  void MatchExactly(const OwnerIndex& ours, const OwnerIndex& theirs) {
    for (size_t i = 0; i < m_ours.size(); ++i) {
      const size_t member = theirs.Find(m_ours[i]);
      if (ours.Find(m_ours[i]) == kSeveral) {
        m_match.students[i] = StudentMatch::kSharedIdentifier;
      } else if (member == kSeveral) {
        m_match.students[i] = StudentMatch::kSeveralMembers;
      } else if (member != kNone) {
        Join(i, member, StudentMatch::kIdentifier);
      }
    }
  }

  // Of the students who are still unknown. `folds`: to the system the letter case is nothing.
  void MatchFolded(const Texts& ours, const OwnerIndex& theirs, bool folds) {
    const OwnerIndex owners(ours);
    for (size_t i = 0; i < ours.size(); ++i) {
      if (m_match.students[i] != StudentMatch::kUnknown) continue;
      const size_t member = theirs.Find(ours[i]);
      if (member == kNone) continue;
      const bool isOnlyOne = owners.Find(ours[i]) == i;
      if (!folds) {
        m_match.students[i] = StudentMatch::kLetterCase;
        if (isOnlyOne && member != kSeveral) m_match.likeMember[i] = member;
      } else if (!isOnlyOne) {
        m_match.students[i] = StudentMatch::kSharedIdentifier;
      } else if (!IsFree(member)) {
        m_match.students[i] = StudentMatch::kSeveralMembers;
      } else {
        m_match.likeMember[i] = member;
        Join(i, member, StudentMatch::kFoldedIdentifier);
      }
    }
  }

  const ExportSubject& m_subject;
  const Gradebook& m_gradebook;
  GradebookMatch& m_match;
  Texts m_ours;
};

// Columns of the download by title, in the form that `text` gives it.
class TitleIndex {
 public:
  template <typename Text>
  TitleIndex(const Gradebook& gradebook, Text text)
      : m_items(3 * gradebook.columns.size()), m_readOnly(gradebook.columns.size()) {
    m_texts.reserve(3 * gradebook.columns.size());  // the indices have views of them
    for (size_t column = 0; column < gradebook.columns.size(); ++column) {
      const DownloadColumn& each = gradebook.columns[column];
      if (each.role == ColumnRole::kItem) {
        m_items.Add(m_texts.emplace_back(text(each.title)), column);
        m_items.Add(m_texts.emplace_back(text(each.otherTitle)), column);
      } else if (each.role == ColumnRole::kReadOnly) {
        m_readOnly.Add(m_texts.emplace_back(text(each.title)), column);
        m_readOnly.Add(m_texts.emplace_back(text(std::string(gradebook.Heading(column)))), column);
      }
    }
  }

  size_t FindItem(std::string_view text) const { return m_items.Find(text); }
  bool IsReadOnly(std::string_view text) const { return m_readOnly.Find(text) != kNone; }

 private:
  Texts m_texts;
  OwnerIndex m_items;
  OwnerIndex m_readOnly;
};

class TitleMatcher {
 public:
  TitleMatcher(const ExportSubject& subject, const Gradebook& gradebook, GradebookMatch* match)
      : m_subject(subject),
        m_gradebook(gradebook),
        m_match(*match),
        m_exact(gradebook, [](const std::string& text) { return text; }),
        m_folded(gradebook, ComparableText) {
    m_match.columnOf.assign(subject.assignments.size(), kNone);
    m_match.titles.assign(subject.assignments.size(), TitleMatch::kNoColumn);
    m_match.assignmentOf.assign(gradebook.columns.size(), kNone);
  }

  // First, so that no title takes a column away.
  void MatchChosen(const std::vector<std::pair<int32_t, std::string>>& titles) {
    using Kind = ChosenTitleFault::Kind;
    for (size_t choice = 0; choice < titles.size(); ++choice) {
      const size_t assignment = FindAssignment(titles[choice].first);
      const size_t column = FindColumn(titles[choice].second);
      const auto refuse = [this, choice](Kind kind) { m_match.titleFaults.push_back({kind, choice}); };
      if (assignment == kNone) {
        refuse(Kind::kUnknownAssignment);
      } else if (assignment == kSeveral || m_match.columnOf[assignment] != kNone) {
        refuse(Kind::kSeveralAssignments);
      } else if (column == kNone) {
        refuse(IsReadOnly(titles[choice].second) ? Kind::kReadOnly : Kind::kUnknownTitle);
      } else if (column == kSeveral) {
        refuse(Kind::kSeveralColumns);
      } else if (m_match.assignmentOf[column] != kNone) {
        refuse(Kind::kTakenColumn);
      } else {
        Join(assignment, column, TitleMatch::kChosen);
      }
    }
  }

  void MatchTitles() {
    Match(m_subject.titles, m_exact, TitleMatch::kExact);
    Match(_Each(m_subject.titles, ComparableText), m_folded, TitleMatch::kFolded);
  }

 private:
  void Join(size_t assignment, size_t column, TitleMatch how) {
    m_match.columnOf[assignment] = column;
    m_match.assignmentOf[column] = assignment;
    m_match.titles[assignment] = how;
  }

  // Of the assignments that have no column yet and no reason for it.
  void Match(const Texts& ours, const TitleIndex& theirs, TitleMatch how) {
    const OwnerIndex owners(ours);
    for (size_t i = 0; i < ours.size(); ++i) {
      if (m_match.titles[i] != TitleMatch::kNoColumn) continue;
      const size_t column = theirs.FindItem(ours[i]);
      if (column == kNone) {
        if (theirs.IsReadOnly(ours[i])) m_match.titles[i] = TitleMatch::kReadOnly;
      } else if (column == kSeveral) {
        m_match.titles[i] = TitleMatch::kSeveralColumns;
      } else if (owners.Find(ours[i]) == kSeveral || m_match.assignmentOf[column] != kNone) {
        m_match.titles[i] = TitleMatch::kSharedTitle;
      } else {
        Join(i, column, how);
      }
    }
  }

  size_t FindAssignment(int32_t id) const {
    size_t found = kNone;
    for (size_t i = 0; i < m_subject.assignments.size(); ++i) {
      if (m_subject.texts.Record().assignments[m_subject.assignments[i]].id != id) continue;
      found = found == kNone ? i : kSeveral;
    }
    return found;
  }

  // By the whole heading, or by the title.
  size_t FindColumn(const std::string& title) const {
    size_t found = kNone;
    for (size_t column = 0; column < m_gradebook.columns.size(); ++column) {
      if (m_gradebook.columns[column].role != ColumnRole::kItem) continue;
      if (m_gradebook.Heading(column) == title) found = found == kNone ? column : kSeveral;
    }
    if (found != kNone) return found;
    const size_t exact = m_exact.FindItem(title);
    return exact != kNone || m_exact.IsReadOnly(title) ? exact : m_folded.FindItem(ComparableText(title));
  }

  bool IsReadOnly(const std::string& title) const { return m_folded.IsReadOnly(ComparableText(title)); }

  const ExportSubject& m_subject;
  const Gradebook& m_gradebook;
  GradebookMatch& m_match;
  const TitleIndex m_exact;
  const TitleIndex m_folded;
};

}  // namespace

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
  return std::ranges::any_of(memberOf, [](size_t member) { return member != kNone; });
}

GradebookMatch MatchGradebook(const ExportSubject& subject, const Gradebook& gradebook,
                              const MatchChoices& choices) {
  GradebookMatch match;
  StudentMatcher students(subject, gradebook, &match);
  students.MatchIdentifiers();
  if (choices.matchNames) students.MatchNames();
  TitleMatcher titles(subject, gradebook, &match);
  titles.MatchChosen(choices.titles);
  titles.MatchTitles();
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
    if (match.columnOf[i] == kNone) continue;
    const std::optional<double> theirs = gradebook.columns[match.columnOf[i]].pointsPossible;
    const int32_t ours = subject.texts.Record().assignments[subject.assignments[i]].pointsPossible;
    if (theirs && *theirs != ours) different.push_back(i);
  }
  return different;
}
