// Fuzzes the text helpers: XML text, numbers, string operations, question helpers.
//
// Input: 16 bytes of numbers, then up to three texts separated by zero bytes. Every text is handed over in a
// heap block of exactly its size, and every result goes to one of exactly the promised size, so that
// AddressSanitizer sees any access beyond them.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "Common/QZData/QZString.h"
#include "Common/QZData/QZTest.h"
#include "Common/asciicase.h"
#include "Common/number.h"
#include "Common/xmlutil.h"
#include "Filters/GX_StdCsv/util.h"

namespace {

void _Check(bool holds) {
  if (!holds) __builtin_trap();
}

// A heap block of exactly `size` bytes.
class Block {
 public:
  explicit Block(size_t size) : m_bytes(static_cast<char*>(std::malloc(size))) { _Check(m_bytes != nullptr); }
  explicit Block(const std::string& text, size_t room = 0) : Block(std::max(text.size(), room) + 1) {
    std::memcpy(m_bytes, text.c_str(), text.size() + 1);
  }
  ~Block() { std::free(m_bytes); }
  Block(const Block&) = delete;
  Block& operator=(const Block&) = delete;
  operator char*() const { return m_bytes; }
  size_t Length() const { return std::strlen(m_bytes); }

 private:
  char* m_bytes;
};

size_t _Room(int32_t size) {
  return static_cast<size_t>(std::max(size, 0));
}

class Input {
 public:
  Input(const uint8_t* data, size_t size) : m_data(data), m_size(size) {}

  template <typename Number>
  Number Take() {
    Number number{};
    const size_t count = std::min(sizeof number, m_size);
    if (count > 0) std::memcpy(&number, m_data, count);
    Skip(count);
    return number;
  }

  std::string TakeText() {
    const uint8_t* const end = std::find(m_data, m_data + m_size, uint8_t{0});
    std::string text(m_data, end);
    Skip(std::min(text.size() + 1, m_size));
    return text;
  }

 private:
  void Skip(size_t count) {
    m_data += count;
    m_size -= count;
  }

