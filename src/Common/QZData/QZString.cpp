#include "Common/QZData/QZString.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "Common/asciicase.h"
#include "Common/number.h"

namespace qz {

namespace {

size_t _Offset(int32_t position, size_t length) {
  return std::min(static_cast<size_t>(std::max(position, 0)), length);
}

// Makes room for, or closes, a gap: moves the tail of `text` that begins at `from`, terminator included, to
// `to`.
void _MoveTail(char* text, size_t to, size_t from, size_t length) {
  std::memmove(text + to, text + from, length - from + 1);
}

struct Escape {
  char character;
  std::string_view text;
};

// Replaces the two characters from the last to the first while the text stays within `limit`, then by spaces.
// Both escaped forms must have the same length.
char* _EscapeFromEnd(char* text, const Escape (&escapes)[2], int64_t limit) {
  if (text == nullptr) return text;
  const auto find = [&escapes](char character) -> const Escape* {
    for (const Escape& escape : escapes) {
      if (escape.character == character) return &escape;
    }
    return nullptr;
  };
  const size_t growth = escapes[0].text.size() - 1;
  const size_t length = std::strlen(text);
  const auto found =
      std::count_if(text, text + length, [&find](char character) { return find(character) != nullptr; });
  const int64_t room = std::max(limit - static_cast<int64_t>(length), int64_t{0});
  size_t fitting = static_cast<size_t>(std::min<int64_t>(found, room / static_cast<int64_t>(growth)));

  char* out = text + length + fitting * growth;
  *out = '\0';
  for (const char* in = text + length; in != text;) {
    const char character = *--in;
    const Escape* const escape = find(character);
    if (escape == nullptr) {
      *--out = character;
    } else if (fitting > 0) {
      --fitting;
      out -= escape->text.size();
      escape->text.copy(out, escape->text.size());
    } else {
      *--out = ' ';
    }
  }
  return text;
}

}  // namespace

char* lstrdel(char* text, int32_t position, int32_t count) {
  if (text == nullptr || count < 1) return text;
  const size_t length = std::strlen(text);
  const size_t begin = _Offset(position, length);
  _MoveTail(text, begin, begin + std::min(static_cast<size_t>(count), length - begin), length);
  return text;
}

char* lstrins(char* text, int32_t position, int32_t count, char fill) {
  if (text == nullptr || count < 1) return text;
  const size_t length = std::strlen(text);
  const size_t begin = _Offset(position, length);
  _MoveTail(text, begin + static_cast<size_t>(count), begin, length);
  std::memset(text + begin, fill, static_cast<size_t>(count));
  return text;
}

char* StripSpaces(char* text, bool leading, bool trailing) {
  if (text == nullptr) return text;
  size_t length = std::strlen(text);
  if (trailing) {
    while (length > 0 && text[length - 1] == ' ') --length;
    text[length] = '\0';
  }
  if (leading && *text == ' ') _MoveTail(text, 0, std::strspn(text, " "), length);
  return text;
}

// The three limits differ by one character, and users' texts are cut accordingly: they stay as they are.
char* FixScriptQuotes(char* text, int32_t greatestLength) {
  return _EscapeFromEnd(text, {{'\'', "\\'"}, {'\\', "\\\\"}}, greatestLength);
}

char* FixFormQuotes(char* text, int32_t greatestLength) {
  return _EscapeFromEnd(text, {{'"', "&#34;"}, {'\'', "&#39;"}}, int64_t{greatestLength} - 1);
}

char* FixPHP(char* text, int32_t greatestLength) {
  return _EscapeFromEnd(text, {{'<', "\\x3c"}, {'>', "\\x3e"}}, greatestLength);
}

void ReplaceString(char* text, const char* find, const char* replacement, int32_t greatestLength, bool all) {
  if (text == nullptr || find == nullptr || replacement == nullptr || *find == '\0') return;
  const size_t findLength = std::strlen(find);
  const size_t replacementLength = std::strlen(replacement);
  const size_t greatest = static_cast<size_t>(std::max(greatestLength, 0));
  size_t length = std::strlen(text);
  char* found = std::strstr(text, find);
  while (found != nullptr) {
    const size_t begin = static_cast<size_t>(found - text);
    const size_t kept = length - findLength;
    const size_t inserted = std::min(replacementLength, greatest > kept ? greatest - kept : 0);
    _MoveTail(text, begin + inserted, begin + findLength, length);
    std::memcpy(found, replacement, inserted);
    length = kept + inserted;
    found = all ? std::strstr(found + inserted, find) : nullptr;
  }
}

const char* StringSearch(const char* text, const char* find) {
  if (text == nullptr || find == nullptr || *find == '\0') return nullptr;
  const std::string_view wanted = find;
  const std::string_view searched = text;
  size_t at = searched.find(wanted.front());
  while (at != std::string_view::npos && searched.size() - at >= wanted.size()) {
    if (AsciiEqualNoCase(searched.substr(at, wanted.size()), wanted)) return text + at;
    at = searched.find(wanted.front(), at + wanted.size());
  }
  return nullptr;
}

char* StringSearch(char* text, const char* find) {
  return const_cast<char*>(StringSearch(static_cast<const char*>(text), find));
}

double Round(double value, int32_t decimals) {
  double moved = value;
  if (std::fabs(value) < 0.00001) {
    moved = 0.0;
  } else if (value > 0.0) {
    moved += 0.0000001;
  } else if (value < 0.0) {
    moved -= 0.0000001;
  }
  char buffer[kFixedTextSize];
  FormatFixed(buffer, moved, decimals);
  return ParseDouble(buffer);
}

int32_t MapFontSize(int32_t size) {
  struct Pair {
    int32_t from;
    int32_t to;
  };
  static constexpr Pair kSizes[] = {{11, 12}};
  for (const Pair& pair : kSizes) {
    if (pair.from == size) return pair.to;
  }
  return size;
}

}  // namespace qz
