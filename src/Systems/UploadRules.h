// What a system does with an upload into a course, as far as only the course's gradebook can tell.
#ifndef GRADIX_SYSTEMS_UPLOADRULES_H
#define GRADIX_SYSTEMS_UPLOADRULES_H

#include <cstdint>
#include <optional>
#include <span>

#include "Systems/Download.h"
#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"
#include "Systems/GradebookMatch.h"

enum class BlankScore : uint8_t {
  kUnknown,             // nothing is claimed
  kErases,              // the score that is there
  kErasesWhenChanging,  // when another score of the column changes
};

struct UploadRules {
  BlankScore blank = BlankScore::kUnknown;
  Consequence unknownStudent = Consequence::kLost;
  bool showsAllIdentifiers = false;              // whoever is not in the download is not in the course
  bool refusesUnknownRows = false;               // also of students who have no result
  Consequence otherCase = Consequence::kNote;    // an identifier in another letter case
  std::optional<Consequence> secondColumn = {};  // a title in another letter case makes a column of its own
  Consequence otherPoints = Consequence::kNote;  // of a column that is there
  bool capsScores = false;                       // at the points of the column
  std::optional<double> greatestScore = {};      // a greater one makes it refuse the file
  bool matchesNames = false;                     // of students whom it does not know by the identifier

  // The heading of the system's own numbers of users, as which it reads the identifiers of a classic file
  // that begin with a digit; null: there is nothing of the kind.
  const char* ownNumbers = nullptr;

  // Codes of findings that say "possibly" as long as the gradebook is not known.
  std::span<const char* const> superseded = {};

  // Codes of findings that are true only of columns that the system has to make.
  std::span<const char* const> ofNewColumns = {};
};

// What only the download can tell, for an upload of the subject's own file (Dialect::kClassic or kCurrent)
// into this course, or for the filled gradebook (kFilled).
Findings CheckAgainstGradebook(const ExportSubject& subject, const Gradebook& gradebook,
                               const GradebookMatch& match);

#endif  // GRADIX_SYSTEMS_UPLOADRULES_H
