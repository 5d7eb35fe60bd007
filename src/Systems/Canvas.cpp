// What we know of Canvas.
#include <algorithm>
#include <string_view>

#include "Common/KeyGroups.h"
#include "Filters/GX_StdCsv/formats/Canvas.h"
#include "Systems/CurrentFile.h"
#include "Systems/Download.h"
#include "Systems/DownloadText.h"
#include "Systems/ExportCheck.h"
#include "Systems/Systems.h"
#include "Systems/UploadRules.h"

namespace {

// Findings

constexpr std::string_view kHeadings[] = {
    "Student", "ID", "Section", "SIS User ID", "SIS Login ID", "Integration ID", "Root Account"};

bool _IsDigit(char character) {
  return character >= '0' && character <= '9';
}

// A title without the number of a column, " (12)", at its end.
std::string_view _WithoutNumber(std::string_view title) {
  if (!title.ends_with(')')) return title;
  const size_t open = title.rfind(" (");
  if (open == std::string_view::npos) return title;
  const std::string_view number = title.substr(open + 2, title.size() - open - 3);
  return !number.empty() && std::ranges::all_of(number, _IsDigit) ? title.substr(0, open) : title;
}

// The words of its own totals.
constexpr std::string_view kTotals[] = {
    "Current Points", "Current Score",  "Current Grade",  "Final Points",    "Final Score",
    "Final Grade",    "Override Score", "Override Grade", "Override Status",
};

// Columns with such words are dropped from an upload.
bool _IsTotal(std::string_view title) {
  return std::ranges::any_of(
      kTotals, [&](std::string_view total) { return title.find(total) != std::string_view::npos; });
}

CheckRules _Rules(const ExportSubject& subject) {
  CheckRules rules;
  rules.noAssignments = Consequence::kRefused;
  rules.titleEqual = Consequence::kWrong;
  rules.titleHeading = Consequence::kWrong;
  rules.headings = kHeadings;
  // A filled column has its own number behind the title.
  if (subject.dialect != Dialect::kFilled) rules.plainTitle = _WithoutNumber;
  rules.tellsMissingResults = true;
  if (subject.dialect == Dialect::kClassic) {
    // This file is read as UTF-8, and its students are found by their names.
    rules.accents = Consequence::kRefused;
    rules.idMissing = rules.idDuplicate = rules.idReplaced = Consequence::kNote;
    rules.nameReplaced = rules.nameQuote = Consequence::kLost;
  }
  return rules;
}

// By the names as they stand in the file.
void _FindUnfitNames(ExportCheck* check) {
  const std::vector<qz::StudentRecord>& students = check->Record().students;
  std::vector<std::string> names(students.size());
  KeyGroups groups(students.size());
  std::vector<FindingPlace> nameless;
  for (const size_t student : check->subject.students) {
    std::string& name = names[student];
    name.append(students[student].firstName).append(" ").append(students[student].lastName);
    std::ranges::replace(name, '"', '\'');
    if (name == " ") {
      nameless.push_back({.student = student});
    } else {
      groups.Add(name, student);
    }
  }
  std::vector<FindingPlace> equal;
  for (const std::vector<size_t>& group : std::move(groups).Shared()) {
    for (const size_t student : group) equal.push_back({.student = student});
  }
  check->AddForResults("name-equal", Consequence::kWrong, std::move(equal));
  check->AddForResults("name-missing", Consequence::kLost, std::move(nameless));
}

// The file has such an identifier in the column of Canvas's own user numbers.
void _FindUserNumbers(ExportCheck* check) {
  const std::vector<FindingPlace> numbers = check->Identifiers(
      [](std::string_view identifier) { return !identifier.empty() && _IsDigit(identifier[0]); });
  if (numbers.empty()) return;
  check->AddForFile("id-as-user-number", Consequence::kNote,
                    {check->subject.Identifier(numbers.front().student)});
}

// What the current file has as the user id: the alias is the login there.
qz::UserIDField _UserIDField(qz::UserIDField chosen) {
  return qz::FindStudentField(chosen).userIDField == qz::kUserIDAlias ? qz::kUserIDStudentID : chosen;
}

// A current file that goes by the alias has the student ids as well, and Canvas looks them up first.
void _FindSharedStudentIDs(ExportCheck* check) {
  const ExportSubject& subject = check->subject;
  if (_UserIDField(subject.identifier) == subject.identifier) return;
  const qz::StudentField& field = qz::FindStudentField(qz::kUserIDStudentID);
  KeyGroups groups(subject.texts.Record().students.size());
  std::vector<std::string> studentIDs(subject.texts.Record().students.size());
  for (const size_t student : subject.students) {
    studentIDs[student] = subject.texts.Student(student, field);
    if (!studentIDs[student].empty()) groups.Add(studentIDs[student], student);
  }
  std::vector<FindingPlace> places;
  bool haveResults = false;
  for (const std::vector<size_t>& group : std::move(groups).Shared()) {
    for (const size_t student : group) {
      places.push_back({.student = student});
      haveResults = haveResults || !subject.scores.ScoresOf(student).empty();
    }
  }
  if (haveResults) check->Add("student-id-duplicate", Consequence::kWrong, std::move(places));
}

void _Check(ExportCheck* check) {
  if (check->subject.dialect == Dialect::kClassic) {
    _FindUnfitNames(check);
    _FindUserNumbers(check);
  }
  if (check->subject.dialect == Dialect::kCurrent) _FindSharedStudentIDs(check);
  check->Add("title-total", Consequence::kLost, check->Titles(_IsTotal));
  if (check->subject.dialect == Dialect::kFilled) return;  // the other titles are told apart by their numbers
  check->Add("title-number", Consequence::kWrong,
             check->Titles([](std::string_view title) { return _WithoutNumber(title) != title; }));
  check->Add("title-notes", Consequence::kLost,
             check->Titles([](std::string_view title) { return title == "Notes"; }));
}

// Current file

// The first field that Canvas compares is its own user number, which no class file knows.
constexpr GradebookColumn kCurrentStudent[] = {
    {.title = "Student", .cell = "{first-name} {last-name}"},
    {.title = "ID", .cell = ""},
    {.title = "SIS User ID", .cell = "{identifier}"},
    {.title = "SIS Login ID", .cell = "{alias}"},
    {.title = "Section", .cell = ""},
};

constexpr GradebookLayout kCurrentLayout = {
    .leading = kCurrentStudent,
    .score = kCanvas.score,
    .pointsPossibleTitle = "    Points Possible",
};

constexpr CurrentFile kCurrent = {
    .layout = &kCurrentLayout,
    .takesSemicolons = true,
    .identifierField = _UserIDField,
};

// Download

constexpr FixedColumn kDownloadColumns[] = {
    {"Student", ColumnRole::kName, NamePart::kSorted},
    {"LastName", ColumnRole::kName, NamePart::kLast},
    {"FirstName", ColumnRole::kName, NamePart::kFirst},
    {"ID", ColumnRole::kIdentity},  // Canvas's own number of the user
    {"SIS User ID", ColumnRole::kIdentifier},
    {"SIS Login ID", ColumnRole::kIdentifier},
    {"Integration ID", ColumnRole::kIdentifier},
    {"Root Account", ColumnRole::kIdentity},
    {"Section", ColumnRole::kIdentity},
};

bool _IsDownload(const DelimitedTable& table, bool) {
  const auto begins = [&table](std::initializer_list<const char*> headings) {
    size_t column = 0;
    return std::all_of(headings.begin(), headings.end(),
                       [&](const char* heading) { return IsHeading(table.Text(0, column++), heading); });
  };
  return (begins({"Student", "ID"}) || begins({"LastName", "FirstName", "ID"})) &&
         HasHeading(table, "Section");
}

// "Quiz 1 (12345)" is the column of an assignment; totals come for the course and for each group.
DownloadColumn _DescribeColumn(std::string_view heading) {
  std::string_view title = heading;
  const auto number = CutBracket(&title, " (", ')');
  const bool isNumber =
      number && !number->empty() && number->find_first_not_of("0123456789") == std::string_view::npos;
  if (isNumber) return {.role = ColumnRole::kItem, .title = std::string(title)};
  const std::string_view text = TrimBlanks(heading);
  const bool isTotal = std::any_of(std::begin(kTotals), std::end(kTotals),
                                   [text](std::string_view total) { return EndsWithNoCase(text, total); });
  return {.role = isTotal ? ColumnRole::kReadOnly : ColumnRole::kOther};
}

// A row with the points possible stands above the students, one about manual posting possibly above it.
TableFault _FindPoints(Gradebook* gradebook) {
  const DelimitedTable& table = gradebook->table;
  for (size_t row = 1; row <= 2 && gradebook->pointsRow == 0; ++row) {
    if (IsHeading(table.Text(row, 0), "Points Possible")) gradebook->pointsRow = row;
  }
  if (gradebook->pointsRow == 0) return {};
  gradebook->headerRows.push_back(gradebook->pointsRow);
  for (size_t i = 0; i < gradebook->columns.size(); ++i) {
    DownloadColumn& column = gradebook->columns[i];
    const std::string_view points = table.Text(gradebook->pointsRow, i);
    if (IsHeading(points, "(read only)")) column.role = ColumnRole::kReadOnly;
    if (column.role == ColumnRole::kItem) column.pointsPossible = ParseCellNumber(points);
  }
  return {};
}

// ="12" of a text that a spreadsheet could take for a formula or a number.
std::string _PlainText(std::string_view cell) {
  if (cell.size() < 3 || !cell.starts_with("=\"") || !cell.ends_with('"')) return std::string(cell);
  std::string plain;
  for (size_t i = 2; i + 1 < cell.size(); ++i) {
    plain += cell[i];
    if (cell[i] == '"' && i + 2 < cell.size() && cell[i + 1] == '"') ++i;
  }
  return plain;
}

constexpr DownloadLayout kDownload = {
    .expected = "\"Student\", \"ID\", ... \"Section\"",
    .matches = _IsDownload,
    .columns = kDownloadColumns,
    .describe = _DescribeColumn,
    .complete = _FindPoints,
    .plainText = _PlainText,
    .newTitle = [](const std::string& title, int32_t) { return title; },
};

// Upload

constexpr const char* kSuperseded[] = {"result-missing", "id-as-user-number"};

constexpr UploadRules kUpload = {
    .blank = BlankScore::kErases,
    .unknownStudent = Consequence::kLost,
    .showsAllIdentifiers = true,
    .secondColumn = Consequence::kWrong,
    .matchesNames = true,
    .ownNumbers = "ID",
    .superseded = kSuperseded,
};

constexpr SystemFormat kFormats[] = {{.key = "canvas", .current = &kCurrent}};

}  // namespace

const LearningSystem kCanvasSystem = {
    .key = "canvas",
    .name = "Canvas",
    .formats = kFormats,
    .download = &kDownload,
    .upload = &kUpload,
    .rules = _Rules,
    .check = _Check,
};
