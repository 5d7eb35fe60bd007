// Text for people: class data and names from the command line, made fit for a terminal and for JSON.
#ifndef GRADIX_TERMINALTEXT_H
#define GRADIX_TERMINALTEXT_H

#include <string>
#include <string_view>
#include <vector>

// Class data, a file name, an argument: well-formed UTF-8 with control characters as "?", so that no name
// breaks a line or controls a terminal. Line feeds stay when `keepLines` is set.
std::string PrintableUtf8(const std::string& text, bool keepLines = false);

// Lines of left-aligned columns two spaces apart, each line ending with a line feed.
std::string AlignColumns(const std::vector<std::vector<std::string>>& rows);

// The words of the text as lines of at most `width` characters where words allow it.
std::vector<std::string> WrapText(const std::string& text, size_t width);

// The texts with `separator` between them.
std::string Join(const std::vector<std::string>& texts, std::string_view separator);

// The parts between the separators: one more than there are separators.
std::vector<std::string> Split(std::string_view text, char separator);

// Writes one message to standard error, with the program's name in front.
void Say(const std::string& text);
void Warn(const std::string& text);

#endif  // GRADIX_TERMINALTEXT_H
