// What will stand in an export's file, for whoever judges it: the class and the choices.
#ifndef GRADIX_SYSTEMS_EXPORTSUBJECT_H
#define GRADIX_SYSTEMS_EXPORTSUBJECT_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Common/QZData/ClassTexts.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Filters/GX_StdCsv/ResultsJoin.h"

enum class Dialect : uint8_t {
  kClassic,  // byte for byte what the format prescribes
  kCurrent,  // what the system's present version takes
  kFilled,   // the system's own gradebook with our results in it
};

struct ExportSubject {
  const FormatRow* format;
  qz::ClassTexts texts;
  qz::UserIDField identifier = qz::kUserIDAlias;
  Dialect dialect = Dialect::kClassic;
  char delimiter = ',';
  bool useQuotes = true;
  bool throughDialog = false;  // the filter's dialog, which cuts titles, writes the file

  std::vector<size_t> students = {};     // positions of those who have a row
  std::vector<size_t> assignments = {};  // positions of those that have a column
  std::vector<std::string> titles = {};  // of these, UTF-8: as they stand in the file, without its additions
  ScoreTable scores = {};                // of all students on these assignments

  std::string Identifier(size_t student) const {
    return texts.Student(student, qz::FindStudentField(identifier));
  }
};

// The subject of an export of the assignments at these positions, which ascend. In a current file students
// without an identifier have no row. The class and its original texts outlive the subject.
ExportSubject MakeExportSubject(const FormatRow& format, const qz::ClassTexts& texts,
                                qz::UserIDField identifier, Dialect dialect, std::vector<size_t> assignments);

// The same of the selected assignments.
ExportSubject MakeExportSubject(const FormatRow& format, const qz::ClassTexts& texts,
                                qz::UserIDField identifier, Dialect dialect);

#endif  // GRADIX_SYSTEMS_EXPORTSUBJECT_H
