#include "Systems/DownloadText.h"

#include <algorithm>
#include <cmath>

#include "Common/asciicase.h"
#include "Common/number.h"

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

bool _IsDigit(char character) {
  return character >= '0' && character <= '9';
}

// The part of the text behind its leading digits.
std::string_view _SkipDigits(std::string_view text) {
  while (!text.empty() && _IsDigit(text.front())) text.remove_prefix(1);
  return text;
}

}  // namespace

std::string_view TrimBlanks(std::string_view text) {
  const size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

bool IsHeading(std::string_view cell, std::string_view heading) {
  return AsciiEqualNoCase(TrimBlanks(cell), heading);
}

bool HasHeading(const DelimitedTable& table, std::string_view heading) {
  for (size_t column = 0; column < table.ColumnCount(); ++column) {
    if (IsHeading(table.Text(0, column), heading)) return true;
  }
  return false;
}

bool EndsWithNoCase(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && AsciiEqualNoCase(text.substr(text.size() - end.size()), end);
}

std::optional<double> ParseCellNumber(std::string_view cell, char decimalMark) {
  std::string number(TrimBlanks(cell));
  std::string_view rest = number;
  if (!rest.empty() && (rest.front() == '-' || rest.front() == '+')) rest.remove_prefix(1);
  const std::string_view behindWhole = _SkipDigits(rest);
  size_t digits = rest.size() - behindWhole.size();
  rest = behindWhole;
  if (!rest.empty() && rest.front() == decimalMark) {
    rest.remove_prefix(1);
    const std::string_view end = _SkipDigits(rest);
    digits += rest.size() - end.size();
    rest = end;
  }
  if (digits == 0 || !rest.empty()) return {};
  std::replace(number.begin(), number.end(), decimalMark, '.');
  const double value = ParseDouble(number.data(), number.size());
  return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<double> ParseCellNumber(std::string_view cell) {
  const auto number = ParseCellNumber(cell, '.');
  return number ? number : ParseCellNumber(cell, ',');
}

bool IsNoScore(std::string_view cell) {
  const std::string_view text = TrimBlanks(cell);
  return text.empty() || text == "-" || AsciiEqualNoCase(text, "N/A");
}

std::string NameInOrder(std::string_view sortedName) {
  const size_t comma = sortedName.find(',');
  if (comma == std::string_view::npos) return std::string(TrimBlanks(sortedName));
  const std::string_view last = TrimBlanks(sortedName.substr(0, comma));
  std::string name(TrimBlanks(sortedName.substr(comma + 1)));
  if (!name.empty() && !last.empty()) name += ' ';
  return name.append(last);
}

std::optional<std::string_view> CutBracket(std::string_view* text, std::string_view opening, char closing) {
  const std::string_view whole = TrimBlanks(*text);
  if (!whole.ends_with(closing)) return {};
  const size_t begin = whole.rfind(opening);
  if (begin == std::string_view::npos) return {};
  const size_t inside = begin + opening.size();
  if (inside >= whole.size()) return {};
  *text = TrimBlanks(whole.substr(0, begin));
  return whole.substr(inside, whole.size() - 1 - inside);
}
