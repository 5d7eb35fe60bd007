#include "Platform/Qt/QtText.h"

#include <QApplication>
#include <algorithm>
#include <limits>

#include "Platform/Core/CFString.h"

namespace ui {

QString FromMacRoman(std::string_view text) {
  const std::u16string units = MacRomanToUTF16(text);
  return QString::fromUtf16(units.data(), static_cast<qsizetype>(units.size()));
}

std::string ToMacRoman(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  return UTF8ToMacRoman({bytes.constData(), static_cast<size_t>(bytes.size())});
}

QString FromUTF8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString Literal(QString text) {
  return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString LiteralWithShortcut(const QString& text, char letter) {
  const qsizetype place = letter == 0 ? -1 : text.indexOf(QLatin1Char(letter), 0, Qt::CaseInsensitive);
  if (place < 0) return Literal(text);
  return Literal(text.first(place)) + QLatin1Char('&') + Literal(text.sliced(place));
}

QFont FontOf(int16_t font, int16_t size) {
  constexpr int16_t kSmallThemeFont = -2;
  constexpr int16_t kSansSerif = 3;
  constexpr double kSmall = 0.85;
  QFont result = QApplication::font();
  if (size == kSmallThemeFont) {
    if (result.pointSizeF() > 0) {
      result.setPointSizeF(result.pointSizeF() * kSmall);
    } else {
      result.setPixelSize(std::max(1, static_cast<int>(result.pixelSize() * kSmall)));
    }
  } else if (size > 0) {
    if (font == kSansSerif) {
      result.setFamilies({QStringLiteral("Sans Serif")});
      result.setStyleHint(QFont::SansSerif);
    }
    result.setPointSize(size);
  }
  return result;
}

int16_t ToInt16(int value) {
  using Limits = std::numeric_limits<int16_t>;
  return static_cast<int16_t>(std::clamp(value, int{Limits::min()}, int{Limits::max()}));
}

}  // namespace ui
