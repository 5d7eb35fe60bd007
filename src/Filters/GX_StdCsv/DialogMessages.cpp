#include "Filters/GX_StdCsv/DialogMessages.h"

#include "Common/Language.h"
#include "Filters/GX_StdCsv/QZLoadString.h"
#include "Toolkit/Alert.h"

namespace {

// The string tables are the host's: what they hold is checked while it is filled in.
std::string _Format(int spanishID, const char* english, std::initializer_list<AlertArgument> arguments) {
  return ExpandAlertText(IsSpanish() ? QZLoadString(spanishID) : std::string(english),
                         {arguments.begin(), arguments.size()});
}

}  // namespace

std::string SomeEmptyMessage(const FormatRow& format, size_t empty, size_t students) {
  return _Format(
      70063,
      "The selected %s %s field is empty for %d of %d students. Student records missing a valid %s %s "
      "will not be imported into %s.",
      {format.nameWord, format.idWord, static_cast<int64_t>(empty), static_cast<int64_t>(students),
       format.nameWord, format.idWord, format.nameWord});
}

std::string AllEmptyMessage(const FormatRow& format) {
  return _Format(70064,
                 "The selected %s %s field is empty for all students. No student results can be exported.",
                 {format.nameWord, format.idWord});
}

std::string SavedMessage(int spanishID, const std::string& path) {
  return _Format(spanishID, "Assignment results have been saved in %s.", {Utf8Text{path}});
}