  const uint8_t* m_data;
  size_t m_size;
};

void _FuzzUtf8(const std::string& text, int32_t size) {
  const Block source(text);
  const int32_t characters = XmlUtf8StrLen(source);
  const Block whole(_Room(characters) + 1);
  const bool valid = XmlUtf8DecodeString(whole, characters, source);
  _Check(whole.Length() == _Room(characters));
  const int32_t limit = std::min(size, characters + 1);
  const Block part(_Room(limit) + 1);
  const bool partValid = XmlUtf8DecodeString(part, limit, source);
  _Check(part.Length() == _Room(std::min(limit, characters)) &&
         std::strncmp(part, whole, part.Length()) == 0);
  _Check(partValid || !valid);

  for (const char* at = source; *at != '\0';) {
    int32_t codePoint = 0;
    const int32_t length = XmlUtf8DecodeChar(&codePoint, at);
    const Block encoded(4);
    const int32_t encodedLength = XmlUtf8EncodeChar(encoded, codePoint);
    _Check((encodedLength == 0) == (codePoint < 0 || codePoint > 0x10FFFF));
    int32_t again = -1;
    if (encodedLength > 0) _Check(XmlUtf8DecodeChar(&again, encoded) == encodedLength && again == codePoint);
    for (const int32_t set : {0, 3}) {
      const uint8_t code = XmlMapFromUnicodeChar(codePoint, set);
      if (code != 0 && codePoint > 0) _Check(XmlMapToUnicodeChar(code, set) == codePoint);
    }
    at += XmlUtf8Step(at, length);
  }
}

void _FuzzXmlText(const std::string& text, int32_t size) {
  const Block source(text);
  for (const bool map : {false, true}) {
    const int32_t length = XmlEncodeString(nullptr, source, std::numeric_limits<int32_t>::max(), map);
    const Block whole(_Room(length) + 1);
    _Check(XmlEncodeString(whole, source, length, map) == length && whole.Length() == _Room(length));
    const int32_t limit = std::min(size, length + 1);
    const Block part(_Room(limit) + 1);
    const int32_t partLength = XmlEncodeString(part, source, limit, map);
    _Check(partLength == (limit < length && length > 0 ? -1 : length));
    _Check(part.Length() <= _Room(limit) && std::strncmp(part, whole, part.Length()) == 0);
    _Check(XmlEncodeString(nullptr, source, limit, map) == partLength);
  }
  const int32_t bit = XmlGetStyleBitFromName(source);
  _Check((bit == 0) == (*XmlGetStyleNameFromBit(bit) == '\0'));
  const int32_t label = XmlLabelStyleNameToValue(source);
  if (label >= 0) _Check(AsciiEqualNoCase(XmlLabelStyleValueToName(label), text));
  const int32_t sequence = XmlMCChoiceSequenceToValue(source);
  if (sequence >= 0) _Check(AsciiEqualNoCase(XmlNameToMCChoiceSequence(sequence), text));
  XmlGetStyleNameFromBit(size);
  XmlLabelStyleValueToName(size);
  XmlNameToMCChoiceSequence(size);
}

// The process stays in the C locale, so the C library is the reference.
void _FuzzNumbers(const std::string& text, double value, int32_t decimals) {
  const Block source(text);
  const double parsed = ParseDouble(source);
  const double expected = std::strtod(source, nullptr);
  _Check(std::isnan(expected) ? std::isnan(parsed) : parsed == expected);
  _Check(std::signbit(parsed) == std::signbit(expected));
  const long long integer = std::strtoll(source, nullptr, 10);
  _Check(ParseInt32(source) == std::clamp<long long>(integer, std::numeric_limits<int32_t>::min(),
                                                     std::numeric_limits<int32_t>::max()));

  for (const double number : {value, parsed}) {
    char general[32];
    char printed[kFixedTextSize];
    std::snprintf(printed, sizeof printed, "%g", number);
    _Check(FormatGeneral(general, number) == std::strlen(printed) && std::strcmp(general, printed) == 0);
    char fixed[kFixedTextSize];
    std::snprintf(printed, sizeof printed, "%.*f", std::min(decimals, kMaxDecimals), number);
    _Check(FormatFixed(fixed, number, decimals) == std::strlen(printed) && std::strcmp(fixed, printed) == 0);
    if (std::isfinite(number) && std::fabs(number) < 1e9) {
      const int32_t places = std::clamp(decimals, 0, 9);
      _Check(std::fabs(qz::Round(number, places) - number) <= 0.5 * std::pow(10, -places) + 0.0000101);
    }
    qz::Round(number, decimals);
  }
}

void _FuzzStrings(const std::string& text, const std::string& find, const std::string& replacement,
                  int32_t position, int32_t greatest) {
  for (const bool leading : {false, true}) {
    for (const bool trailing : {false, true}) {
      const Block block(text);
      ::StripSpaces(block, leading, trailing);
      const size_t length = block.Length();
      _Check(length == 0 || ((!leading || block[0] != ' ') && (!trailing || block[length - 1] != ' ')));
    }
  }
  const int32_t bound = std::min(greatest, 4096);
  {
    const Block block(text);
    qz::lstrdel(block, position, greatest);
    _Check(block.Length() <= text.size());
  }
  {
    const Block block(text, text.size() + _Room(bound));
    qz::lstrins(block, position, bound, '-');
    _Check(block.Length() == text.size() + _Room(bound));
    qz::lstrdel(block, std::min(position, static_cast<int32_t>(text.size())), bound);
    _Check(std::strcmp(block, text.c_str()) == 0);
  }
  for (char* (*const fix)(char*, int32_t) : {qz::FixScriptQuotes, qz::FixFormQuotes, qz::FixPHP}) {
    const Block block(text, _Room(bound));
    fix(block, bound);
    _Check(block.Length() >= text.size() && block.Length() <= std::max(text.size(), _Room(bound)));
  }
  const Block wanted(find);
  const Block inserted(replacement);
  for (const bool all : {false, true}) {
    const Block block(text, _Room(bound));
    qz::ReplaceString(block, wanted, inserted, bound, all);
    _Check(block.Length() <= std::max(text.size(), _Room(bound)));
  }
  const Block searched(text);
  if (const char* const found = qz::StringSearch(static_cast<const char*>(searched), wanted)) {
    _Check(*found == find[0] && AsciiEqualNoCase(std::string(found).substr(0, find.size()), find));
  }
}

void _FuzzTest(const std::string& text, const std::string& name, int32_t number, uint32_t bits) {
  qz::Test test;
  test.filenamePrefix = name;
  test.startNumber = number;
  test.numbering = bits;
  test.fonts = {{1, name}};
  for (const char type : text) test.questions.push_back({type % 4, text});
  test.narratives = {{text}, {name}};
  for (const int32_t index : {-1, 0, 1, test.GetQuestionCount() - 1, test.GetQuestionCount(), number}) {
    test.GetQuestionNumber(index);
    test.GetNewQuestionNumber(index);
    qz::Test::GetQuestionTypeAbbrev(index);
  }
  _Check((test.FindNarrativePtr(name) == nullptr) == name.empty());

  for (int letter = 0; letter < 256; ++letter) {
    const Block feedback(qz::Test::kMaxFeedback + 1);
    qz::Test::GetMCItemFeedback({2, text}, static_cast<char>(letter), feedback);
    _Check((letter >= 'A' && letter <= 'E') || *feedback == '\0');
  }
  const Block css(128 + name.size());
  test.BuildCSSFromDefaultFont(css, {1, number, bits, bits}, true);
  const Block path(name.size() + text.size() + 2);
  test.MakePrefixedFilename(path, text);
  const int32_t type = qz::Test::GetQuestionType(text);
  if (type != -1 && type != 4) _Check(AsciiEqualNoCase(qz::Test::GetQuestionTypeAbbrev(type), text));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Input input(data, size);
  const auto first = input.Take<int32_t>();
  const auto second = input.Take<int32_t>();
  const auto value = input.Take<double>();
  const std::string text = input.TakeText();
  const std::string find = input.TakeText();
  const std::string other = input.TakeText();
  _FuzzUtf8(text, first);
  _FuzzXmlText(text, first);
  _FuzzNumbers(text, value, second);
  _FuzzStrings(text, find, other, first, second);
  _FuzzTest(text, find, first, static_cast<uint32_t>(second));
  return 0;
}
