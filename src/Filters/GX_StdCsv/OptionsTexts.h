// What the export options dialog says for each gradebook format.
#ifndef GRADIX_OPTIONSTEXTS_H
#define GRADIX_OPTIONSTEXTS_H

#include <cstdint>
#include <string>

#include "Common/QZData/QZClass.h"

struct OptionsTexts {
  const char* idName;      // what the learning system calls its user identifier
  const char* popupLabel;  // stands before the popup of student fields
  const char* prompt;
  int32_t helpTopic;
  const char* nameWord;  // the two words of the messages
  const char* idWord;
  int spanishIDName;  // string ids, 0 where there is no Spanish text
  int spanishPrompt;
  int spanishPopupLabel;
  bool isBlackboard;  // has the Blackboard items
  bool hasQuotes;     // whose choice of quotes counts
};

// Null for a format without texts of its own.
const OptionsTexts* FindOptionsTexts(uint32_t formatIndex);

inline constexpr int32_t kOtherHelpTopic = 225;  // of such a format

// The row of the popup that is selected at first.
int32_t DefaultUserIDRow(uint32_t formatIndex);

// The messages of the identifier check, in the session's language, UTF-8.
std::string SomeEmptyMessage(const OptionsTexts& texts, size_t empty, size_t students);
std::string AllEmptyMessage(const OptionsTexts& texts);

// "Assignment results have been saved in ...", with a path in the file system's bytes. `spanishID` is the
// string id of the Spanish text.
std::string SavedMessage(int spanishID, const std::string& path);

#endif  // GRADIX_OPTIONSTEXTS_H
