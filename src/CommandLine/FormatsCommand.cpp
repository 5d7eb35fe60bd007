#include "CommandLine/Commands.h"
#include "CommandLine/Json.h"
#include "CommandLine/OutputFile.h"
#include "CommandLine/TerminalText.h"
#include "Common/QZData/StudentFields.h"
#include "Systems/LearningSystem.h"

namespace {

// The key of the field proposed for the identifier, null when the format has none.
const char* _DefaultFieldKey(const FormatRow& row) {
  return row.idName == nullptr ? nullptr : qz::FindStudentField(row.defaultUserIDField).key;
}

Json _OrNull(const char* text) {
  return text == nullptr ? Json() : Json(text);
}

std::string _AsJson() {
  Json formats = Json::List();
  for (const FormatRow& row : FormatTable()) {
    formats.Add({{"index", row.index},
                 {"key", row.key},
                 {"name", row.name},
                 {"idName", _OrNull(row.idName)},
                 {"defaultField", _OrNull(_DefaultFieldKey(row))},
                 {"hasUnquotedVariant", row.hasUnquotedVariant},
                 {"hasCurrentFile", FindCurrentFile(row) != nullptr}});
  }
  return formats.Text();
}

std::string _AsTable() {
  std::vector<std::vector<std::string>> rows = {{"INDEX", "FORMAT", "NAME", "STUDENT FIELD"}};
  for (const FormatRow& row : FormatTable()) {
    const char* field = _DefaultFieldKey(row);
    rows.push_back({std::to_string(row.index), row.key, row.name, field == nullptr ? "" : field});
  }
  return AlignColumns(rows);
}

}  // namespace

ExitStatus RunFormats(const FormatsOptions& options) {
  WriteStandardOutput(options.json ? _AsJson() : _AsTable());
  return kExitDone;
}
