#include "Filters/GX_StdCsv/FieldText.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "Common/RomanText.h"
#include "Export/IdentifierCheck.h"
#include "Systems/LearningSystem.h"

namespace {

using Group = std::vector<size_t>;  // students with one identifier

// {1}, {2}, ... are the arguments.
struct Words {
  const char *have, *has;         // filled, students, field
  const char *share, *shareMore;  // a student, another, their identifier, how many more
  const char* shareToo;           // how many share other ones
  const char *noStudents, *noneFilled;
  const char* stops;  // while
  const char *twoEqual, *twoEmpty, *separator;
};

const Words& _WordsIn(TextLanguage language) {
  static constexpr Words kEnglish = {
      .have = "{1} of {2} students have {3}",
      .has = "{1} of {2} student has {3}",
      .share = "; {1} and {2} share {3}",
      .shareMore = "; {1}, {2} and {4} more share {3}",
      .shareToo = ", and {1} other students share as well",
      .noStudents = "The class has no students, so OK stops.",
      .noneFilled = " OK stops; choose another field.",
      .stops = " OK stops while {1}.",
      .twoEqual = "two are equal",
      .twoEmpty = "more than one is empty",
      .separator = " or ",
  };
  static constexpr Words kSpanish = {
      .have = "{1} de {2} estudiantes tienen {3}",
      .has = "{1} de {2} estudiante tiene {3}",
      .share = "; {1} comparte {3} con {2}",
      .shareMore = "; {1} comparte {3} con {2} y {4} más",
      .shareToo = ", y otros {1} estudiantes también comparten",
      .noStudents = "La clase no tiene estudiantes, así que Aceptar no sigue.",
      .noneFilled = " Aceptar no sigue; elija otro campo.",
      .stops = " Aceptar no sigue mientras haya {1}.",
      .twoEqual = "dos iguales",
      .twoEmpty = "más de uno vacío",
      .separator = " o ",
  };
  return language == TextLanguage::kSpanish ? kSpanish : kEnglish;
}

std::string _Fill(std::string_view pattern, std::initializer_list<std::string> arguments) {
  std::string text;
  for (;;) {
    const size_t begin = pattern.find('{');
    text.append(pattern.substr(0, begin));
    if (begin == std::string_view::npos) return text;
    text += arguments.begin()[pattern[begin + 1] - '1'];
    pattern.remove_prefix(begin + 3);
  }
}

// As the sentence has it: "a Student ID"; the class's labels may be anything.
std::string _FieldText(const ExportSubject& subject, TextLanguage language) {
  const qz::StudentField& field = qz::FindStudentField(subject.identifier);
  const std::string title = DescribeField(field, subject.texts, language);
  if (language == TextLanguage::kSpanish) return std::string("«").append(title).append("»");
  return field.title != nullptr ? std::string("a ").append(title)
                                : std::string("“").append(title).append("” filled in");
}

std::string _NameOf(const ExportSubject& subject, size_t student) {
  const std::string name = subject.texts.StudentName(student);
  return name.empty() ? std::string("#").append(std::to_string(student + 1)) : name;
}

std::string _DescribeGroup(const ExportSubject& subject, const Group& group, const Words& words) {
  const qz::StudentRecord& first = subject.texts.Record().students[group[0]];
  return _Fill(group.size() == 2 ? words.share : words.shareMore,
               {_NameOf(subject, group[0]), _NameOf(subject, group[1]),
                Utf8FromRoman(first.GetUserID(subject.identifier)), std::to_string(group.size() - 2)});
}

// Who shares an identifier; the first group by name.
std::string _DescribeShared(const ExportSubject& subject, const std::vector<Group>& shared,
                            const Words& words) {
  if (shared.empty()) return {};
  std::string text = _DescribeGroup(subject, shared.front(), words);
  size_t others = 0;
  for (size_t i = 1; i < shared.size(); ++i) others += shared[i].size();
  if (others > 0) text += _Fill(words.shareToo, {std::to_string(others)});
  return text;
}

std::string _DescribeStop(const IdentifierCheck& check, bool isShared, const Words& words) {
  if (check.AllEmpty()) return words.noneFilled;
  if (!check.HasDuplicates()) return {};
  std::string why = isShared ? words.twoEqual : "";
  if (check.empty.size() > 1) why.append(isShared ? words.separator : "").append(words.twoEmpty);
  return _Fill(words.stops, {why});
}

std::string _DescribeIdentifiers(const ExportSubject& subject, IdentifierCheck check, TextLanguage language) {
  const Words& words = _WordsIn(language);
  if (check.studentCount == 0) return words.noStudents;
  std::vector<Group> shared = check.duplicates;
  std::erase_if(shared, [&check](const Group& group) {
    return !check.empty.empty() && group.front() == check.empty.front();
  });
  std::string text = _Fill(check.studentCount == 1 ? words.has : words.have,
                           {std::to_string(check.studentCount - check.empty.size()),
                            std::to_string(check.studentCount), _FieldText(subject, language)});
  return text.append(_DescribeShared(subject, shared, words))
      .append(".")
      .append(_DescribeStop(check, !shared.empty(), words));
}

// An export that does not take place loses and confuses nobody.
bool _IsSaid(const Finding& finding, const IdentifierCheck& check) {
  const std::string_view code = finding.code;
  return (check.HasDuplicates() || check.AllEmpty()) && (code == "id-duplicate" || code == "id-missing");
}

}  // namespace

std::string DescribeChosenField(const ExportSubject& subject, TextLanguage language) {
  const IdentifierCheck check = CheckIdentifiers(subject);
  std::string text = _DescribeIdentifiers(subject, check, language);
  for (const Finding& finding : CheckExport(subject)) {
    if (!IsTrouble(finding.consequence)) break;
    if (_IsSaid(finding, check)) continue;
    return text.append(" ").append(DescribeFinding(finding, subject, language).what);
  }
  return text;
}
