#include "Systems/FileTexts.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "Common/RomanText.h"
#include "Filters/GX_StdCsv/GradebookLayout.h"
#include "Systems/CurrentFile.h"
#include "Systems/LearningSystem.h"

namespace {

// What the bytes of a record's text may tell.
enum Trait : uint8_t {
  kComma = 1,
  kQuote = 2,
  kQuestionMark = 4,  // may stand for a letter that was lost
  kAccent = 8,
  kBeyondLatin1 = 16,
};

std::array<uint8_t, 256> _MakeTraits() {
  std::array<uint8_t, 256> traits{};
  for (size_t byte = 0x80; byte < traits.size(); ++byte) {
    traits[byte] = kAccent;
    if (UnicodeFromRoman(static_cast<char>(byte)) > 0xFF) traits[byte] |= kBeyondLatin1;
  }
  traits[','] = kComma;
  traits['"'] = kQuote;
  traits['?'] = kQuestionMark;
  return traits;
}

const std::array<uint8_t, 256> gTraits = _MakeTraits();

uint8_t _TraitsOf(std::string_view text) {
  uint8_t traits = 0;
  for (const char byte : text) traits |= gTraits[static_cast<unsigned char>(byte)];
  return traits;
}

bool _LooksLikeFormula(std::string_view text) {
  return !text.empty() && (text[0] == '=' || text[0] == '+' || text[0] == '-' || text[0] == '@');
}

// Which is one to a spreadsheet, too.
bool _IsNumber(std::string_view text) {
  return text.size() > 1 && text.find_first_not_of("0123456789.,", 1) == std::string_view::npos &&
         (text[0] == '-' || text[0] == '+');
}

// A two-byte form that begins with a byte above 0xC3, and every longer form, is beyond ISO-8859-1.
bool _IsBeyondLatin1(std::string_view utf8) {
  return std::ranges::any_of(utf8, [](char byte) { return static_cast<unsigned char>(byte) > 0xC3; });
}

// With "?" for what ISO-8859-1 lacks.
std::string _WithinLatin1(std::string_view utf8) {
  std::string text;
  for (size_t i = 0; i < utf8.size(); ++i) {
    const auto byte = static_cast<unsigned char>(utf8[i]);
    if (byte > 0xC3) {
      text += '?';
      while (i + 1 < utf8.size() && (static_cast<unsigned char>(utf8[i + 1]) & 0xC0U) == 0x80U) ++i;
    } else {
      text += utf8[i];
    }
  }
  return text;
}

// How the file writes texts.
class TextRules {
 public:
  explicit TextRules(const ExportSubject& subject) : m_dialect(subject.dialect) {
    const CurrentFile* current = FindCurrentFile(*subject.format);
    m_isLatin1 =
        m_dialect == Dialect::kCurrent && current != nullptr && current->encoding == TextEncoding::kLatin1;
  }

  bool IsClassic() const { return m_dialect == Dialect::kClassic; }

  // Whether letters were lost on the way into the file. `original` is null unless the record lost some.
  bool IsReplaced(uint8_t traits, const std::string* original) const {
    if (IsClassic()) return original != nullptr;
    if (!m_isLatin1) return false;
    return original != nullptr ? _IsBeyondLatin1(*original) : (traits & kBeyondLatin1) != 0;
  }

  std::string AsWritten(const std::string& roman, const std::string* original) const {
    if (!IsClassic()) {
      std::string text = original != nullptr ? *original : Utf8FromRoman(roman);
      return m_isLatin1 ? _WithinLatin1(text) : text;
    }
    std::string text = roman;
    std::ranges::replace(text, '"', '\'');
    return Utf8FromRoman(text);
  }

 private:
  Dialect m_dialect;
  bool m_isLatin1;
};

// A student field in the file.
struct FieldCell {
  const qz::StudentField* field;
  TextPlaces* places;
  bool isQuoted;
  bool beginsCell;
};

void _AddOnce(std::vector<FindingPlace>* places, FindingPlace place) {
  if (!places->empty() && places->back().student == place.student &&
      places->back().assignment == place.assignment) {
    return;
  }
  places->push_back(std::move(place));
}

// Sorts one text of the file into the lists.
class TextSorter {
 public:
  explicit TextSorter(const ExportSubject& subject) : m_rules(subject) {}

