#include "CommandLine/TerminalText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <sstream>

#include "Common/xmlutil.h"

namespace {

constexpr const char* kReplacement = "\xEF\xBF\xBD";  // U+FFFD

bool _IsControl(int32_t codePoint) {
  return (codePoint >= 0 && codePoint < 0x20) || (codePoint >= 0x7F && codePoint < 0xA0);
}

bool _IsSurrogate(int32_t codePoint) {
  return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

void _AppendUtf8(std::string* text, int32_t codePoint) {
  std::array<char, 4> bytes{};
  const int32_t length = _IsSurrogate(codePoint) ? 0 : XmlUtf8EncodeChar(bytes.data(), codePoint);
  if (length == 0) {
    text->append(kReplacement);
  } else {
    text->append(bytes.data(), static_cast<size_t>(length));
  }
}

size_t _Width(const std::string& text) {
  return static_cast<size_t>(XmlUtf8StrLen(text.c_str()));
}

std::vector<size_t> _ColumnWidths(const std::vector<std::vector<std::string>>& rows) {
  std::vector<size_t> widths;
  for (const auto& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], _Width(row[i]));
  }
  return widths;
}

void _WriteMessage(const std::string& text) {
  std::fwrite(text.data(), 1, text.size(), stderr);
}

}  // namespace

std::string PrintableUtf8(const std::string& text, bool keepLines) {
  std::string printable;
  printable.reserve(text.size());
  const char* bytes = text.c_str();
  while (*bytes != '\0') {
    int32_t codePoint = -1;
    const int32_t length = XmlUtf8DecodeChar(&codePoint, bytes);
    bytes += XmlUtf8Step(bytes, length);
    const bool keep = keepLines && codePoint == '\n';
    _AppendUtf8(&printable, _IsControl(codePoint) && !keep ? '?' : codePoint);
  }
  return printable;
}

std::string AlignColumns(const std::vector<std::vector<std::string>>& rows) {
  const std::vector<size_t> widths = _ColumnWidths(rows);
  std::string lines;
  for (const auto& row : rows) {
    for (size_t i = 0; i < row.size(); ++i) {
      lines += row[i];
      if (i + 1 < row.size()) lines.append(widths[i] - _Width(row[i]) + 2, ' ');
    }
    lines.erase(lines.find_last_not_of(' ') + 1);
    lines += '\n';
  }
  return lines;
}

std::vector<std::string> WrapText(const std::string& text, size_t width) {
  std::vector<std::string> lines;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    if (lines.empty() || _Width(lines.back()) + 1 + _Width(word) > width) {
      lines.push_back(word);
    } else {
      lines.back().append(" ").append(word);
    }
  }
  return lines;
}

std::string Join(const std::vector<std::string>& texts, std::string_view separator) {
  std::string joined;
  for (const std::string& text : texts) {
    if (&text != &texts.front()) joined += separator;
    joined += text;
  }
  return joined;
}

std::vector<std::string> Split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  for (;;) {
    const size_t end = text.find(separator);
    parts.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

void Say(const std::string& text) {
  _WriteMessage("gxexport: " + text + "\n");
}

void Warn(const std::string& text) {
  Say("warning: " + text);
}
