#include "Host/Result/UploadSteps.h"

#include <algorithm>
#include <string_view>

#include "Host/App/Texts.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

constexpr size_t kMaxSteps = 6;

struct Guide {
  const char* system;            // LearningSystem::key
  const char* format = nullptr;  // FormatRow::key; null: any of the system's
  bool isFill = false;           // of the system's own gradebook, filled in
  bool isCurrent = false;        // of a current file only
  const char* steps[kMaxSteps] = {};
};

// In a step {separator} is the file's.
constexpr const char* kOpenCanvas = QT_TRANSLATE_NOOP("Texts", "In Canvas, open the course and “Grades”.");
constexpr const char* kImportThis = QT_TRANSLATE_NOOP("Texts", "Choose “Import” and then this file.");
constexpr const char* kCanvasAsksNew =
    QT_TRANSLATE_NOOP("Texts", "If you chose new columns, Canvas asks about each of them.");
constexpr const char* kCompare =
    QT_TRANSLATE_NOOP("Texts", "Compare the old and the new scores, then save the changes.");
constexpr const char* kCanvasAsks =
    QT_TRANSLATE_NOOP("Texts",
                      "Canvas asks about each title that it does not know: choose an assignment of the "
                      "course, or make a new one with the points shown.");
constexpr const char* kOpenMoodle = QT_TRANSLATE_NOOP("Texts", "In Moodle, open the course and “Grades”.");
constexpr const char* kImportCsv = QT_TRANSLATE_NOOP("Texts", "Choose “Import”, then “CSV file”.");
constexpr const char* kUploadAsDownloaded =
    QT_TRANSLATE_NOOP("Texts", "Choose this file, with the separator that the download has, and upload it.");
constexpr const char* kMapFilledUsers =
    QT_TRANSLATE_NOOP("Texts",
                      "Under the identification of users, map the column that identifies the students, such "
                      "as “Email address”, to the same field of Moodle.");
constexpr const char* kMapFilledColumns = QT_TRANSLATE_NOOP(
    "Texts", "Map each column with results to the grade item of the same name, and import.");
constexpr const char* kUploadSeparated =
    QT_TRANSLATE_NOOP("Texts", "Choose this file, with a {separator} as the separator, and upload it.");
constexpr const char* kMapUsers =
    QT_TRANSLATE_NOOP("Texts",
                      "Under the identification of users, map “User ID” of the file to what the field holds: "
                      "e-mail address, user name or ID number.");
constexpr const char* kMapColumns = QT_TRANSLATE_NOOP(
    "Texts", "Map each assignment to a grade item of the course or to a new one, and import.");
constexpr const char* kOpenSakai = QT_TRANSLATE_NOOP("Texts", "In Sakai, open the site and its “Gradebook”.");
constexpr const char* kChooseAssignments = QT_TRANSLATE_NOOP("Texts", "Choose the assignments to import.");
constexpr const char* kFinishImport = QT_TRANSLATE_NOOP("Texts", "Read the preview and finish the import.");
constexpr const char* kChooseSakaiAssignments =
    QT_TRANSLATE_NOOP("Texts",
                      "Choose the assignments to import. Those that Sakai does not know are made new, with "
                      "the points in brackets.");
constexpr const char* kOpenBlackboard =
    QT_TRANSLATE_NOOP("Texts", "In Blackboard, open the course and turn editing on.");
constexpr const char* kOpenGradeCenter =
    QT_TRANSLATE_NOOP("Texts", "Open “Full Grade Center” in the control panel.");
constexpr const char* kWorkOffline = QT_TRANSLATE_NOOP("Texts", "Choose “Work Offline”, then “Upload”.");
constexpr const char* kSubmitAsDownloaded =
    QT_TRANSLATE_NOOP("Texts", "Choose this file, with the delimiter that the download has, and submit it.");
constexpr const char* kLookThroughColumns = QT_TRANSLATE_NOOP(
    "Texts", "Blackboard lists the columns that it would change. Look through them, and submit.");
constexpr const char* kOpenUploadPage =
    QT_TRANSLATE_NOOP("Texts", "Open the “Gradebook” and its upload page.");
constexpr const char* kSubmitWithCommas =
    QT_TRANSLATE_NOOP("Texts", "Choose this file, with a comma as the delimiter, and submit it.");
constexpr const char* kClearTotals =
    QT_TRANSLATE_NOOP("Texts",
                      "Blackboard lists the columns that it would change. Clear the marks of the totals, "
                      "such as “Running Total”, and submit.");
constexpr const char* kOpenBrightspace =
    QT_TRANSLATE_NOOP("Texts", "In Brightspace, open the course and “Grades”.");
constexpr const char* kEnterGrades = QT_TRANSLATE_NOOP("Texts", "Open “Enter Grades” and choose “Import”.");
constexpr const char* kChooseThis = QT_TRANSLATE_NOOP("Texts", "Choose this file.");
constexpr const char* kReadErrors =
    QT_TRANSLATE_NOOP("Texts", "Read the preview, with its list of errors, and finish the import.");
constexpr const char* kAllowNewItems = QT_TRANSLATE_NOOP(
    "Texts", "Choose this file. Allow new grade items if the assignments do not exist in Brightspace yet.");
constexpr const char* kOpenSchoology =
    QT_TRANSLATE_NOOP("Texts", "In Schoology, open the course and its “Gradebook”.");
constexpr const char* kOpenGradebookMenu =
    QT_TRANSLATE_NOOP("Texts", "Open the menu of the gradebook and choose “Import”.");
constexpr const char* kTakeUniqueId =
    QT_TRANSLATE_NOOP("Texts", "Choose this file. Take “User Unique ID” as the identifier.");
