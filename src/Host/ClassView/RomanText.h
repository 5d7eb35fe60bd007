// The program's texts as Qt's.
#ifndef GRADIX_ROMANTEXT_H
#define GRADIX_ROMANTEXT_H

#include <QString>
#include <string>
#include <string_view>

namespace host {

// Decodes Mac OS Roman. A code without a character becomes U+FFFD.
QString FromRoman(std::string_view text);

// On one line: control characters as spaces.
QString LineFromRoman(std::string_view text);
QString LineFromUtf8(const std::string& text);

// A number of points as the export files write it.
QString PointsText(double points);

}  // namespace host

#endif  // GRADIX_ROMANTEXT_H
