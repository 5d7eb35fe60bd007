#include "Common/QZData/QZTest.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "Common/QZData/QZClass.h"
#include "Common/QZData/QZString.h"
#include "Common/QZData/QuestionTypes.h"
#include "Common/asciicase.h"

namespace qz {

namespace {

// Wraps, as 32-bit sums do.
int32_t _Add(int32_t a, int32_t b) {
  return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
}

template <typename Record>
int32_t _FindByName(const std::vector<Record>& records, std::string_view name) {
  if (name.empty()) return -1;
  const auto found = std::find_if(records.begin(), records.end(), [name](const Record& record) {
    return AsciiEqualNoCase(record.name, name);
  });
  return found == records.end() ? -1 : static_cast<int32_t>(found - records.begin());
}

template <typename Record>
const Record* _At(const std::vector<Record>& records, int32_t index) {
  return index < 0 ? nullptr : &records[static_cast<size_t>(index)];
}

char* _Append(char* end, std::string_view text) {
  end += text.copy(end, text.size());
  *end = '\0';
  return end;
}

}  // namespace

const char* Test::GetQuestionTypeAbbrev(int32_t type) {
  if (type < kQuestionTF || type > kQuestionOT || type == kQuestionBI) return nullptr;
  return kQuestionTypeNames[type];
}

int32_t Test::GetQuestionType(std::string_view keyword) {
  return FindQuestionType(keyword);
}

char* Test::GetMCItemFeedback(const TestQuestion& question, char letter, char* buffer) {
  *buffer = '\0';
  if (question.type != kQuestionMC || letter < 'A' || letter > 'E') return buffer;
  char marker[] = {'/', letter, '/', '\0'};
  const char* const found = StringSearch(question.feedback.c_str(), marker);
  if (found == nullptr) return buffer;
  const std::string_view text = found + std::strlen(marker);
  _Append(buffer, text.substr(0, kMaxFeedback));
  ++marker[1];
  if (char* const next = StringSearch(buffer, marker)) *next = '\0';
  return buffer;
}

int32_t Test::GetQuestionCount() const {
  return static_cast<int32_t>(questions.size());
}

int32_t Test::NumberAfter(size_t count, std::optional<int32_t> type) const {
  int32_t number = startNumber;
  bool seen = false;
  for (size_t i = 0; i < count; ++i) {
    if (questions[i].type == type) {
      seen = true;
      number = _Add(number, 1);
    } else if (!seen) {
      number = 1;
    }
  }
  return number;
}

int32_t Test::GetQuestionNumber(int32_t index) const {
  if (index < 0) return startNumber;
  if ((numbering & kNumberContinuously) != 0) return _Add(startNumber, index);
  const size_t wanted = static_cast<size_t>(index);
  if (wanted >= questions.size()) return NumberAfter(questions.size(), std::nullopt);
  return NumberAfter(wanted, questions[wanted].type);
}

int32_t Test::GetNewQuestionNumber(int32_t type) const {
  if ((numbering & kNumberContinuously) != 0) return _Add(startNumber, GetQuestionCount());
  return NumberAfter(questions.size(), type);
}

bool Test::HasQuestionType(int32_t type) const {
  return std::any_of(questions.begin(), questions.end(),
                     [type](const TestQuestion& question) { return question.type == type; });
}

int32_t Test::FindMatchingGroupIndex(std::string_view name) const {
  return _FindByName(matchingGroups, name);
}

const MatchingGroupRecord* Test::FindMatchingGroupPtr(std::string_view name) const {
  return _At(matchingGroups, FindMatchingGroupIndex(name));
}

int32_t Test::FindNarrativeIndex(std::string_view name) const {
  return _FindByName(narratives, name);
}

const NarrativeRecord* Test::FindNarrativePtr(std::string_view name) const {
  return _At(narratives, FindNarrativeIndex(name));
}

char* Test::BuildCSSFromDefaultFont(char* buffer, const DefaultFont& font, bool mapSize) const {
  const int32_t size = mapSize ? MapFontSize(font.size) : font.size;
  char part[32];  // room for the longest size and the colour
  std::snprintf(part, sizeof part, "font-size:%dpt;", size);
  char* end = _Append(buffer, part);
  if ((font.style & kFontBold) != 0) end = _Append(end, " font-weight:bold;");
  if ((font.style & kFontItalic) != 0) end = _Append(end, " font-style:italic;");
  if ((font.style & kFontUnderline) != 0) end = _Append(end, " text-decoration:underline;");
  const auto found = std::find_if(fonts.begin(), fonts.end(),
                                  [&font](const FontRecord& record) { return record.id == font.fontID; });
  if (found != fonts.end()) {
    end = _Append(end, " font-family:\"");
    end = _Append(end, found->name.c_str());
    end = _Append(end, "\";");
  }
  std::snprintf(part, sizeof part, " color:#%02X%02X%02X;", font.colour & 0xFF, (font.colour >> 8) & 0xFF,
                (font.colour >> 16) & 0xFF);
  _Append(end, part);
  return buffer;
}

char* Test::MakePrefixedFilename(char* buffer, std::string_view name) const {
  char* end = _Append(buffer, filenamePrefix);
  if (!filenamePrefix.empty() && filenamePrefix.back() != '_' && !name.empty()) end = _Append(end, "_");
  _Append(end, name);
  return buffer;
}

void Test::Clear() {
  *this = Test();
}

}  // namespace qz
