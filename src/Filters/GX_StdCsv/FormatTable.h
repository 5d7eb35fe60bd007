// The export formats. Whatever lists formats iterates this table.
#ifndef GRADIX_FORMATTABLE_H
#define GRADIX_FORMATTABLE_H

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "Common/QZData/QZClass.h"
#include "gradix/QZFilter.h"

class Session;

struct FormatRow {
  uint32_t index;      // its position in the table, by which the host names it
  const char* key;     // by which the command line names it
  const char* name;    // shown to the user
  int spanishNameID;   // string id of the Spanish name, 0 when there is none
  const char* idName;  // what the learning system calls its user identifier; null: the format has none
  qz::UserIDField defaultUserIDField;  // the student field proposed for it
  bool hasUnquotedVariant;             // Session::SetUseQuotes(false) has an effect
  std::unique_ptr<Session> (*make)(const QZEXPORTBEGIN* begin);
};

// The detailed report: the one format that is no gradebook file and has options of its own.
constexpr uint32_t kDetailedResultsFormat = 3;

std::span<const FormatRow> FormatTable();

// The row, or null.
const FormatRow* FindFormat(uint32_t index);
const FormatRow* FindFormat(std::string_view key);

#endif  // GRADIX_FORMATTABLE_H
