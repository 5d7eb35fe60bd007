// What the headings and cells of downloads are made of.
#ifndef GRADIX_SYSTEMS_DOWNLOADTEXT_H
#define GRADIX_SYSTEMS_DOWNLOADTEXT_H

#include <optional>
#include <string>
#include <string_view>

#include "Tables/DelimitedTable.h"

std::string_view TrimBlanks(std::string_view text);

// Without regard to the letter case of A to Z and to blanks around.
bool IsHeading(std::string_view cell, std::string_view heading);
bool HasHeading(const DelimitedTable& table, std::string_view heading);
bool EndsWithNoCase(std::string_view text, std::string_view end);

// The number that is all of the cell, blanks aside: digits with at most one decimal mark, no exponent.
// Without a number for whatever else.
std::optional<double> ParseCellNumber(std::string_view cell, char decimalMark);
std::optional<double> ParseCellNumber(std::string_view cell);  // a point or a comma

// A cell without a score: blank, or a word that stands for that.
bool IsNoScore(std::string_view cell);

// "First Last" of "Last, First"; other names as they are.
std::string NameInOrder(std::string_view sortedName);

// Cuts what follows the last `opening` of a text that ends with `closing`, both of them, and the blanks in
// front: the inside. Nothing, and an unchanged text, when there is no such end.
std::optional<std::string_view> CutBracket(std::string_view* text, std::string_view opening, char closing);

#endif  // GRADIX_SYSTEMS_DOWNLOADTEXT_H
