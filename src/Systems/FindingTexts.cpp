#include "Systems/FindingTexts.h"

#include <string_view>

#include "Systems/FindingSentences.h"
#include "Systems/LearningSystem.h"

namespace {

// Replaces what stands between `open` and `close` and has `middle` in it by one of its halves.
std::string _Choose(std::string_view text, std::string_view open, std::string_view middle,
                    std::string_view close, bool first) {
  std::string chosen;
  for (;;) {
    const size_t begin = text.find(open);
    chosen.append(text.substr(0, begin));
    if (begin == std::string_view::npos) return chosen;
    text.remove_prefix(begin + open.size());
    const size_t half = text.find(middle);
    const size_t end = text.find(close, half + middle.size());
    chosen.append(first ? text.substr(0, half)
                        : text.substr(half + middle.size(), end - half - middle.size()));
    text.remove_prefix(end + close.size());
  }
}

class Sentence {
 public:
  Sentence(const Finding& finding, const ExportSubject& subject, TextLanguage language)
      : m_finding(finding), m_subject(subject), m_language(language) {}

  std::string Write(std::string_view pattern) const {
    const bool hasChoice =
        m_subject.dialect == Dialect::kClassic && FindCurrentFile(*m_subject.format) != nullptr;
    const std::string forFile = _Choose(pattern, "{current?", ":else:", "}", hasChoice);
    const std::string forCount = _Choose(forFile, "<", "|", ">", m_finding.places.size() == 1);
    return Fill(forCount);
  }

 private:
  std::string Fill(std::string_view pattern) const {
    std::string text;
    for (;;) {
      const size_t begin = pattern.find('{');
      text.append(pattern.substr(0, begin));
      if (begin == std::string_view::npos) return text;
      const size_t end = pattern.find('}', begin);
      text += Value(pattern.substr(begin + 1, end - begin - 1));
      pattern.remove_prefix(end + 1);
    }
  }

  std::string Value(std::string_view name) const {
    if (name == "system") return SystemOf(*m_subject.format).name;
    if (name == "id") return m_subject.format->idName != nullptr ? m_subject.format->idName : "";
    if (name == "field") {
      return DescribeField(qz::FindStudentField(m_subject.identifier), m_subject.texts, m_language);
    }
    if (name == "count") return std::to_string(m_finding.places.size());
    return m_finding.arguments.at(static_cast<size_t>(name.at(0) - '1'));
  }

  const Finding& m_finding;
  const ExportSubject& m_subject;
  TextLanguage m_language;
};

// For what has neither name nor identifier.
std::string _Number(size_t position) {
  std::string text = "#";
  return text.append(std::to_string(position + 1));
}

std::string _StudentText(size_t student, const ExportSubject& subject) {
  std::string text = subject.texts.StudentName(student);
  const std::string identifier = subject.format->IsReport() ? "" : subject.Identifier(student);
  if (text.empty()) return identifier.empty() ? _Number(student) : identifier;
  return identifier.empty() ? text : text + " (" + identifier + ")";
}

std::string _AssignmentText(size_t assignment, const ExportSubject& subject) {
  const std::string title = subject.texts.AssignmentName(assignment);
  return title.empty() ? _Number(assignment) : title;
}

struct ConsequenceWords {
  const char* key;
  const char* english;
  const char* spanish;
};

const ConsequenceWords& _WordsOf(Consequence consequence) {
  static constexpr ConsequenceWords kWords[] = {
      {"refused", "The file will be refused", "El archivo será rechazado"},
      {"wrong", "Results will land in the wrong place", "Habrá resultados en un lugar equivocado"},
      {"lost", "Something will not arrive", "Algo no llegará"},
      {"changed", "Something will arrive changed", "Algo llegará cambiado"},
      {"note", "Good to know", "Conviene saber"},
  };
  return kWords[static_cast<size_t>(consequence)];
}

}  // namespace

const char* ConsequenceKey(Consequence consequence) {
  return _WordsOf(consequence).key;
}

std::string DescribeConsequence(Consequence consequence, TextLanguage language) {
  const ConsequenceWords& words = _WordsOf(consequence);
  return language == TextLanguage::kSpanish ? words.spanish : words.english;
}

std::string DescribeField(const qz::StudentField& field, const qz::ClassTexts& texts, TextLanguage language) {
  if (language == TextLanguage::kSpanish && field.spanishTitle != nullptr) return field.spanishTitle;
  return texts.FieldTitle(field);
}

FindingText DescribeFinding(const Finding& finding, const ExportSubject& subject, TextLanguage language) {
  const FindingSentences* sentences = FindSentences(finding, SystemOf(*subject.format).key);
  if (sentences == nullptr) return {finding.code, {}};  // a fault of ours, which the tests see
  const FindingWords& words = language == TextLanguage::kSpanish ? sentences->spanish : sentences->english;
  const Sentence sentence(finding, subject, language);
  return {sentence.Write(words.what), sentence.Write(words.advice)};
}

std::string DescribePlace(const FindingPlace& place, const ExportSubject& subject) {
  std::string text;
  const auto add = [&text](const char* separator, const std::string& part) {
    if (!text.empty() && !part.empty()) text += separator;
    text += part;
  };
  if (place.student != FindingPlace::kNone) add(", ", _StudentText(place.student, subject));
  if (place.assignment != FindingPlace::kNone) add(", ", _AssignmentText(place.assignment, subject));
  add(": ", place.detail);
  return text;
}
