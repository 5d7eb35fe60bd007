// The texts of a class that stand in the file of an export, and what in them may be in the way of whoever
// reads it.
#ifndef GRADIX_SYSTEMS_FILETEXTS_H
#define GRADIX_SYSTEMS_FILETEXTS_H

#include <cstddef>
#include <string>
#include <vector>

#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

// The filter's dialog cuts titles of more characters; of one character less, it cannot show them.
inline constexpr size_t kDialogTitleSize = 31;

// The places of one kind of text, each once in a list.
struct TextPlaces {
  std::vector<FindingPlace> separators;  // the cells' separator in a cell without quotes
  std::vector<FindingPlace> accents;     // letters beyond ASCII; of classic files
  std::vector<FindingPlace> replaced;    // letters that the file lacks became "?"; detail: what stands there
  std::vector<FindingPlace> quotes;      // double quotes became apostrophes
  std::vector<FindingPlace> formulas;    // a spreadsheet takes the cell for a formula
};

struct FileTexts {
  explicit FileTexts(const ExportSubject& subject);

  // The identifier as it stands in the file, in UTF-8.
  static std::string Identifier(const ExportSubject& subject, size_t student);

  // In a filled gradebook only the titles are ours.
  TextPlaces identifiers;
  TextPlaces names;  // and whatever else the file has of students
  TextPlaces answers;
  TextPlaces inTitles;

  std::vector<std::string> titles;    // of ExportSubject::assignments, UTF-8, as they stand in the file
  std::vector<std::string> headings;  // the titles of its other columns that hold no value of the class
  bool titlesStandAlone = false;      // nothing is added to them, so that they can be equal to a heading
};

#endif  // GRADIX_SYSTEMS_FILETEXTS_H
