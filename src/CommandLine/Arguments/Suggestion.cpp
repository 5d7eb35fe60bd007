#include "CommandLine/Arguments/Suggestion.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <numeric>

#include "Common/asciicase.h"

namespace {

// Nobody mistypes longer words; the cost is that of the square.
constexpr size_t kLongestWord = 64;

// The letters to change, add, leave out or swap with their neighbour.
size_t _Distance(std::string_view a, std::string_view b) {
  std::vector<size_t> before(b.size() + 1);
  std::vector<size_t> last(b.size() + 1);
  std::vector<size_t> row(b.size() + 1);
  std::iota(last.begin(), last.end(), size_t{0});
  for (size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (size_t j = 1; j <= b.size(); ++j) {
      const bool same = AsciiLower(a[i - 1]) == AsciiLower(b[j - 1]);
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
      const bool swapped = i > 1 && j > 1 && AsciiLower(a[i - 1]) == AsciiLower(b[j - 2]) &&
                           AsciiLower(a[i - 2]) == AsciiLower(b[j - 1]);
      if (swapped) row[j] = std::min(row[j], before[j - 2] + 1);
    }
    before.swap(last);
    last.swap(row);
  }
  return last[b.size()];
}

std::string_view _WithoutDashes(std::string_view option) {
  return option.substr(std::min(option.find_first_not_of('-'), option.size()));
}

}  // namespace

std::string NearestWord(std::string_view word, const std::vector<std::string>& candidates) {
  const std::string_view typed = _WithoutDashes(word);
  std::string nearest;
  if (typed.size() > kLongestWord) return nearest;
  size_t best = kLongestWord;
  for (const std::string& candidate : candidates) {
    const std::string_view name = _WithoutDashes(candidate);
    const size_t distance = _Distance(typed, name);
    if (distance > std::max(typed.size(), name.size()) / 3 || distance >= best) continue;
    best = distance;
    nearest = candidate;
  }
  return nearest;
}

std::string UnknownText(const std::string& what, const std::string& word,
                        const std::vector<std::string>& candidates, const std::string& rest) {
  const std::string nearest = NearestWord(word, candidates);
  if (nearest.empty()) return rest.empty() ? what : what + "; " + rest;
  std::string text = what + "; did you mean '" + nearest + "'?";
  if (rest.empty()) return text;
  text += " " + rest;
  char& first = text[text.size() - rest.size()];
  first = static_cast<char>(std::toupper(static_cast<unsigned char>(first)));
  return text;
}
