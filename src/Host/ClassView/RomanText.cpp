#include "Host/ClassView/RomanText.h"

#include <algorithm>

#include "Common/RomanText.h"
#include "Common/number.h"

namespace host {

QString FromRoman(std::string_view text) {
  return QString::fromStdU16String(Utf16FromRoman(text));
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
