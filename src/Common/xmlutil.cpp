#include "Common/xmlutil.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <span>
#include <string_view>

#include "Common/asciicase.h"

constexpr XmlStyleName _gStyleNameMap[10] = {
    {0x001, "bold", nullptr},
    {0x002, "italic", nullptr},
    {0x004, "underline", "single underline"},
    {0x008, "double underline", nullptr},
    {0x010, "dotted underline", nullptr},
    {0x020, "above line", nullptr},
    {0x040, "superscript", nullptr},
    {0x080, "subscript", nullptr},
    {0x100, "strikethru", nullptr},
    {0, nullptr, nullptr},
};

// Values 1 to 3 share a name: documents do not tell them apart, and reading gives 1.
constexpr XmlValueName _xmlLabelStyles[10] = {
    {1, "none"},
    {2, "none"},
    {3, "none"},
    {4, "hollow-circle"},
    {5, "filled-circle"},
    {6, "hollow-round-rect"},
    {7, "filled-round-rect"},
    {8, "hollow-box"},
    {9, "filled-box"},
    {10, "gray-box"},
};

constexpr XmlValueName _mcSequence[7] = {
    {1, "abcde"},       {2, "abcde_fghij"}, {3, "abcde_fghjk"}, {4, "abcde_jklmn"},
    {5, "fghij_abcde"}, {6, "fghjk_abcde"}, {7, "jklmn_abcde"},
};

namespace {

uint8_t _ByteAt(const char* bytes, int32_t index) {
  return static_cast<uint8_t>(bytes[index]);
}

// The length that a lead byte announces, 0 when it cannot lead.
int32_t _AnnouncedLength(uint8_t lead) {
  const int ones = std::countl_one(lead);
  if (ones == 0) return 1;
  return ones >= 2 && ones <= 6 ? ones : 0;
}

char _CodeOrQuestionMark(int32_t codePoint) {
  const uint8_t code = XmlMapFromUnicodeChar(codePoint);
  return code == 0 ? '?' : static_cast<char>(code);
}

// The escaped form of single characters.
class Escaper {
 public:
  explicit Escaper(bool mapToUnicode) : m_mapToUnicode(mapToUnicode) {}

  // Valid until the next call, and as long as `character`.
  std::string_view Escape(const char& character) {
    const auto byte = static_cast<uint8_t>(character);
    if (byte >= 0x80) return EscapeHigh(byte);
    switch (character) {
      case '<': return "&lt;";
      case '>': return "&gt;";
      case '&': return "&amp;";
      case '\'': return "&apos;";
      case '"': return "&quot;";
      case '\t':
      case '\n':
      case '\r': return {&character, 1};
      default: return byte < 0x20 ? " " : std::string_view(&character, 1);
    }
  }

 private:
  std::string_view EscapeHigh(uint8_t byte) {
    const int32_t codePoint = m_mapToUnicode ? XmlMapToUnicodeChar(byte) : byte;
    if (codePoint == 0) return " ";
    for (int i = 0; i < 4; ++i) m_reference[3 + i] = "0123456789abcdef"[(codePoint >> (12 - 4 * i)) & 0xF];
    return {m_reference, std::size(m_reference) - 1};
  }

  bool m_mapToUnicode;
  char m_reference[9] = "&#x0000;";  // every code point of the 8-bit set has four digits
};

int32_t _ValueOfName(std::span<const XmlValueName> table, const char* name) {
  if (name == nullptr) return -1;
  const auto found = std::find_if(table.begin(), table.end(), [name](const XmlValueName& entry) {
    return AsciiEqualNoCase(entry.name, name);
  });
  return found == table.end() ? -1 : found->value;
}

const char* _NameOfValue(std::span<const XmlValueName> table, int32_t value) {
  const auto found = std::find_if(table.begin(), table.end(),
                                  [value](const XmlValueName& entry) { return entry.value == value; });
  return found == table.end() ? nullptr : found->name;
}

}  // namespace

int32_t XmlUtf8EncodeChar(char* buffer, int32_t codePoint) {
  if (codePoint < 0 || codePoint >= 0x110000) return 0;
  if (codePoint < 0x80) {
    buffer[0] = static_cast<char>(codePoint);
    return 1;
  }
  const int32_t length = codePoint < 0x800 ? 2 : codePoint < 0x10000 ? 3 : 4;
  int32_t rest = codePoint;
  for (int32_t i = length - 1; i > 0; --i) {
    buffer[i] = static_cast<char>(0x80 | (rest & 0x3F));
    rest >>= 6;
  }
  buffer[0] = static_cast<char>((0xF00 >> length) | rest);
  return length;
}

