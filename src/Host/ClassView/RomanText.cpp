#include "Host/ClassView/RomanText.h"

#include <algorithm>

#include "Common/number.h"
#include "Common/xmlcharmaps.h"

namespace host {

QString FromRoman(std::string_view text) {
  QString decoded;
  decoded.reserve(static_cast<qsizetype>(text.size()));
  for (const char character : text) {
    const auto code = static_cast<uint8_t>(character);
    const int32_t codePoint = code < 0x80 ? code : XmlMapToUnicodeChar(code);
    const bool known = code < 0x80 || codePoint != 0;
    decoded.append(known ? QChar(static_cast<char16_t>(codePoint)) : QChar(QChar::ReplacementCharacter));
  }
  return decoded;
}

QString LineFromRoman(std::string_view text) {
  QString line = FromRoman(text);
  std::replace_if(
      line.begin(), line.end(), [](QChar character) { return character.category() == QChar::Other_Control; },
      QChar(u' '));
  return line;
}

QString PointsText(double points) {
  char text[32];
  const size_t length = FormatGeneral(text, points);
  return QString::fromLatin1(text, static_cast<qsizetype>(length));
}

}  // namespace host
