#include "Tables/TextEncoding.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include "Common/RomanText.h"
#include "Common/xmlcharmaps.h"
#include "Common/xmlutil.h"

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LEMark = "\xFF\xFE";
constexpr std::string_view kUtf16BEMark = "\xFE\xFF";

// Of the encoding, as iconv has it.
const char* _SystemName(TextEncoding encoding) {
  switch (encoding) {
    case TextEncoding::kLatin1: return "ISO-8859-1";
    case TextEncoding::kUtf16LE: return "UTF-16LE";
    case TextEncoding::kUtf16BE: return "UTF-16BE";
    default: return "UTF-8";
  }
}

// One conversion of one text.
class Converter {
 public:
  Converter(const char* to, const char* from) : m_handle(iconv_open(to, from)) {
    if (m_handle == kNoHandle) throw std::system_error(errno, std::generic_category(), "iconv");
  }
  ~Converter() { iconv_close(m_handle); }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // Appends the text from `offset` on to `result`. Gives the position of the first character that cannot be
  // converted, or the end.
  size_t Convert(std::string_view text, size_t offset, std::string* result) {
    // iconv does not write to its input.
    char* input = const_cast<char*>(text.data()) + offset;
    size_t left = text.size() - offset;
    while (left > 0) {
      char* output = m_buffer.data();
      size_t room = m_buffer.size();
      const bool isDone = iconv(m_handle, &input, &left, &output, &room) != kFailed;
      const int error = errno;
      result->append(m_buffer.data(), m_buffer.size() - room);
      if (!isDone && error != E2BIG) break;
    }
    return text.size() - left;
  }

 private:
  static inline const iconv_t kNoHandle = reinterpret_cast<iconv_t>(-1);
  static constexpr size_t kFailed = static_cast<size_t>(-1);

  iconv_t m_handle;
  std::array<char, size_t{16} * 1024> m_buffer;
};

bool _IsAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return static_cast<uint8_t>(byte) < 0x80; });
}

// The order of the bytes of UTF-16 without a mark: text has hardly a character without a zero byte, and these
// stand on one side only.
std::optional<TextEncoding> _DetectUtf16(std::string_view bytes) {
  constexpr size_t kLooked = 1024;
  const std::string_view begin = bytes.substr(0, kLooked);
  if (bytes.size() % 2 != 0 || begin.empty()) return {};
  std::array<size_t, 2> zeros{};
  for (size_t i = 0; i < begin.size(); ++i) zeros[i % 2] += begin[i] == '\0' ? 1 : 0;
  const size_t most = begin.size() / 4;
  if (zeros[0] == 0 && zeros[1] > most) return TextEncoding::kUtf16LE;
  if (zeros[1] == 0 && zeros[0] > most) return TextEncoding::kUtf16BE;
  return {};
}

// The length of the valid character that begins with this byte.
size_t _Utf8Length(char lead) {
  const auto byte = static_cast<uint8_t>(lead);
  if (byte < 0xC0) return 1;
  if (byte < 0xE0) return 2;
  return byte < 0xF0 ? 3 : 4;
}

std::string _EncodeRoman(std::string_view utf8, uint64_t* replaced) {
  std::string text;
  for (size_t at = 0; at < utf8.size();) {
    const size_t length = std::min(_Utf8Length(utf8[at]), utf8.size() - at);
    int32_t codePoint = 0;
    XmlUtf8DecodeChar(&codePoint, std::string(utf8.substr(at, length)).c_str());
    const uint8_t code = XmlMapFromUnicodeChar(codePoint);
    const bool isLost = code == 0 && codePoint != 0;
    text += isLost ? '?' : static_cast<char>(code);
    *replaced += isLost ? 1 : 0;
    at += length;
  }
  return text;
}

}  // namespace

const char* EncodingName(TextEncoding encoding) {
  switch (encoding) {
    case TextEncoding::kMacRoman: return "Mac Roman";
    case TextEncoding::kUtf8: return "UTF-8";
    case TextEncoding::kUtf8WithBom: return "UTF-8 with a byte-order mark";
    case TextEncoding::kLatin1: return "ISO-8859-1";
    case TextEncoding::kUtf16LE:
    case TextEncoding::kUtf16BE: return "UTF-16";
  }
  return "";
}

std::string_view ByteOrderMark(TextEncoding encoding) {
  switch (encoding) {
    case TextEncoding::kUtf8WithBom: return kUtf8Mark;
    case TextEncoding::kUtf16LE: return kUtf16LEMark;
    case TextEncoding::kUtf16BE: return kUtf16BEMark;
    default: return {};
  }
}

std::optional<TextEncoding> DetectEncoding(std::string_view bytes) {
  for (const TextEncoding encoding :
       {TextEncoding::kUtf8WithBom, TextEncoding::kUtf16LE, TextEncoding::kUtf16BE}) {
    if (bytes.starts_with(ByteOrderMark(encoding))) return encoding;
  }
  if (const auto utf16 = _DetectUtf16(bytes)) return utf16;
  if (!_IsAscii(bytes) && DecodeText(bytes, TextEncoding::kUtf8)) return TextEncoding::kUtf8;
  return {};
}

std::optional<std::string> DecodeText(std::string_view bytes, TextEncoding encoding, size_t* faultOffset) {
  if (encoding == TextEncoding::kMacRoman) return Utf8FromRoman(bytes);
  const std::string_view mark = ByteOrderMark(encoding);
  const size_t begin = bytes.starts_with(mark) ? mark.size() : 0;
  std::string text;
  text.reserve(bytes.size());
  const size_t end = Converter("UTF-8", _SystemName(encoding)).Convert(bytes, begin, &text);
  if (end == bytes.size()) return text;
  if (faultOffset != nullptr) *faultOffset = end;
  return {};
}

std::string EncodeText(std::string_view utf8, TextEncoding encoding, uint64_t* replaced) {
  uint64_t uncounted = 0;
  if (replaced == nullptr) replaced = &uncounted;
  *replaced = 0;
  const bool isWide = encoding == TextEncoding::kUtf16LE || encoding == TextEncoding::kUtf16BE;
  if (!isWide && _IsAscii(utf8)) return std::string(utf8);
  if (encoding == TextEncoding::kMacRoman) return _EncodeRoman(utf8, replaced);
  Converter converter(_SystemName(encoding), "UTF-8");
  std::string text;
  for (size_t at = 0; (at = converter.Convert(utf8, at, &text)) < utf8.size();) {
    converter.Convert("?", 0, &text);
    ++*replaced;
    at += std::min(_Utf8Length(utf8[at]), utf8.size() - at);
  }
  return text;
}
