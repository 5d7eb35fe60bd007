// The gradebook that a teacher downloads from a system: which system's it is, and what its columns and rows
// are.
#ifndef GRADIX_SYSTEMS_DOWNLOAD_H
#define GRADIX_SYSTEMS_DOWNLOAD_H

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Tables/DelimitedTable.h"

struct LearningSystem;
struct Gradebook;

enum class ColumnRole : uint8_t {
  kIdentifier,  // may hold what our identifier field holds; goes into the upload
  kName,        // of the student, or a part of it; goes into the upload
  kIdentity,    // another column that the upload has to have
  kItem,        // scores that a teacher may fill in
  kReadOnly,    // totals and what else the system computes
  kOther,
};

enum class NamePart : uint8_t { kNone, kFirst, kLast, kSorted };  // kSorted: "Last, First"

struct DownloadColumn {
  ColumnRole role = ColumnRole::kOther;
  NamePart namePart = NamePart::kNone;
  std::string title = {};  // UTF-8; of an item without the system's additions
  std::string otherTitle =
      {};  // of an item: without what may belong to the title or not ("Quiz: "); mostly empty
  std::optional<double> pointsPossible = {};  // of an item, where the download tells
};

// A student of the course.
struct CourseMember {
  size_t row;        // in the table
  std::string name;  // "First Last", UTF-8
};

// A column whose heading is always the same, in any letter case.
struct FixedColumn {
  const char* heading;
  ColumnRole role;
  NamePart namePart = NamePart::kNone;
};

// What a system's download looks like. The headings are its first row.
struct DownloadLayout {
  TextEncoding ownEncoding = TextEncoding::kUtf8;
  const char* expected = "";  // the headings by which it is known, for messages

  // Whether the headings are the system's. Asks for less when the user says that they are.
  bool (*matches)(const DelimitedTable& table, bool isChosen) = nullptr;

  std::span<const FixedColumn> columns = {};
  DownloadColumn (*describe)(std::string_view heading) = nullptr;  // every other column
  // What the headings do not tell: the rows above the students, columns that depend on others; or the fault
  // for which the gradebook is of no use. May be null.
  TableFault (*complete)(Gradebook* gradebook) = nullptr;

  // An identifier or a name without the system's additions ("#12", ="12"); null: it has none.
  std::string (*plainText)(std::string_view cell) = nullptr;

  bool foldsIdentifierCase = false;  // "ANNA" and "anna" are one user
  bool hasDecimalCommas = false;     // in tables with semicolons, unless the scores show otherwise
  int maxDecimals = -1;              // of a score; -1: any
  const char* noScore = "";          // a cell without a score, as the system writes it

  const char* lastHeading = nullptr;  // of a column that has to stay the last; null: there is none

  // The heading of a new column; null: none can be added by an upload.
  std::string (*newTitle)(const std::string& title, int32_t pointsPossible) = nullptr;
};

// A download, understood.
struct Gradebook {
  const LearningSystem* system = nullptr;
  DelimitedTable table;
  std::vector<DownloadColumn> columns;  // by column of the table
  std::vector<size_t> headerRows;       // rows above the students that go into the upload; the headings first
  std::vector<CourseMember> members;    // in the order of their rows
  size_t pointsRow = 0;                 // a row with the points possible of the items; 0: none
  bool decimalCommas = false;           // in its scores

  static constexpr size_t kNone = std::numeric_limits<size_t>::max();

  // The title of a column as it stands in the table, and the first column with that title, in any letter
  // case, or kNone.
  std::string_view Heading(size_t column) const { return table.Text(0, column); }
  size_t FindHeading(std::string_view heading) const;

  std::string Identifier(const CourseMember& member, size_t column) const;
  // The score in a cell, nothing for a cell without one. Words like "EX" are no score, but not empty either.
  std::optional<double> Score(size_t row, size_t column) const;
  bool HasScore(size_t row, size_t column) const;  // anything that a teacher would miss
  // A score as this gradebook writes it.
  std::string ScoreText(double score) const;
};

// Reads the download at `path`. `system` null: its headings tell which one's it is. Any thread; throws
// nothing.
TableFault ReadGradebook(const std::string& path, const LearningSystem* system, Gradebook* gradebook);
TableFault ParseGradebook(std::string_view bytes, const LearningSystem* system, Gradebook* gradebook);

#endif  // GRADIX_SYSTEMS_DOWNLOAD_H
