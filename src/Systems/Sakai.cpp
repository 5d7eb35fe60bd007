// What we know of Sakai.
#include <string>

#include "Filters/GX_StdCsv/formats/Sakai.h"
#include "Systems/CurrentFile.h"
#include "Systems/Download.h"
#include "Systems/DownloadText.h"
#include "Systems/Systems.h"

namespace {

// Current file

constexpr CurrentFile kCurrent = {
    .encoding = TextEncoding::kLatin1,
    .layout = &kSakai,
    .maxDecimals = 2,
    .takesSemicolons = true,
    .hasDecimalCommas = true,
};

// Download

constexpr FixedColumn kDownloadColumns[] = {
    {"Student ID", ColumnRole::kIdentifier},
    {"Name", ColumnRole::kName, NamePart::kSorted},
    {"# Student Number", ColumnRole::kIdentifier},
};

// "Quiz 1 [10]" is an item, "* Quiz 1" its comments; what begins with "#" belongs to other tools.
DownloadColumn _DescribeColumn(std::string_view heading) {
  const std::string_view text = TrimBlanks(heading);
  if (text.starts_with('#')) return {.role = ColumnRole::kReadOnly};
  if (text.starts_with("* ")) return {};
  std::string_view title = text;
  const auto inside = CutBracket(&title, " [", ']');
  const auto points = inside ? ParseCellNumber(*inside) : std::nullopt;
  if (!points) return {};
  return {.role = ColumnRole::kItem, .title = std::string(title), .pointsPossible = points};
}

// In other languages the items alone tell.
bool _IsDownload(const DelimitedTable& table, bool isChosen) {
  if (IsHeading(table.Text(0, 0), "Student ID") && IsHeading(table.Text(0, 1), "Name")) return true;
  for (size_t i = 2; isChosen && i < table.ColumnCount(); ++i) {
    if (_DescribeColumn(table.Text(0, i)).role == ColumnRole::kItem) return true;
  }
  return false;
}

TableFault _TellStudents(Gradebook* gradebook) {
  gradebook->columns[0].role = ColumnRole::kIdentifier;
  gradebook->columns[1].role = ColumnRole::kName;
  gradebook->columns[1].namePart = NamePart::kSorted;
  return {};
}

constexpr DownloadLayout kDownload = {
    .ownEncoding = TextEncoding::kLatin1,
    .expected = "\"Student ID\", \"Name\"",
    .matches = _IsDownload,
    .columns = kDownloadColumns,
    .describe = _DescribeColumn,
    .complete = _TellStudents,
    .hasDecimalCommas = true,
    .maxDecimals = 2,
    .newTitle = [](const std::string& title,
                   int32_t points) { return title + " [" + std::to_string(points) + "]"; },
};

constexpr SystemFormat kFormats[] = {{.key = "sakai", .current = &kCurrent}};

}  // namespace

const LearningSystem kSakaiSystem = {
    .key = "sakai",
    .name = "Sakai",
    .formats = kFormats,
    .download = &kDownload,
};
