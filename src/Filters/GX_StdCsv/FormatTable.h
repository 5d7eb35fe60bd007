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
struct GradebookLayout;

// The detailed report: the one format that is no gradebook file. It is about one assignment, has no user
// identifier, and has options of its own.
constexpr uint32_t kDetailedResultsFormat = 3;

struct FormatRow {
  uint32_t index;               // its position in the table, by which the host names it
  const char* key;              // by which the command line names it
  const char* alias = nullptr;  // another word for the same
  const char* name;             // shown to the user, at most 50 characters
  int spanishNameID = 0;        // string id of the Spanish name, 0 when there is none
  std::unique_ptr<Session> (*make)(const QZEXPORTBEGIN* begin);
  const GradebookLayout* layout = nullptr;  // of its file; null: the detailed report

  bool isBlackboard = false;        // the dialog has Blackboard's items
  bool hasUnquotedVariant = false;  // Session::m_bUseQuotes has an effect

  const char* idName =
      nullptr;  // what the learning system calls its user identifier; null: the format has none
  qz::UserIDField defaultUserIDField = qz::kUserIDAlias;  // the student field proposed for it

  // What the dialog says about the identifier: the label of the fields it can be taken from, which field to
  // choose, and the learning system's name and the identifier's as its messages have them.
  const char* popupLabel = "";
  const char* prompt = "";
  const char* nameWord = "";
  const char* idWord = "";
  int32_t helpTopic;  // number of the page in the help book

  int spanishIDName = 0;  // string ids of the Spanish texts, 0 where there are none
  int spanishPrompt = 0;
  int spanishPopupLabel = 0;

  constexpr bool IsReport() const { return index == kDetailedResultsFormat; }
};

std::span<const FormatRow> FormatTable();

// The row, or null. A word is a key or an alias, in letters of any case.
const FormatRow* FindFormat(uint32_t index);
const FormatRow* FindFormat(std::string_view word);

#endif  // GRADIX_FORMATTABLE_H