int32_t XmlUtf8DecodeChar(int32_t* codePoint, const char* bytes) {
  const uint8_t lead = _ByteAt(bytes, 0);
  const int32_t length = _AnnouncedLength(lead);
  if (length == 0) return 0;
  if (length == 1) {
    *codePoint = lead;
    return 1;
  }
  // Malformed sequences leave the range of a code point either way; they wrap.
  uint32_t value = static_cast<uint32_t>(lead & (0x7F >> length)) << (6 * (length - 1));
  bool ended = false;
  for (int32_t i = 1; i < length; ++i) {
    ended = ended || bytes[i] == '\0';
    const uint32_t part = (ended ? 0U : _ByteAt(bytes, i)) - 0x80U;
    // The second of six bytes goes to bit 28, not 24: documents are read the way they always were.
    value += part << (length == 6 && i == 1 ? 28 : 6 * (length - 1 - i));
  }
  *codePoint = static_cast<int32_t>(value);
  return length;
}

int32_t XmlUtf8Step(const char* bytes, int32_t length) {
  const int32_t announced = std::max(length, 1);
  int32_t step = 0;
  while (step < announced && bytes[step] != '\0') ++step;
  return step;
}

int32_t XmlUtf8StrLen(const char* text) {
  int32_t count = 0;
  for (; *text != '\0'; ++count) {
    const uint8_t lead = _ByteAt(text, 0);
    text += lead < 0x80 ? 1 : XmlUtf8Step(text, _AnnouncedLength(lead));
  }
  return count;
}

char* XmlUtf8DecodeTo(char* destination, int32_t size, const char* source, bool* valid) {
  *valid = true;
  char* const end = destination + std::max(size, 0);
  while (destination != end) {
    // ASCII, by far the most: as signed bytes its characters are the positive ones, the closing zero apart.
    const auto byte = static_cast<int8_t>(*source);
    if (byte > 0) {
      *destination++ = static_cast<char>(byte);
      ++source;
      continue;
    }
    if (byte == 0) break;
    int32_t codePoint = 0;
    const int32_t length = XmlUtf8DecodeChar(&codePoint, source);
    *destination++ = length > 0 ? _CodeOrQuestionMark(codePoint) : '?';
    if (length == 0) *valid = false;
    source += XmlUtf8Step(source, length);
  }
  *destination = '\0';
  return destination;
}

bool XmlUtf8DecodeString(char* destination, int32_t size, const char* source) {
  bool valid = true;
  XmlUtf8DecodeTo(destination, size, source, &valid);
  return valid;
}

int32_t XmlEncodeString(char* destination, const char* source, int32_t size, bool mapToUnicode) {
  if (destination != nullptr) *destination = '\0';
  Escaper escaper(mapToUnicode);
  int64_t length = 0;
  for (; *source != '\0'; ++source) {
    const std::string_view piece = escaper.Escape(*source);
    const int64_t newLength = length + static_cast<int64_t>(piece.size());
    if (newLength > size) return -1;
    if (destination != nullptr) {
      std::memcpy(destination + length, piece.data(), piece.size());
      destination[newLength] = '\0';
    }
    length = newLength;
  }
  return static_cast<int32_t>(length);
}

const char* XmlGetStyleNameFromBit(int32_t bit) {
  for (const XmlStyleName* entry = _gStyleNameMap; entry->bit != 0; ++entry) {
    if (entry->bit == bit) return entry->name;
  }
  return "";
}

int32_t XmlGetStyleBitFromName(const char* name) {
  if (name == nullptr) return 0;
  for (const XmlStyleName* entry = _gStyleNameMap; entry->bit != 0; ++entry) {
    if (AsciiEqualNoCase(entry->name, name)) return entry->bit;
    if (entry->alternative != nullptr && AsciiEqualNoCase(entry->alternative, name)) return entry->bit;
  }
  return 0;
}

int32_t XmlLabelStyleNameToValue(const char* name) {
  return _ValueOfName(_xmlLabelStyles, name);
}

const char* XmlLabelStyleValueToName(int32_t value) {
  return _NameOfValue(_xmlLabelStyles, value);
}

int32_t XmlMCChoiceSequenceToValue(const char* name) {
  return _ValueOfName(_mcSequence, name);
}

const char* XmlNameToMCChoiceSequence(int32_t value) {
  return _NameOfValue(_mcSequence, value);
}
