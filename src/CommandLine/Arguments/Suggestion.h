// What somebody meant who typed a word that does not exist.
#ifndef GRADIX_SUGGESTION_H
#define GRADIX_SUGGESTION_H

#include <string>
#include <string_view>
#include <vector>

// The candidate that is nearest to the word: by letters to change, whatever their case. Empty when none is
// near.
std::string NearestWord(std::string_view word, const std::vector<std::string>& candidates);

// `what` is wrong with the word ("unknown format 'canvs'"), with the nearest candidate where there is one,
// and what there is to say about all of them ("the formats are a, b"; may be empty).
std::string UnknownText(const std::string& what, const std::string& word,
                        const std::vector<std::string>& candidates, const std::string& rest);

#endif  // GRADIX_SUGGESTION_H
