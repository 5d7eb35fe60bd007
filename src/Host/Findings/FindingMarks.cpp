#include "Host/Findings/FindingMarks.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Findings/FindingsModel.h"
#include "Host/Findings/NameList.h"
#include "Systems/IdentifierQuality.h"

namespace host {

namespace {

enum class Where : uint8_t {
  kName,
  kIdentifier,
  kTitle,
  kPoints,
  kAccents,  // wherever such letters are
};

enum class Words : uint8_t {
  kAlone,  // the finding's sentence, as if it were about this place only
  kAll,    // the same, as it is: it is about places that belong together
  kSame,   // who has the same identifier
  kNear,   // who has nearly the same one
};

struct MarkRule {
  std::string_view code;
  Where where;
  Words words = Words::kAlone;
  bool marksNotes = false;
};

// A code that is not among them has no mark: it is about the whole file, or says what has to be known of
// every student.
constexpr MarkRule kRules[] = {
    {"id-missing", Where::kIdentifier, Words::kAlone, true},
    {"id-duplicate", Where::kIdentifier, Words::kSame, true},
    {"id-near-duplicate", Where::kIdentifier, Words::kNear, true},
    {"id-replaced", Where::kIdentifier},
    {"id-quote", Where::kIdentifier},
    {"id-comma", Where::kIdentifier},
    {"id-accents", Where::kIdentifier},
    {"student-id-duplicate", Where::kName, Words::kAll},  // the column shows another field
    {"accents", Where::kAccents},
    {"name-comma", Where::kName},
    {"name-equal", Where::kName, Words::kAll},
    {"name-missing", Where::kName},
    {"name-replaced", Where::kName},
    {"name-quote", Where::kName},
    {"title-comma", Where::kTitle},
    {"title-replaced", Where::kTitle},
    {"title-quote", Where::kTitle},
    {"title-accents", Where::kTitle},
    {"title-equal", Where::kTitle, Words::kAll, true},
    {"title-empty", Where::kTitle, Words::kAlone, true},
    {"title-heading", Where::kTitle, Words::kAlone, true},
    {"title-number", Where::kTitle},
    {"title-total", Where::kTitle},
    {"title-notes", Where::kTitle},
    {"title-backslash", Where::kTitle},
    {"title-bracket", Where::kTitle},
    {"title-asterisk", Where::kTitle},
    {"title-hash", Where::kTitle},
    {"dialog-title-length", Where::kTitle},
    {"dialog-title-equal", Where::kTitle, Words::kAll},
    {"dialog-title-cut", Where::kTitle},
    {"points-zero", Where::kTitle},
    {"score-above-points", Where::kPoints, Words::kAlone, true},
    {"score-above-100", Where::kPoints},
    {"score-negative", Where::kPoints},
    {"score-form", Where::kPoints},
    {"score-rounded", Where::kPoints},
    {"score-no-number", Where::kPoints},
};

const MarkRule* _RuleOf(const Finding& finding) {
  const auto* const rule = std::ranges::find(kRules, std::string_view(finding.code), &MarkRule::code);
  if (rule == std::end(kRules)) return nullptr;
  return IsTrouble(finding.consequence) || rule->marksNotes ? rule : nullptr;
}

bool _HasAccents(std::string_view roman) {
  return std::ranges::any_of(roman, [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; });
}

class Marker {
 public:
  explicit Marker(const ExportSubject& subject) : m_subject(subject) {}

  void Mark(const Finding& finding) {
    const MarkRule* const rule = _RuleOf(finding);
    if (rule == nullptr || finding.places.empty()) return;
    const bool hasOthers = rule->words == Words::kSame || rule->words == Words::kNear;
    if (hasOthers) FindOthers(rule->words);
    const QString sentence = Sentence(finding, rule->words == Words::kAlone);
    for (const FindingPlace& place : finding.places) {
      const QString others = hasOthers ? Others(place.student, rule->words) : QString();
      MarkAt(rule->where, place, finding.consequence, others.isEmpty() ? sentence : others);
    }
  }

  ProblemMarks Marks() && { return std::move(m_marks); }