  // `findOriginal` is asked only for texts that may have one.
  template <typename FindOriginal>
  void Sort(const std::string& roman, FindOriginal findOriginal, const FindingPlace& place, bool isQuoted,
            TextPlaces* places) const {
    const uint8_t traits = _TraitsOf(roman);
    if (traits == 0) return;
    const std::string* original = (traits & kQuestionMark) != 0 ? findOriginal() : nullptr;
    if (m_rules.IsReplaced(traits, original)) {
      FindingPlace replaced = place;
      replaced.detail = m_rules.AsWritten(roman, original);
      _AddOnce(&places->replaced, std::move(replaced));
    }
    if (!m_rules.IsClassic()) return;  // texts are in quotes, in which all others are kept
    if ((traits & kComma) != 0 && !isQuoted) _AddOnce(&places->separators, place);
    if ((traits & kAccent) != 0) _AddOnce(&places->accents, place);
    if ((traits & kQuote) != 0) _AddOnce(&places->quotes, place);
  }

 private:
  TextRules m_rules;
};

const GradebookLayout& _LayoutOf(const ExportSubject& subject) {
  const CurrentFile* current =
      subject.dialect == Dialect::kCurrent ? FindCurrentFile(*subject.format) : nullptr;
  return current != nullptr && current->layout != nullptr ? *current->layout : *subject.format->layout;
}

bool _AreCellsQuoted(const GradebookColumn& column) {
  return column.quotes == Quotes::kCells || column.quotes == Quotes::kBoth;
}

bool _IsTitleQuoted(const GradebookColumn& column) {
  return column.quotes == Quotes::kTitle || column.quotes == Quotes::kBoth;
}

void _AddCells(std::span<const GradebookColumn> columns, const qz::StudentField& identifier, bool hasQuotes,
               FileTexts* texts, std::vector<FieldCell>* cells) {
  for (const GradebookColumn& column : columns) {
    bool beginsCell = true;
    for (const Pattern::Piece& piece : column.cell.Pieces()) {
      const bool isQuoted = hasQuotes && _AreCellsQuoted(column);
      if (piece.value == Pattern::Value::kField) {
        cells->push_back({piece.field, &texts->names, isQuoted, beginsCell});
      } else if (piece.value == Pattern::Value::kIdentifier) {
        cells->push_back({&identifier, &texts->identifiers, isQuoted, beginsCell});
      }
      beginsCell = false;
    }
  }
}

std::vector<FieldCell> _CellsOf(const ExportSubject& subject, FileTexts* texts) {
  std::vector<FieldCell> cells;
  if (subject.format->IsReport()) {
    const auto shown = static_cast<uint32_t>(subject.texts.Record().optionValue);
    for (const qz::StudentField& field : qz::kStudentFields) {
      if ((field.reportBit & shown) != 0) cells.push_back({&field, &texts->names, true, true});
    }
    return cells;
  }
  const GradebookLayout& layout = _LayoutOf(subject);
  const qz::StudentField& identifier = qz::FindStudentField(subject.identifier);
  const bool hasQuotes = subject.useQuotes || !layout.quotesAreOptional;
  _AddCells(layout.leading, identifier, hasQuotes, texts, &cells);
  _AddCells(layout.trailing, identifier, hasQuotes, texts, &cells);
  return cells;
}

void _SortStudents(const ExportSubject& subject, const TextSorter& sorter, FileTexts* texts) {
  const std::vector<FieldCell> cells = _CellsOf(subject, texts);
  const qz::ClassTexts& all = subject.texts;
  for (const size_t student : subject.students) {
    for (const FieldCell& cell : cells) {
      const std::string& text = cell.field->Value(all.Record().students[student]);
      const FindingPlace place{.student = student};
      sorter.Sort(
          text, [&] { return all.Originals().OfStudent(student, *cell.field); }, place, cell.isQuoted,
          cell.places);
      if (cell.beginsCell && _LooksLikeFormula(text)) _AddOnce(&cell.places->formulas, place);
    }
  }
}

// The titles of the file's own columns as it has them in one piece.
std::vector<std::string> _HeadingsOf(const GradebookLayout& layout) {
  std::vector<std::string> headings;
  for (const auto& columns : {layout.leading, layout.trailing}) {
    for (const GradebookColumn& column : columns) {
      const auto pieces = column.title.Pieces();
      if (pieces.size() == 1 && pieces[0].value == Pattern::Value::kText) {
        headings.emplace_back(pieces[0].text);
      }
    }
  }
  return headings;
}

void _SortTitles(const ExportSubject& subject, const TextSorter& sorter, FileTexts* texts) {
  const GradebookLayout& layout = _LayoutOf(subject);
  const bool isQuoted = (subject.useQuotes || !layout.quotesAreOptional) && _IsTitleQuoted(layout.score);
  const auto pieces = layout.score.title.Pieces();
  texts->titlesStandAlone = pieces.size() == 1;
  texts->headings = _HeadingsOf(layout);

  const qz::ClassTexts& all = subject.texts;
  const TextRules rules(subject);
  for (const size_t assignment : subject.assignments) {
    const FindingPlace place{.assignment = assignment};
    std::string name = all.Record().assignments[assignment].name;
    const std::string* original = all.Originals().OfAssignment(assignment, qz::AssignmentText::kName);
    if (subject.throughDialog && name.size() > kDialogTitleSize) name.resize(kDialogTitleSize);
    sorter.Sort(
        name, [&] { return original; }, place, isQuoted, &texts->inTitles);
    if (!pieces.empty() && pieces[0].value == Pattern::Value::kName && _LooksLikeFormula(name)) {
      texts->inTitles.formulas.push_back(place);
    }
    texts->titles.push_back(rules.AsWritten(name, original));
  }
}

// The report's answers: those of the students' first results on its assignment.
void _SortAnswers(const ExportSubject& subject, const TextSorter& sorter, FileTexts* texts) {
  const qz::ClassRecord& record = subject.texts.Record();
  if (!record.options[qz::kReportResponses] || subject.assignments.empty()) return;
  const size_t assignment = subject.assignments.front();
  const std::vector<qz::ResultsRecord>& all = record.assignments[assignment].results;
  const auto found = RosterIndex(record.students).FindResults(record.assignments[assignment]);
  for (size_t student = 0; student < found.size(); ++student) {
    if (found[student] == nullptr) continue;
    const auto results = static_cast<size_t>(found[student] - all.data());
    const FindingPlace place{.student = student};
    for (size_t i = 0; i < found[student]->responses.size(); ++i) {
      const std::string& text = found[student]->responses[i].text;
      const auto original = [&] { return subject.texts.Originals().OfResponse(assignment, results, i); };
      sorter.Sort(text, original, place, true, &texts->answers);
      if (_LooksLikeFormula(text) && !_IsNumber(text)) _AddOnce(&texts->answers.formulas, place);
    }
  }
}

}  // namespace

FileTexts::FileTexts(const ExportSubject& subject) {
  if (subject.dialect == Dialect::kFilled) {
    titles = subject.titles;
    return;
  }
  const TextSorter sorter(subject);
  _SortStudents(subject, sorter, this);
  if (subject.format->IsReport()) {
    _SortAnswers(subject, sorter, this);
  } else {
    _SortTitles(subject, sorter, this);
  }
}

std::string FileTexts::Identifier(const ExportSubject& subject, size_t student) {
  const qz::StudentField& field = qz::FindStudentField(subject.identifier);
  return TextRules(subject).AsWritten(field.Value(subject.texts.Record().students[student]),
                                      subject.texts.Originals().OfStudent(student, field));
}
