// What a gradebook file looks like, as data: its columns, their titles, and what stands in them.
#ifndef GRADIX_GRADEBOOKLAYOUT_H
#define GRADIX_GRADEBOOKLAYOUT_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "Common/QZData/StudentFields.h"

// A text in which names in braces stand for values: "{last-name}, {first-name}". It is taken apart by the
// compiler, which refuses unknown names.
//
// In cells: the key of a student field; {identifier}, the field chosen as such; {running-total}, the sum of
// the row's points; and in those of assignments {points} or {percent}, of the points possible. In titles:
// {points-possible}, the sum of all assignments; and in those of assignments {name} and {points-possible},
// its own.
class Pattern {
 public:
  enum class Value : uint8_t {
    kText,
    kField,
    kIdentifier,
    kName,
    kPointsPossible,
    kPoints,
    kPercent,
    kRunningTotal
  };

  struct Piece {
    Value value = Value::kText;
    std::string_view text = {};               // kText only
    const qz::StudentField* field = nullptr;  // kField only
  };

  consteval Pattern(const char* text) {  // NOLINT(google-explicit-constructor): a layout is full of them
    std::string_view rest(text);
    while (!rest.empty()) {
      if (rest.front() != '{') {
        const std::string_view plain = rest.substr(0, rest.find('{'));
        m_pieces[m_count++] = {.text = plain};
        rest.remove_prefix(plain.size());
      } else {
        const size_t end = rest.find('}');
        m_pieces[m_count++] = Named(rest.substr(1, end - 1));
        rest.remove_prefix(end + 1);
      }
    }
  }

  constexpr std::span<const Piece> Pieces() const { return std::span(m_pieces).first(m_count); }

 private:
  static consteval Piece Named(std::string_view name) {
    if (name == "identifier") return {.value = Value::kIdentifier};
    if (name == "name") return {.value = Value::kName};
    if (name == "points-possible") return {.value = Value::kPointsPossible};
    if (name == "points") return {.value = Value::kPoints};
    if (name == "percent") return {.value = Value::kPercent};
    if (name == "running-total") return {.value = Value::kRunningTotal};
    // Not by comparing a pointer with null, which is no constant expression for gcc's sanitizers.
    for (const qz::StudentField& field : qz::kStudentFields) {
      if (field.key == name) return {.value = Value::kField, .field = &field};
    }
    throw "no such value";
  }

  std::array<Piece, 6> m_pieces;
  size_t m_count = 0;
};

// What stands in double quotes.
enum class Quotes : uint8_t { kNone, kTitle, kCells, kBoth };

struct GradebookColumn {
  Pattern title;
  Pattern cell;
  Quotes quotes = Quotes::kNone;
};

struct GradebookLayout {
  std::span<const GradebookColumn> leading;  // the columns before the scores
  GradebookColumn score;                     // one for each selected assignment
  std::string_view noScore = {};             // its cell for a student without results
  std::span<const GradebookColumn> trailing = {};
  std::string_view titleSeparator = ",";  // cells have a comma between them
  const char* pointsPossibleTitle =
      nullptr;                     // of a second header line, with the points possible of each assignment
  bool quotesAreOptional = false;  // Session::m_bUseQuotes leaves out all of them
};

#endif  // GRADIX_GRADEBOOKLAYOUT_H
