// Findings as people read them on a terminal.
#ifndef GRADIX_FINDINGREPORT_H
#define GRADIX_FINDINGREPORT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

// Nobody reads more names; the others are counted.
inline constexpr size_t kMostNames = 20;

// "a; b and 3 more": of `count` names the first, which `nameOf(i)` gives.
template <typename NameOf>
std::string CutList(size_t count, const char* separator, NameOf nameOf) {
  std::string text;
  for (size_t i = 0; i < count && i < kMostNames; ++i) {
    if (i > 0) text += separator;
    text += nameOf(i);
  }
  if (count > kMostNames) text += " and " + std::to_string(count - kMostNames) + " more";
  return text;
}

// The first finding of the code, or null.
const Finding* FindFinding(const Findings& findings, std::string_view code);

// What will happen, with the places and the advice in lines of their own, indented by two blanks. Does not
// end with a line feed.
std::string FindingBlock(const Finding& finding, const ExportSubject& subject);

// The findings grouped by consequence, in complete lines; empty when there are none.
std::string FindingGroups(const Findings& findings, const ExportSubject& subject);

// How to get the file that today's system takes, where there is one and trouble with this one; else empty.
std::string CurrentFileHint(const Findings& findings, const ExportSubject& subject);

#endif  // GRADIX_FINDINGREPORT_H
