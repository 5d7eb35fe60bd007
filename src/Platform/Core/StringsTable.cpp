#include "Platform/Core/StringsTable.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "Platform/Core/CFString.h"

namespace {

class TableParser {
 public:
  explicit TableParser(std::u16string_view text) : m_rest(text) {}

  // False at the end of the text and at a malformed entry.
  bool ReadEntry(std::u16string* key, std::u16string* value) {
    return ReadQuoted(key) && SkipToken(u'=') && ReadQuoted(value) && SkipToken(u';');
  }

 private:
  bool SkipSpace();
  bool SkipPast(std::u16string_view end);
  bool SkipToken(char16_t token);
  bool ReadQuoted(std::u16string* text);
  bool ReadEscape(std::u16string* text);

  std::u16string_view m_rest;
};

bool _IsSpace(char16_t character) {
  return character == u' ' || (character >= u'\t' && character <= u'\r');
}

std::optional<uint16_t> _HexDigit(char16_t character) {
  if (character >= u'0' && character <= u'9') return character - u'0';
  const auto lower = static_cast<char16_t>(character | 0x20);
  if (lower >= u'a' && lower <= u'f') return lower - u'a' + 10;
  return std::nullopt;
}

}  // namespace

bool TableParser::SkipPast(std::u16string_view end) {
  const size_t position = m_rest.find(end);
  if (position == std::u16string_view::npos) return false;
  m_rest.remove_prefix(position + end.size());
  return true;
}

// Skips blanks and comments; false for a comment without an end.
bool TableParser::SkipSpace() {
  while (!m_rest.empty()) {
    if (_IsSpace(m_rest.front())) {
      m_rest.remove_prefix(1);
    } else if (m_rest.starts_with(u"/*")) {
      m_rest.remove_prefix(2);
      if (!SkipPast(u"*/")) return false;
    } else if (m_rest.starts_with(u"//")) {
      m_rest.remove_prefix(std::min(m_rest.find_first_of(u"\r\n"), m_rest.size()));
    } else {
      break;
    }
  }
  return true;
}

bool TableParser::SkipToken(char16_t token) {
  if (!SkipSpace() || m_rest.empty() || m_rest.front() != token) return false;
  m_rest.remove_prefix(1);
  return true;
}

bool TableParser::ReadQuoted(std::u16string* text) {
  text->clear();
  if (!SkipToken(u'"')) return false;
  while (!m_rest.empty()) {
    const char16_t character = m_rest.front();
    m_rest.remove_prefix(1);
    if (character == u'"') return true;
    if (character != u'\\') {
      text->push_back(character);
    } else if (!ReadEscape(text)) {
      return false;
    }
  }
  return false;
}

// Reads what follows a backslash.
bool TableParser::ReadEscape(std::u16string* text) {
  if (m_rest.empty()) return false;
  const char16_t kind = m_rest.front();
  m_rest.remove_prefix(1);
  switch (kind) {
    case u'n': text->push_back(u'\n'); return true;
    case u'r': text->push_back(u'\r'); return true;
    case u't': text->push_back(u'\t'); return true;
    case u'U': break;
    default: text->push_back(kind); return true;
  }
  if (m_rest.size() < 4) return false;
  uint32_t unit = 0;
  for (const char16_t character : m_rest.substr(0, 4)) {
    const std::optional<uint16_t> digit = _HexDigit(character);
    if (!digit) return false;
    unit = unit * 16 + *digit;
  }
  m_rest.remove_prefix(4);
  text->push_back(static_cast<char16_t>(unit));
  return true;
}

StringsTable ParseStringsTable(std::u16string_view text) {
  StringsTable table;
  TableParser parser(text);
  std::u16string key;
  std::u16string value;
  while (parser.ReadEntry(&key, &value)) table.emplace(std::move(key), std::move(value));
  return table;
}

namespace {

std::u16string _FromUTF16(std::string_view bytes, bool isBigEndian) {
  std::u16string text;
  text.reserve(bytes.size() / 2);
  for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto first = static_cast<uint8_t>(bytes[i]);
    const auto second = static_cast<uint8_t>(bytes[i + 1]);
    text += static_cast<char16_t>(isBigEndian ? first << 8 | second : second << 8 | first);
  }
  return text;
}

}  // namespace

StringsTable ParseStringsBytes(std::string_view bytes) {
  if (bytes.starts_with("\xFE\xFF")) return ParseStringsTable(_FromUTF16(bytes.substr(2), true));
  if (bytes.starts_with("\xFF\xFE")) return ParseStringsTable(_FromUTF16(bytes.substr(2), false));
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
  const CFStringRef text =
      CFStringCreateWithBytes(bytes.data(), static_cast<CFIndex>(bytes.size()), kCFStringEncodingUTF8);
  StringsTable table = ParseStringsTable(CFStringGetText(text));
  CFRelease(text);
  return table;
}
