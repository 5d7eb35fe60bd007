// The program's 8-bit text as Qt's.
#ifndef GRADIX_ROMANTEXT_H
#define GRADIX_ROMANTEXT_H

#include <QString>
#include <string_view>

namespace host {

// Decodes Mac OS Roman. A code without a character becomes U+FFFD.
QString FromRoman(std::string_view text);

// The same on one line: control characters as spaces.
QString LineFromRoman(std::string_view text);

// A number of points as the export files write it.
QString PointsText(double points);

}  // namespace host

#endif  // GRADIX_ROMANTEXT_H
