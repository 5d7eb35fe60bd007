// The abbreviations of the question types, as class files and tests write them.
#ifndef GRADIX_QUESTIONTYPES_H
#define GRADIX_QUESTIONTYPES_H

#include <cstdint>
#include <string_view>

namespace qz {

// Indexed by QuestionType.
extern const char* const kQuestionTypeNames[14];

// The type of an abbreviation, without regard to ASCII case; -1 when there is none.
int32_t FindQuestionType(std::string_view abbreviation);

}  // namespace qz

#endif  // GRADIX_QUESTIONTYPES_H
