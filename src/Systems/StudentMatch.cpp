#include <algorithm>
#include <string_view>

#include "Common/CaseFold.h"
#include "Systems/GradebookMatchers.h"
#include "Systems/LearningSystem.h"
#include "Systems/OwnerIndex.h"
#include "Systems/UploadRules.h"

namespace {

constexpr size_t kNone = OwnerIndex::kNone;
constexpr size_t kSeveral = OwnerIndex::kSeveral;

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

  // First, so that no identifier takes a member away.
  void MatchChosen(const std::vector<std::pair<size_t, size_t>>& members) {
    for (const auto& [student, member] : members) {
      if (student >= m_match.memberOf.size() || member >= m_match.studentOf.size()) continue;
      Part(student, m_match.memberOf[student]);
      Part(m_match.studentOf[member], member);
      Join(student, member, StudentMatch::kChosen);
    }
  }

  void MatchIdentifiers() {
    const bool folds = m_gradebook.system->download->foldsIdentifierCase;
    const OwnerIndex ours(m_ours);
    Texts theirs = ChooseColumn(m_ours, [](std::string text) { return text; });
    if (m_match.identifierColumn != kNone) MatchExactly(ours, OwnerIndex(theirs));
    Texts oursFolded = EachText(m_ours, FoldCase);
    if (m_match.identifierColumn == kNone) {
      theirs = ChooseColumn(oursFolded, FoldCase);
    } else {
      theirs = EachText(theirs, FoldCase);
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

  // Takes back a join, if there is one.
  void Part(size_t student, size_t member) {
    if (student == kNone || member == kNone) return;
    m_match.memberOf[student] = kNone;
    m_match.studentOf[member] = kNone;
    m_match.students[student] =
        m_ours[student].empty() ? StudentMatch::kNoIdentifier : StudentMatch::kUnknown;
  }

  bool IsChosen(size_t student) const { return m_match.students[student] == StudentMatch::kChosen; }

  bool IsTaken(size_t member) const {
    return m_match.studentOf[member] != kNone && IsChosen(m_match.studentOf[member]);
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
      if (IsChosen(i)) continue;
      const size_t member = theirs.Find(m_ours[i]);
      if (ours.Find(m_ours[i]) == kSeveral) {
        m_match.students[i] = StudentMatch::kSharedIdentifier;
      } else if (member == kSeveral) {
        m_match.students[i] = StudentMatch::kSeveralMembers;
      } else if (member != kNone && IsTaken(member)) {
        m_match.students[i] = StudentMatch::kTakenMember;
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
      } else if (member != kSeveral && IsTaken(member)) {
        m_match.students[i] = StudentMatch::kTakenMember;
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

}  // namespace

void MatchStudents(const ExportSubject& subject, const Gradebook& gradebook, const MatchChoices& choices,
                   GradebookMatch* match) {
  StudentMatcher matcher(subject, gradebook, match);
  matcher.MatchChosen(choices.members);
  matcher.MatchIdentifiers();
  if (choices.matchNames) matcher.MatchNames();
}
