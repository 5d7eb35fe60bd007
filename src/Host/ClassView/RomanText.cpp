#include "Host/ClassView/RomanText.h"

#include <algorithm>

#include "Common/RomanText.h"
#include "Common/number.h"

namespace host {

namespace {

QString _OnOneLine(QString text) {
  std::replace_if(
      text.begin(), text.end(), [](QChar character) { return character.category() == QChar::Other_Control; },
      QChar(u' '));
  return text;
}

}  // namespace

QString FromRoman(std::string_view text) {
  return QString::fromStdU16String(Utf16FromRoman(text));
}

QString LineFromRoman(std::string_view text) {
  return _OnOneLine(FromRoman(text));
}

QString LineFromUtf8(const std::string& text) {
  return _OnOneLine(QString::fromStdString(text));
}

QString PointsText(double points) {
  char text[32];
  const size_t length = FormatGeneral(text, points);
  return QString::fromLatin1(text, static_cast<qsizetype>(length));
}

}  // namespace host
