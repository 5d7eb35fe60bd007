// What we know of Blackboard.
#include <string>
#include <string_view>

#include "Filters/GX_StdCsv/formats/Blackboard.h"
#include "Systems/CurrentFile.h"
#include "Systems/Download.h"
#include "Systems/DownloadText.h"
#include "Systems/ExportCheck.h"
#include "Systems/Systems.h"
#include "Systems/UploadRules.h"

namespace {

// Findings

bool _IsFirstGeneration(const ExportSubject& subject) {
  return std::string_view(subject.format->key) == "blackboard6";
}

CheckRules _Rules(const ExportSubject& subject) {
  CheckRules rules;
  if (_IsFirstGeneration(subject)) rules.idMissing = Consequence::kRefused;
  return rules;
}

void _Check(ExportCheck* check) {
  if (check->subject.dialect == Dialect::kFilled || _IsFirstGeneration(check->subject)) return;
  check->AddForFile("text-columns", Consequence::kNote);
  check->AddForFile("totals-offered", Consequence::kNote);
}

// Current file

constexpr CurrentFile kCurrent = {
    .encoding = TextEncoding::kUtf8WithBom,
    .layout = &kBlackboard9,
    .quotesNumbers = true,
};

// Download

constexpr FixedColumn kDownloadColumns[] = {
    {"Last Name", ColumnRole::kName, NamePart::kLast},
    {"First Name", ColumnRole::kName, NamePart::kFirst},
    {"Username", ColumnRole::kIdentifier},
    {"Student ID", ColumnRole::kIdentifier},
};

constexpr std::string_view kPoints = " [Total Pts: ";

// The heading without the column's number, "|664617" at its end; nothing when there is none.
std::optional<std::string_view> _CutColumnNumber(std::string_view heading) {
  const std::string_view text = TrimBlanks(heading);
  const size_t bar = text.rfind('|');
  if (bar == std::string_view::npos || bar + 1 == text.size()) return {};
  if (text.find_first_not_of("0123456789", bar + 1) != std::string_view::npos) return {};
  return TrimBlanks(text.substr(0, bar));
}

// "Quiz 1 [Total Pts: 10 Score] |664617" is an item, "[Total Pts: up to 10 Score]" computed; what is shown
// as a percentage or a letter takes no points.
DownloadColumn _DescribeColumn(std::string_view heading) {
  const auto named = _CutColumnNumber(heading);
  std::string_view title = named.value_or(std::string_view());
  auto inside = CutBracket(&title, kPoints, ']');
  if (!inside) return {};
  if (inside->starts_with("up to ")) return {.role = ColumnRole::kReadOnly};
  for (const char* total : {"Weighted Total", "Running Total", "Total"}) {
    if (IsHeading(title, total)) return {.role = ColumnRole::kReadOnly};
  }
  if (EndsWithNoCase(*inside, " Score")) inside->remove_suffix(std::string_view(" Score").size());
  const auto points = ParseCellNumber(*inside);
  if (!points) return {};
  return {.role = ColumnRole::kItem, .title = std::string(title), .pointsPossible = points};
}

bool _IsDownload(const DelimitedTable& table, bool) {
  if (!HasHeading(table, "Username") || !HasHeading(table, "Last Name")) return false;
  if (HasHeading(table, "Availability") || HasHeading(table, "Last Access")) return true;
  for (size_t i = 0; i < table.ColumnCount(); ++i) {
    if (table.Text(0, i).find(kPoints) != std::string_view::npos) return true;
  }
  return false;
}

constexpr DownloadLayout kDownload = {
    .expected = "\"Last Name\", \"First Name\", \"Username\", ... \"Availability\"",
    .matches = _IsDownload,
    .columns = kDownloadColumns,
    .describe = _DescribeColumn,
    .newTitle = [](const std::string& title, int32_t) { return title; },
};

// Upload

constexpr UploadRules kUpload = {.showsAllIdentifiers = true};

constexpr SystemFormat kFormats[] = {{.key = "blackboard91", .current = &kCurrent},
                                     {.key = "blackboard8", .current = &kCurrent},
                                     {.key = "blackboard6"}};

}  // namespace

const LearningSystem kBlackboardSystem = {
    .key = "blackboard",
    .name = "Blackboard",
    .formats = kFormats,
    .download = &kDownload,
    .upload = &kUpload,
    .rules = _Rules,
    .check = _Check,
};
