// The plain pieces of an export file: literal text and numbers, the same bytes in every locale.
#ifndef GRADIX_CSVOUTPUT_H
#define GRADIX_CSVOUTPUT_H

#include <cstdint>
#include <cstdio>
#include <string_view>

// The errno value of a stream operation that failed, before which errno was 0; streams do not always leave
// one.
int StreamError();

// Writes one character. A file is written by one thread, so there is nothing to lock.
inline void WriteCharacter(std::FILE* file, char character) {
  putc_unlocked(character, file);
}

// Writes the text as it is.
inline void WriteText(std::FILE* file, std::string_view text) {
  if (text.size() == 1) {  // often: a comma, a blank
    WriteCharacter(file, text.front());
  } else if (!text.empty()) {
    std::fwrite(text.data(), 1, text.size(), file);
  }
}

// Writes the number as "%d" does.
void WriteInteger(std::FILE* file, int32_t value);

// Writes the number as "%g" does: six significant digits, no trailing zeros.
void WriteNumber(std::FILE* file, double value);

#endif  // GRADIX_CSVOUTPUT_H
