// One test in memory: its questions with their narratives, matching groups and fonts.
//
// Plain value types: a copy is a deep copy. Texts are 8-bit Mac OS Roman. Pointers that the lookups return
// are valid until the list they point into changes.
#ifndef GRADIX_QZTEST_H
#define GRADIX_QZTEST_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qz {

// Bit of DefaultFont::style.
enum FontStyle : uint32_t {
  kFontBold = 0x1,
  kFontUnderline = 0x2,
  kFontItalic = 0x4,
};

struct DefaultFont {
  int32_t fontID = 0;  // FontRecord::id
  int32_t size = 0;    // points
  uint32_t style = 0;
  uint32_t colour = 0;  // red in the low byte, green in the second, blue in the third
};

struct TestQuestion {
  int32_t type = 0;      // QuestionType
  std::string feedback;  // multiple choice: "/A/", the text for A, "/B/", the text for B, ...
};

struct NarrativeRecord {
  std::string name;
};

struct MatchingGroupRecord {
  std::string name;
};

struct FontRecord {
  int32_t id = 0;
  std::string name;
};

// Bit of Test::numbering.
inline constexpr uint32_t kNumberContinuously = 0x1;

class Test {
 public:
  // The feedback of one choice is cut to this many characters; the buffer holds one more.
  static constexpr size_t kMaxFeedback = 1000;

  // Null for types without an abbreviation: what is not a type, and BI, which is a keyword only.
  static const char* GetQuestionTypeAbbrev(int32_t type);
  // -1 for an unknown keyword; without regard to case.
  static int32_t GetQuestionType(std::string_view keyword);

  // Fills `buffer`, which holds kMaxFeedback + 1 bytes, with the feedback text of a choice, "A" to "E";
  // empties it when there is none. Returns `buffer`.
  static char* GetMCItemFeedback(const TestQuestion& question, char letter, char* buffer);

  int32_t GetQuestionCount() const;
  // The displayed number of the question at a 0-based index. A negative index gives the start number; past
  // the end every question counts as one of another type.
  int32_t GetQuestionNumber(int32_t index) const;
  // The number that a new question of that type would get at the end.
  int32_t GetNewQuestionNumber(int32_t type) const;
  bool HasQuestionType(int32_t type) const;

  // The first record of that name, without regard to case; -1 or null when there is none or the name is
  // empty.
  int32_t FindMatchingGroupIndex(std::string_view name) const;
  const MatchingGroupRecord* FindMatchingGroupPtr(std::string_view name) const;
  int32_t FindNarrativeIndex(std::string_view name) const;
  const NarrativeRecord* FindNarrativePtr(std::string_view name) const;

  // Writes the font as a CSS declaration list; with `mapSize` the size is replaced by its stand-in. The
  // buffer holds 128 bytes more than the longest font name. Returns `buffer`.
  char* BuildCSSFromDefaultFont(char* buffer, const DefaultFont& font, bool mapSize) const;

  // Writes the prefix, an underscore where one is missing between the two, and the name. The buffer holds
  // both texts and two bytes more. Returns `buffer`.
  char* MakePrefixedFilename(char* buffer, std::string_view name) const;

  // Back to the state of a new test.
  void Clear();

  std::string filenamePrefix;
  uint32_t numbering = 0;
  int32_t startNumber = 1;
  std::vector<TestQuestion> questions;
  std::vector<NarrativeRecord> narratives;
  std::vector<MatchingGroupRecord> matchingGroups;
  std::vector<FontRecord> fonts;

 private:
  // The number after the first `count` questions, for a question of the given type, or of none of theirs.
  int32_t NumberAfter(size_t count, std::optional<int32_t> type) const;
};

}  // namespace qz

#endif  // GRADIX_QZTEST_H