constexpr const char* kAssignColumns =
    QT_TRANSLATE_NOOP("Texts", "Assign each column to a grade item of the course, and import.");
constexpr const char* kOpenWebCT =
    QT_TRANSLATE_NOOP("Texts", "In WebCT Vista, open the course and its “Teach” tab.");
constexpr const char* kOpenGradeBook = QT_TRANSLATE_NOOP("Texts", "Open “Grade Book”.");
constexpr const char* kImportSpreadsheet = QT_TRANSLATE_NOOP(
    "Texts", "Choose “Import from spreadsheet” and then this file, with a comma as the separator.");
constexpr const char* kCheckColumns = QT_TRANSLATE_NOOP(
    "Texts", "Check which column of the file goes to which column of the grade book, and import.");
constexpr const char* kOpenANGEL =
    QT_TRANSLATE_NOOP("Texts", "In ANGEL, open the course and its “Manage” tab.");
constexpr const char* kOpenAndImport = QT_TRANSLATE_NOOP("Texts", "Open “Gradebook” and choose “Import”.");
constexpr const char* kChooseWithTitles =
    QT_TRANSLATE_NOOP("Texts", "Choose this file, comma-separated, with the titles in the first line.");
constexpr const char* kMatchColumns =
    QT_TRANSLATE_NOOP("Texts",
                      "Match the columns: “User ID” identifies the student; each remaining column goes to an "
                      "assignment, as a percentage.");
constexpr const char* kOpenInSpreadsheet = QT_TRANSLATE_NOOP(
    "Texts",
    "Open the file in a spreadsheet program, or import it as comma-separated text if the program asks.");
constexpr const char* kReadAsText =
    QT_TRANSLATE_NOOP("Texts", "Read student IDs and dates as text, so that leading zeros stay.");
constexpr const char* kChooseMacRoman = QT_TRANSLATE_NOOP(
    "Texts", "Choose Mac OS Roman (“Macintosh”) as the encoding, so that accents are right.");

// The first row that fits counts. The help book says the same.
constexpr Guide kGuides[] = {
    {.system = "canvas", .isFill = true, .steps = {kOpenCanvas, kImportThis, kCanvasAsksNew, kCompare}},
    {.system = "canvas", .steps = {kOpenCanvas, kImportThis, kCanvasAsks, kCompare}},
    {.system = "moodle",
     .isFill = true,
     .steps = {kOpenMoodle, kImportCsv, kUploadAsDownloaded, kMapFilledUsers, kMapFilledColumns}},
    {.system = "moodle", .steps = {kOpenMoodle, kImportCsv, kUploadSeparated, kMapUsers, kMapColumns}},
    {.system = "sakai",
     .isFill = true,
     .steps = {kOpenSakai, kImportThis, kChooseAssignments, kFinishImport}},
    {.system = "sakai", .steps = {kOpenSakai, kImportThis, kChooseSakaiAssignments, kFinishImport}},
    {.system = "blackboard",
     .isFill = true,
     .steps = {kOpenBlackboard, kOpenGradeCenter, kWorkOffline, kSubmitAsDownloaded, kLookThroughColumns}},
    {.system = "blackboard",
     .format = "blackboard6",
     .steps = {kOpenBlackboard, kOpenUploadPage, kSubmitWithCommas, kClearTotals}},
    {.system = "blackboard",
     .steps = {kOpenBlackboard, kOpenGradeCenter, kWorkOffline, kSubmitWithCommas, kClearTotals}},
    {.system = "brightspace",
     .isFill = true,
     .steps = {kOpenBrightspace, kEnterGrades, kChooseThis, kReadErrors}},
    {.system = "brightspace", .steps = {kOpenBrightspace, kEnterGrades, kAllowNewItems, kReadErrors}},
    {.system = "schoology", .steps = {kOpenSchoology, kOpenGradebookMenu, kTakeUniqueId, kAssignColumns}},
    {.system = "webct", .steps = {kOpenWebCT, kOpenGradeBook, kImportSpreadsheet, kCheckColumns}},
    {.system = "angel", .steps = {kOpenANGEL, kOpenAndImport, kChooseWithTitles, kMatchColumns}},
    {.system = "detailed", .isCurrent = true, .steps = {kOpenInSpreadsheet, kReadAsText}},
    {.system = "detailed", .steps = {kOpenInSpreadsheet, kChooseMacRoman, kReadAsText}},
};

constexpr const char* kAsItIs =
    QT_TRANSLATE_NOOP("Texts", "Take the file as it is: a spreadsheet program that saves it may change it.");

bool _Fits(const Guide& guide, const ExportedFile& file) {
  return std::string_view(guide.system) == SystemOf(*file.format).key &&
         (guide.format == nullptr || std::string_view(guide.format) == file.format->key) &&
         guide.isFill == (file.dialect == Dialect::kFilled) &&
         (!guide.isCurrent || file.dialect == Dialect::kCurrent);
}

}  // namespace

QStringList UploadStepsOf(const ExportedFile& file) {
  QStringList steps;
  if (file.format == nullptr) return steps;
  const auto* const guide =
      std::ranges::find_if(kGuides, [&file](const Guide& each) { return _Fits(each, file); });
  if (guide == std::end(kGuides)) return steps;
  const QString separator = file.delimiter == ';' ? Texts::tr("semicolon") : Texts::tr("comma");
  if (!file.format->IsReport()) steps.append(Texts::tr(kAsItIs));
  for (const char* const step : guide->steps) {
    if (step != nullptr) steps.append(Texts::tr(step).replace(QLatin1String("{separator}"), separator));
  }
  return steps;
}

}  // namespace host
