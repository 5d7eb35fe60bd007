// Texts in one letter case, for comparing them without regard to it.
//
// The same on every desktop: no locale is asked. Knows the letters with a simple counterpart of the Latin,
// Greek, Cyrillic and Armenian scripts; every other character stands for itself.
#ifndef GRADIX_COMMON_CASEFOLD_H
#define GRADIX_COMMON_CASEFOLD_H

#include <string>
#include <string_view>

// Any bytes; those that are no UTF-8 stay as they are.
std::string FoldCase(std::string_view utf8);

#endif  // GRADIX_COMMON_CASEFOLD_H
