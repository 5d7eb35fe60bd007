// In-place operations on zero-terminated 8-bit texts in buffers that the caller owns. None allocates or
// throws; a null text is left alone.
//
// `greatestLength` is the longest text, without its terminator, that the operation may make; the buffer holds
// at least that and one byte more. A text that is longer to begin with never grows. The texts passed to one
// call must not overlap.
#ifndef GRADIX_QZSTRING_H
#define GRADIX_QZSTRING_H

#include <cstdint>

namespace qz {

// Deletes `count` characters at the 0-based position, fewer when the text ends before. A negative position
// counts as 0. Returns `text`.
char* lstrdel(char* text, int32_t position, int32_t count);

// Inserts `count` copies of `fill` at the 0-based position, at most the text's end; the buffer must have the
// room. A negative position counts as 0. Returns `text`.
char* lstrins(char* text, int32_t position, int32_t count, char fill);

// Removes spaces, and only those, at either end. Returns `text`.
char* StripSpaces(char* text, bool leading, bool trailing);

// These replace special characters by their escaped form, from the last to the first; one whose escaped form
// no longer fits becomes a space. Return `text`.
char* FixScriptQuotes(char* text, int32_t greatestLength);  // ' and \ get a backslash in front
char* FixFormQuotes(char* text,
                    int32_t greatestLength);       // " and ' become &#34; and &#39;; stays below the greatest
char* FixPHP(char* text, int32_t greatestLength);  // < and > become \x3c and \x3e

// Replaces the first occurrence of `find`, or all of them, as they stand in the text before the call. A
// replacement is cut, at worst to nothing, so that the text does not exceed the greatest length. An empty
// `find` replaces nothing.
void ReplaceString(char* text, const char* find, const char* replacement, int32_t greatestLength, bool all);

// The first match of `find` in the text, or null. The first character must match exactly, the others without
// regard to ASCII case. After a failed candidate the search goes on as many characters further as `find` has,
// so a match that overlaps a failed candidate is skipped. An empty `find` is never found.
char* StringSearch(char* text, const char* find);
const char* StringSearch(const char* text, const char* find);

// Rounds to a number of decimals, as printing with "%.*f" does after moving the value a little away from 0,
// so that a value stored just below a half rounds away from 0. Values nearer to 0 than 0.00001 give 0.
double Round(double value, int32_t decimals);

// The size in points that stands in for the given one.
int32_t MapFontSize(int32_t size);

}  // namespace qz

#endif  // GRADIX_QZSTRING_H
