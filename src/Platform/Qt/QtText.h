// Texts between Mac OS Roman and Qt, and the fonts of the platform interface.
#ifndef GRADIX_QTTEXT_H
#define GRADIX_QTTEXT_H

#include <QFont>
#include <QString>
#include <string>
#include <string_view>

namespace ui {

QString FromMacRoman(std::string_view text);
std::string ToMacRoman(const QString& text);
QString FromUTF8(std::string_view text);

// With every "&" doubled, for widgets that take one as the mark of a shortcut.
QString Literal(QString text);

// The same, but with the mark where the text first has that letter or digit, in either case. 0: nowhere.
QString LiteralWithShortcut(const QString& text, char letter);

// A size below 1 names a theme font by its absolute value.
QFont FontOf(int16_t font, int16_t size);

int16_t ToInt16(int value);  // the nearest one

}  // namespace ui

#endif  // GRADIX_QTTEXT_H
