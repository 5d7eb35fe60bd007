// How well a student field can tell the students of a class apart in a learning system.
//
// Identifiers are compared as the class file has them: two that differ only in letters which the 8-bit
// records lack are different.
#ifndef GRADIX_SYSTEMS_IDENTIFIERQUALITY_H
#define GRADIX_SYSTEMS_IDENTIFIERQUALITY_H

#include <cstddef>
#include <string>
#include <vector>

#include "Common/QZData/ClassTexts.h"

// Students are given by their position in ClassRecord::students.
struct IdentifierQuality {
  size_t students = 0;
  std::vector<size_t> empty;  // students without an identifier

  // Groups of two or more students with one identifier. Empty identifiers are in no group.
  std::vector<std::vector<size_t>> duplicates;

  // Groups of two or more different identifiers that are equal but for letter case, blanks or leading zeros,
  // each given by the first student who has it.
  std::vector<std::vector<size_t>> nearDuplicates;

  std::string example;  // the first identifier that is not empty, UTF-8

  size_t Filled() const { return students - empty.size(); }
};

IdentifierQuality JudgeIdentifiers(const qz::ClassTexts& texts, qz::UserIDField field);

#endif  // GRADIX_SYSTEMS_IDENTIFIERQUALITY_H