 private:
  // With one place, the sentence counts none.
  QString Sentence(const Finding& finding, bool isAlone) const {
    Finding said = finding;
    if (isAlone) said.places.resize(1);
    return LineFromUtf8(DescribeFinding(said, m_subject, FindingLanguage()).what);
  }

  void FindOthers(Words words) {
    if (!m_quality) m_quality = JudgeIdentifiers(m_subject.texts, m_subject.identifier);
    m_groupOf.assign(m_quality->students, nullptr);
    const auto& groups = words == Words::kSame ? m_quality->duplicates : m_quality->nearDuplicates;
    for (const std::vector<size_t>& group : groups) {
      for (const size_t student : group) m_groupOf[student] = &group;
    }
  }

  // Nothing for students whose identifiers are equal only in the file.
  QString Others(size_t student, Words words) const {
    if (m_groupOf[student] == nullptr) return {};
    std::vector<size_t> others = *m_groupOf[student];
    std::erase(others, student);
    const qz::StudentField& field = qz::FindStudentField(m_subject.identifier);
    const QString title = LineFromUtf8(DescribeField(field, m_subject.texts, FindingLanguage()));
    const QString names = StudentNames(others, m_subject.texts);
    return words == Words::kSame
               ? Texts::tr("The same in the field “%1”: %2.").arg(title, names)
               : Texts::tr(
                     "Nearly the same in the field “%1”, but for capitals, blanks or leading zeros: %2.")
                     .arg(title, names);
  }

  void MarkAt(Where where, const FindingPlace& place, Consequence consequence, const QString& text) {
    switch (where) {
      case Where::kName: return Add({MarkPlace::kName, place.student}, consequence, text);
      case Where::kIdentifier: return Add({MarkPlace::kIdentifier, place.student}, consequence, text);
      case Where::kTitle:
        return Add({MarkPlace::kTitle, FindingPlace::kNone, place.assignment}, consequence, text);
      case Where::kPoints:
        return Add({MarkPlace::kPoints, place.student, place.assignment}, consequence, text);
      case Where::kAccents: return MarkAccents(place, consequence, text);
    }
  }

  void MarkAccents(const FindingPlace& place, Consequence consequence, const QString& text) {
    if (place.student == FindingPlace::kNone) return MarkAt(Where::kTitle, place, consequence, text);
    const qz::StudentRecord& student = m_subject.texts.Record().students[place.student];
    const bool inIdentifier = _HasAccents(student.GetUserID(m_subject.identifier));
    if (inIdentifier) MarkAt(Where::kIdentifier, place, consequence, text);
    const bool inName = _HasAccents(student.firstName) || _HasAccents(student.lastName);
    if (inName || !inIdentifier) MarkAt(Where::kName, place, consequence, text);
  }

  // The places of a finding mostly ascend, and marks of one kind share their text.
  void Add(const MarkKey& key, Consequence consequence, const QString& text) {
    const size_t count = m_marks.size();
    m_next = m_marks.try_emplace(m_next, key, ProblemMark{consequence, text});
    ProblemMark& mark = m_next->second;
    ++m_next;
    if (m_marks.size() > count) return;
    mark.consequence = std::min(mark.consequence, consequence);  // the worst is the first
    if (!mark.text.isSharedWith(m_oneLine) || !text.isSharedWith(m_line)) {
      m_oneLine = mark.text;
      m_line = text;
      m_bothLines = m_oneLine + u'\n' + m_line;
    }
    mark.text = m_bothLines;
  }

  const ExportSubject& m_subject;
  std::optional<IdentifierQuality> m_quality;
  std::vector<const std::vector<size_t>*> m_groupOf;  // by student; null: alone
  ProblemMarks m_marks;
  ProblemMarks::iterator m_next = m_marks.end();  // where the next mark belongs, if they ascend
  QString m_oneLine, m_line, m_bothLines;         // what was put together last
};

}  // namespace

ProblemMarks MarksOf(const Findings& findings, const ExportSubject& subject) {
  Marker marker(subject);
  for (const Finding& finding : findings) marker.Mark(finding);
  return std::move(marker).Marks();
}

}  // namespace host
