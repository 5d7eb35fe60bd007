// What we know of Brightspace.
#include <string>
#include <string_view>

#include "Filters/GX_StdCsv/formats/D2L.h"
#include "Systems/CurrentFile.h"
#include "Systems/Download.h"
#include "Systems/DownloadText.h"
#include "Systems/ExportCheck.h"
#include "Systems/Systems.h"
#include "Systems/UploadRules.h"

namespace {

// Findings

CheckRules _Rules(const ExportSubject& /*subject*/) {
  CheckRules rules;
  rules.scoreAbovePoints = Consequence::kChanged;
  return rules;
}

bool _IsDigitsOnly(std::string_view identifier) {
  return !identifier.empty() && identifier.find_first_not_of("0123456789") == std::string_view::npos;
}

void _Check(ExportCheck* check) {
  // The other files have a "#" in front.
  if (check->subject.dialect != Dialect::kClassic) return;
  const std::vector<FindingPlace> digits = check->Identifiers(_IsDigitsOnly);
  if (digits.empty()) return;
  check->AddForFile("id-digits", Consequence::kNote, {check->subject.Identifier(digits.front().student)});
}

// Current file

// A spreadsheet takes "#0123" for a text and keeps its zero; Brightspace drops the "#".
constexpr CurrentFile kCurrent = {
    .encoding = TextEncoding::kUtf8WithBom,
    .layout = &kD2L,
    .numericIdPrefix = "#",
};

// Download

constexpr FixedColumn kDownloadColumns[] = {
    {"OrgDefinedId", ColumnRole::kIdentifier},
    {"Username", ColumnRole::kIdentifier},
    {"Last Name", ColumnRole::kName, NamePart::kLast},
    {"First Name", ColumnRole::kName, NamePart::kFirst},
    {"Email", ColumnRole::kIdentifier},
    {"End-of-Line Indicator", ColumnRole::kIdentity},
};

constexpr std::string_view kPointsGrade = " Points Grade";
constexpr std::string_view kMaxPoints = "MaxPoints:";

// Whether the system computes the grade: final grades, and the totals of categories.
bool _IsComputed(std::string_view title, std::string_view kind) {
  return kind.starts_with("Calculated") || kind.starts_with("Formula") ||
         title.starts_with("Calculated Final Grade") || title.starts_with("Adjusted Final Grade") ||
         title.find(" Subtotal") != std::string_view::npos;
}

// "Quiz 1 Points Grade <Numeric MaxPoints:10 Weight:1>" is an item; the kind is left out at times.
DownloadColumn _DescribeColumn(std::string_view heading) {
  std::string_view title = TrimBlanks(heading);
  const std::string_view kind = CutBracket(&title, " <", '>').value_or(std::string_view());
  if (_IsComputed(title, kind)) return {.role = ColumnRole::kReadOnly};
  if (!title.ends_with(kPointsGrade) || (!kind.empty() && !kind.starts_with("Numeric"))) return {};
  title.remove_suffix(kPointsGrade.size());
  DownloadColumn column = {.role = ColumnRole::kItem, .title = std::string(TrimBlanks(title))};
  if (const size_t points = kind.find(kMaxPoints); points != std::string_view::npos) {
    const std::string_view number = kind.substr(points + kMaxPoints.size());
    column.pointsPossible = ParseCellNumber(number.substr(0, number.find(' ')));
  }
  return column;
}

bool _IsDownload(const DelimitedTable& table, bool) {
  if (!HasHeading(table, "OrgDefinedId") && !HasHeading(table, "Username")) return false;
  if (HasHeading(table, "End-of-Line Indicator")) return true;
  for (size_t i = 0; i < table.ColumnCount(); ++i) {
    if (_DescribeColumn(table.Text(0, i)).role == ColumnRole::kItem) return true;
  }
  return false;
}

// "#" protects an identifier from spreadsheets.
std::string _PlainText(std::string_view cell) {
  return std::string(cell.substr(cell.starts_with('#') ? 1 : 0));
}

constexpr DownloadLayout kDownload = {
    .expected = "\"OrgDefinedId\" or \"Username\", ... \"End-of-Line Indicator\"",
    .matches = _IsDownload,
    .columns = kDownloadColumns,
    .describe = _DescribeColumn,
    .plainText = _PlainText,
    .lastHeading = "End-of-Line Indicator",
    .newTitle = [](const std::string& title, int32_t) { return title + std::string(kPointsGrade); },
};

// Upload

constexpr UploadRules kUpload = {.capsScores = true};

constexpr SystemFormat kFormats[] = {{.key = "d2l", .current = &kCurrent}};

}  // namespace

const LearningSystem kBrightspaceSystem = {
    .key = "brightspace",
    .name = "Brightspace",
    .formats = kFormats,
    .download = &kDownload,
    .upload = &kUpload,
    .rules = _Rules,
    .check = _Check,
};
