// What we know of Moodle.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "Common/KeyIndex.h"
#include "Filters/GX_StdCsv/formats/Moodle.h"
#include "Systems/CurrentFile.h"
#include "Systems/Download.h"
#include "Systems/DownloadText.h"
#include "Systems/ExportCheck.h"
#include "Systems/ScoreFindings.h"
#include "Systems/Systems.h"
#include "Systems/UploadRules.h"

namespace {

// Findings

CheckRules _Rules(const ExportSubject& subject) {
  // One student whom it does not find makes it refuse the whole file.
  CheckRules rules;
  rules.extraSeparator = Consequence::kRefused;
  // The current file leaves them out.
  rules.idMissing = subject.dialect == Dialect::kClassic ? Consequence::kRefused : Consequence::kLost;
  rules.idReplaced = Consequence::kRefused;
  rules.accents.reset();
  rules.idAccents = Consequence::kRefused;
  rules.titleAccents = Consequence::kChanged;  // in UTF-8, as which it is read, such bytes mean nothing
  rules.titleEqual = Consequence::kWrong;
  rules.scoreAbovePoints = Consequence::kChanged;
  rules.scoreNoNumber = Consequence::kRefused;
  rules.tellsMissingResults = true;
  return rules;
}

// Unless the site allows unlimited grades.
constexpr double kGreatestScore = 100;

bool _HasCapitals(std::string_view identifier) {
  return std::ranges::any_of(identifier, [](char letter) { return letter >= 'A' && letter <= 'Z'; });
}

void _Check(ExportCheck* check) {
  const Dialect dialect = check->subject.dialect;
  check->Add("score-above-100", Consequence::kRefused, ScoresAbove(*check, kGreatestScore));
  check->Add("score-negative", Consequence::kChanged, NegativeScores(*check));
  if (dialect == Dialect::kFilled) return;  // whose titles end in " (Real)"
  // It takes away the meaning of the separator or of the quote behind it.
  check->Add("title-backslash", dialect == Dialect::kCurrent ? Consequence::kRefused : Consequence::kLost,
             check->Titles([](std::string_view title) { return title.ends_with('\\'); }));
  check->Add("id-capitals", Consequence::kNote, check->Identifiers(_HasCapitals));
  check->AddForFile("new-columns", Consequence::kNote);
}

// Current file

constexpr GradebookLayout kCurrentLayout = {
    .leading = kMoodleStudent,
    .score = kMoodle.score,
    .noScore = "-",
};

constexpr CurrentFile kCurrent = {.layout = &kCurrentLayout, .takesSemicolons = true};

// Download

constexpr FixedColumn kDownloadColumns[] = {
    {"First name", ColumnRole::kName, NamePart::kFirst}, {"Last name", ColumnRole::kName, NamePart::kLast},
    {"Surname", ColumnRole::kName, NamePart::kLast},     {"Nombre", ColumnRole::kName, NamePart::kFirst},
    {"Apellido(s)", ColumnRole::kName, NamePart::kLast}, {"Apellidos", ColumnRole::kName, NamePart::kLast},
};

// What stands in parentheses behind the titles: the form of the grades in the column.
constexpr std::string_view kPointsForm = "Real";
constexpr std::string_view kForms[] = {
    kPointsForm, "Percentage", "Letter", "Feedback", "Porcentaje", "Letra", "Retroalimentación",
};

// The totals of the course and of a category, whose name may stand in front.
constexpr std::string_view kTotals[] = {"Course total", " total", "Total del curso", "Total de la categoría"};

// Kinds of activities that are no single word.
constexpr std::string_view kActivities[] = {"External tool", "Herramienta externa", "H5P"};

// Cuts the form off the heading; nothing when there is none.
std::optional<std::string_view> _CutForm(std::string_view* heading) {
  std::string_view title = *heading;
  const auto form = CutBracket(&title, " (", ')');
  if (!form || form->empty() || form->find_first_of("0123456789") != std::string_view::npos) return {};
  *heading = title;
  return form;
}

bool _IsKnownForm(std::string_view form) {
  return std::any_of(std::begin(kForms), std::end(kForms),
                     [form](std::string_view known) { return IsHeading(form, known); });
}

// The title without the kind of the activity, "Quiz: " in front; empty when there is none.
std::string_view _WithoutActivity(std::string_view title) {
  const size_t colon = title.find(": ");
  if (colon == std::string_view::npos || colon == 0) return {};
  const std::string_view kind = title.substr(0, colon);
  const bool isKnown = std::any_of(std::begin(kActivities), std::end(kActivities),
                                   [kind](std::string_view known) { return IsHeading(kind, known); });
  if (!isKnown && kind.find_first_of(" 0123456789") != std::string_view::npos) return {};
  return TrimBlanks(title.substr(colon + 2));
}

DownloadColumn _DescribePoints(std::string_view title) {
  for (const std::string_view total : kTotals) {
    if (EndsWithNoCase(title, total)) return {.role = ColumnRole::kReadOnly};
  }
  return {.role = ColumnRole::kItem,
          .title = std::string(title),
          .otherTitle = std::string(_WithoutActivity(title))};
}

// "Quiz: Rivers (Real)" is an item; other forms of its grade take no points.
DownloadColumn _DescribeColumn(std::string_view heading) {
  std::string_view title = heading;
  const auto form = _CutForm(&title);
  return form && IsHeading(*form, kPointsForm) ? _DescribePoints(title) : DownloadColumn{};
}

bool _IsDownload(const DelimitedTable& table, bool isChosen) {
  for (size_t i = 1; i < table.ColumnCount(); ++i) {
    std::string_view title = table.Text(0, i);
    const auto form = _CutForm(&title);
    if (form && (isChosen || _IsKnownForm(*form))) return true;
  }
  return false;
}

// Finds the points in a gradebook in a language that we have no words for: in the forms whose columns have
// nothing but numbers.
void _FindPoints(Gradebook* gradebook) {
  const DelimitedTable& table = gradebook->table;
  KeyIndex<std::string_view> forms(1);
  std::vector<size_t> formOf(gradebook->columns.size(), KeyIndex<std::string_view>::kNone);
  for (size_t i = 0; i < formOf.size(); ++i) {
    std::string_view title = gradebook->Heading(i);
    const auto form = _CutForm(&title);
    if (form && _IsKnownForm(*form)) return;
    if (form) formOf[i] = forms.Add(*form);
  }
  std::vector<bool> holdsPoints(forms.Count(), true);
  for (size_t row = 1; row < table.RowCount(); ++row) {
    for (size_t i = 0; i < std::min(formOf.size(), table.CellCount(row)); ++i) {
      if (formOf[i] == KeyIndex<std::string_view>::kNone) continue;
      const std::string_view cell = table.Text(row, i);
      if (!IsNoScore(cell) && !ParseCellNumber(cell)) holdsPoints[formOf[i]] = false;
    }
  }
  for (size_t i = 0; i < formOf.size(); ++i) {
    if (formOf[i] == KeyIndex<std::string_view>::kNone || !holdsPoints[formOf[i]]) continue;
    std::string_view title = gradebook->Heading(i);
    _CutForm(&title);
    gradebook->columns[i] = _DescribePoints(title);
  }
}

// The columns in front of the grades tell who the student is, in the site's language and order.
TableFault _TellStudents(Gradebook* gradebook) {
  _FindPoints(gradebook);
  bool hasPoints = false;
  bool hasNames = false;
  size_t firstGrade = gradebook->columns.size();
  for (size_t i = 0; i < gradebook->columns.size(); ++i) {
    const DownloadColumn& column = gradebook->columns[i];
    hasPoints = hasPoints || column.role == ColumnRole::kItem || column.role == ColumnRole::kReadOnly;
    hasNames = hasNames || column.namePart != NamePart::kNone;
    std::string_view title = gradebook->Heading(i);
    if (column.role != ColumnRole::kName && _CutForm(&title)) firstGrade = std::min(firstGrade, i);
  }
  if (!hasPoints) {
    return {.line = gradebook->table.LineOf(0),
            .reason = "no column has points; download the gradebook with grades of the type \"Real\""};
  }
  for (size_t i = 0; i < firstGrade; ++i) {
    DownloadColumn& column = gradebook->columns[i];
    if (column.role == ColumnRole::kOther) column.role = ColumnRole::kIdentifier;
    if (!hasNames && i < 2) column.namePart = i == 0 ? NamePart::kFirst : NamePart::kLast;
  }
  return {};
}

constexpr DownloadLayout kDownload = {
    .expected = "\"First name\", ... \"(Real)\" behind the titles",
    .matches = _IsDownload,
    .columns = kDownloadColumns,
    .describe = _DescribeColumn,
    .complete = _TellStudents,
    .noScore = "-",
    .newTitle = [](const std::string& title, int32_t) { return title; },
};

// Upload

constexpr const char* kSuperseded[] = {"result-missing"};

constexpr UploadRules kUpload = {
    .blank = BlankScore::kErases,
    .unknownStudent = Consequence::kRefused,
    .refusesUnknownRows = true,
    .capsScores = true,
    .greatestScore = kGreatestScore,
    .superseded = kSuperseded,
};

constexpr SystemFormat kFormats[] = {{.key = "moodle", .current = &kCurrent}};

}  // namespace

const LearningSystem kMoodleSystem = {
    .key = "moodle",
    .name = "Moodle",
    .formats = kFormats,
    .download = &kDownload,
    .upload = &kUpload,
    .rules = _Rules,
    .check = _Check,
};
