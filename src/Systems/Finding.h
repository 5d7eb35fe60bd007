// What a learning system will do with a file that is not what the teacher expects.
#ifndef GRADIX_SYSTEMS_FINDING_H
#define GRADIX_SYSTEMS_FINDING_H

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

// Worst first.
enum class Consequence : uint8_t {
  kRefused,  // the system takes nothing of the file
  kWrong,    // results land at another student or column, or overwrite something
  kLost,     // some results or columns do not arrive
  kChanged,  // arrives, but renamed, capped or rounded
  kNote,     // nothing is wrong with the class; the teacher has to do or know something
};

constexpr bool IsTrouble(Consequence consequence) {
  return consequence != Consequence::kNote;
}

// "refused", by which programs know it.
const char* ConsequenceKey(Consequence consequence);

// One place in the class that a finding is about.
struct FindingPlace {
  static constexpr size_t kNone = std::numeric_limits<size_t>::max();

  size_t student = kNone;     // position in ClassRecord::students
  size_t assignment = kNone;  // position in ClassRecord::assignments
  std::string detail = {};  // UTF-8: what is peculiar to this place, or who it is when it is not in the class
};

// A fact about a class, a choice and a system. Its sentences are FindingTexts' business.
struct Finding {
  const char* code;  // stable: "title-comma"
  Consequence consequence;
  std::vector<FindingPlace> places = {};    // none: the whole file
  std::vector<std::string> arguments = {};  // UTF-8; what the sentences name as {1}, {2}
};

using Findings = std::vector<Finding>;

inline bool HasTrouble(const Findings& findings) {
  for (const Finding& finding : findings) {
    if (IsTrouble(finding.consequence)) return true;
  }
  return false;
}

#endif  // GRADIX_SYSTEMS_FINDING_H
