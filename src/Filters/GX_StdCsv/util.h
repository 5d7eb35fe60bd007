// Helpers of the filter's own sources.
#ifndef GRADIX_UTIL_H
#define GRADIX_UTIL_H

// Removes spaces at either end of `text`, in place; returns `text`. The same as qz::StripSpaces.
char* StripSpaces(char* text, bool leading, bool trailing);

#endif  // GRADIX_UTIL_H
