#include <string_view>

#include "Systems/GradebookMatchers.h"
#include "Systems/OwnerIndex.h"

namespace {

constexpr size_t kNone = OwnerIndex::kNone;
constexpr size_t kSeveral = OwnerIndex::kSeveral;

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
    Match(EachText(m_subject.titles, ComparableText), m_folded, TitleMatch::kFolded);
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

void MatchTitles(const ExportSubject& subject, const Gradebook& gradebook, const MatchChoices& choices,
                 GradebookMatch* match) {
  TitleMatcher matcher(subject, gradebook, match);
  matcher.MatchChosen(choices.titles);
  matcher.MatchTitles();
}
