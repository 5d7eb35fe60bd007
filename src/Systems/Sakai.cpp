// What we know of Sakai.
#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "Common/number.h"
#include "Filters/GX_StdCsv/formats/Sakai.h"
#include "Systems/CurrentFile.h"
#include "Systems/Download.h"
#include "Systems/DownloadText.h"
#include "Systems/ExportCheck.h"
#include "Systems/ScoreFindings.h"
#include "Systems/Systems.h"
#include "Systems/UploadRules.h"

namespace {

// Findings

CheckRules _Rules(const ExportSubject& /*subject*/) {
  // Students whom it does not find are skipped. It does not look at their names.
  CheckRules rules;
  rules.idReplaced = Consequence::kLost;
  rules.accents.reset();
  rules.idAccents = Consequence::kLost;
  rules.titleAccents = Consequence::kChanged;
  rules.nameReplaced = Consequence::kNote;
  rules.titleEqual = Consequence::kRefused;
  rules.titleEmpty = Consequence::kRefused;
  rules.scoreNoNumber = Consequence::kRefused;
  rules.tellsMissingResults = true;
  return rules;
}

constexpr size_t kMaxDigits = 10;
constexpr size_t kMaxDecimals = 2;

bool _IsTaken(std::string_view score) {
  const size_t digits = std::min(score.find_first_not_of("0123456789"), score.size());
  const std::string_view rest = score.substr(digits);
  if (rest.empty()) return digits <= kMaxDigits;
  return rest[0] == '.' && rest.size() <= 1 + kMaxDecimals && digits <= kMaxDigits &&
         rest.find_first_not_of("0123456789", 1) == std::string_view::npos;
}

// Most scores are multiples of a quarter, which need no closer look.
bool _IsEasy(double points) {
  return points >= 0 && points < 100000 && points * 4 == std::floor(points * 4);
}

void _CheckScores(ExportCheck* check) {
  const ExportSubject& subject = check->subject;
  std::vector<FindingPlace> refused;
  std::vector<FindingPlace> rounded;
  check->VisitScores([&](size_t student, size_t column, double points) {
    if (_IsEasy(points) || !std::isfinite(points)) return;
    FindingPlace place = ScorePlace(subject, student, column, points);
    if (place.detail[0] == '-') return;  // has a finding of its own
    if (!_IsTaken(place.detail)) {
      refused.push_back(std::move(place));
    } else if (const std::string whole = PlainNumber(points);
               subject.dialect != Dialect::kClassic && whole != place.detail) {
      place.detail = whole + " \u2192 " + place.detail;
      rounded.push_back(std::move(place));
    }
  });
  check->Add("score-form", Consequence::kRefused, std::move(refused));
  check->Add("score-rounded", Consequence::kChanged, std::move(rounded));
  check->Add("score-negative", Consequence::kRefused, NegativeScores(*check));
}

void _CheckTitles(ExportCheck* check) {
  check->Add("title-bracket", Consequence::kRefused,
             check->Titles([](std::string_view title) { return title.find('[') != std::string_view::npos; }));
  check->Add("title-asterisk", Consequence::kRefused,
             check->Titles([](std::string_view title) { return title.starts_with("* "); }));
  check->Add("title-hash", Consequence::kLost,
             check->Titles([](std::string_view title) { return title.starts_with('#'); }));
  check->Add("title-backslash", Consequence::kChanged, check->Titles([](std::string_view title) {
    return title.find('\\') != std::string_view::npos;
  }));
}

void _Check(ExportCheck* check) {
  _CheckScores(check);
  _CheckTitles(check);
  if (check->subject.dialect == Dialect::kFilled) return;  // points and separators are those of the download
  std::vector<FindingPlace> pointless;
  for (const size_t assignment : check->subject.assignments) {
    if (check->Record().assignments[assignment].pointsPossible == 0) {
      pointless.push_back({.assignment = assignment});
    }
  }
  check->Add("points-zero", Consequence::kLost, std::move(pointless));
  check->AddForFile("points-replaced", Consequence::kNote);
  check->AddForFile(check->subject.delimiter == ';' ? "semicolons" : "decimal-comma", Consequence::kNote);
}

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

// Upload

constexpr const char* kSuperseded[] = {"result-missing", "points-replaced"};
constexpr const char* kOfNewColumns[] = {"points-zero"};

constexpr UploadRules kUpload = {
    .blank = BlankScore::kErasesWhenChanging,
    .unknownStudent = Consequence::kLost,
    .showsAllIdentifiers = true,
    .otherCase = Consequence::kLost,
    .secondColumn = Consequence::kWrong,
    .otherPoints = Consequence::kChanged,
    .superseded = kSuperseded,
    .ofNewColumns = kOfNewColumns,
};

constexpr SystemFormat kFormats[] = {{.key = "sakai", .current = &kCurrent}};

}  // namespace

const LearningSystem kSakaiSystem = {
    .key = "sakai",
    .name = "Sakai",
    .formats = kFormats,
    .download = &kDownload,
    .upload = &kUpload,
    .rules = _Rules,
    .check = _Check,
};
