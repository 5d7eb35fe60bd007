#include "Host/Result/UploadSteps.h"

#include <algorithm>
#include <string_view>

#include "Host/App/Texts.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

constexpr size_t kMaxSteps = 6;

// In a step {separator} is the file's.
struct Guide {
  const char* system;            // LearningSystem::key
  const char* format = nullptr;  // FormatRow::key; null: any of the system's
  bool isFill = false;           // of the system's own gradebook, filled in
  bool isCurrent = false;        // of a current file only
  const char* steps[kMaxSteps] = {};
};

// The first row that fits counts. The help book says the same.
constexpr Guide kGuides[] = {
    {.system = "canvas",
     .isFill = true,
     .steps = {QT_TRANSLATE_NOOP("Texts", "In Canvas, open the course and “Grades”."),
               QT_TRANSLATE_NOOP("Texts", "Choose “Import” and then this file."),
               QT_TRANSLATE_NOOP("Texts", "If you chose new columns, Canvas asks about each of them."),
               QT_TRANSLATE_NOOP("Texts", "Compare the old and the new scores, then save the changes.")}},
    {.system = "canvas",
     .steps = {QT_TRANSLATE_NOOP("Texts", "In Canvas, open the course and “Grades”."),
               QT_TRANSLATE_NOOP("Texts", "Choose “Import” and then this file."),
               QT_TRANSLATE_NOOP(
                   "Texts",
                   "Canvas asks about each title that it does not know: choose an assignment of the "
                   "course, or make a new one with the points shown."),
               QT_TRANSLATE_NOOP("Texts", "Compare the old and the new scores, then save the changes.")}},
    {.system = "moodle",
     .isFill = true,
     .steps = {QT_TRANSLATE_NOOP("Texts", "In Moodle, open the course and “Grades”."),
               QT_TRANSLATE_NOOP("Texts", "Choose “Import”, then “CSV file”."),
               QT_TRANSLATE_NOOP(
                   "Texts", "Choose this file, with the separator that the download has, and upload it."),
               QT_TRANSLATE_NOOP(
                   "Texts",
                   "Under the identification of users, map the column that identifies the students, "
                   "such as “Email address”, to the same field of Moodle."),
               QT_TRANSLATE_NOOP("Texts",
                                 "Map each other column to the grade item of the same name, and import.")}},
    {.system = "moodle",
     .steps =
         {QT_TRANSLATE_NOOP("Texts", "In Moodle, open the course and “Grades”."),
          QT_TRANSLATE_NOOP("Texts", "Choose “Import”, then “CSV file”."),
          QT_TRANSLATE_NOOP("Texts", "Choose this file, with a {separator} as the separator, and upload it."),
          QT_TRANSLATE_NOOP("Texts",
                            "Under the identification of users, map “User ID” of the file to what the field "
                            "holds: e-mail address, user name or ID number."),
          QT_TRANSLATE_NOOP(
              "Texts", "Map each assignment to a grade item of the course or to a new one, and import.")}},
    {.system = "sakai",
     .isFill = true,
     .steps = {QT_TRANSLATE_NOOP("Texts", "In Sakai, open the site and its “Gradebook”."),
               QT_TRANSLATE_NOOP("Texts", "Choose “Import” and then this file."),
               QT_TRANSLATE_NOOP("Texts", "Choose the assignments to import."),
               QT_TRANSLATE_NOOP("Texts", "Read the preview and finish the import.")}},
    {.system = "sakai",
     .steps = {QT_TRANSLATE_NOOP("Texts", "In Sakai, open the site and its “Gradebook”."),
               QT_TRANSLATE_NOOP("Texts", "Choose “Import” and then this file."),
               QT_TRANSLATE_NOOP(
                   "Texts",
                   "Choose the assignments to import. Those that Sakai does not know are made new, with "
                   "the points in brackets."),
               QT_TRANSLATE_NOOP("Texts", "Read the preview and finish the import.")}},
    {.system = "blackboard",
     .isFill = true,
     .steps = {QT_TRANSLATE_NOOP("Texts", "In Blackboard, open the course and turn editing on."),
               QT_TRANSLATE_NOOP("Texts", "Open “Full Grade Center” in the control panel."),
               QT_TRANSLATE_NOOP("Texts", "Choose “Work Offline”, then “Upload”."),
               QT_TRANSLATE_NOOP(
                   "Texts", "Choose this file, with the delimiter that the download has, and submit it."),
               QT_TRANSLATE_NOOP("Texts",
                                 "Blackboard lists the columns that it would change. Look through them, and "
                                 "submit.")}},
    {.system = "blackboard",
     .format = "blackboard6",
     .steps = {QT_TRANSLATE_NOOP("Texts", "In Blackboard, open the course and turn editing on."),
               QT_TRANSLATE_NOOP("Texts", "Open the “Gradebook” and its upload page."),
               QT_TRANSLATE_NOOP("Texts", "Choose this file, with a comma as the delimiter, and submit it."),
               QT_TRANSLATE_NOOP(
                   "Texts",
                   "Blackboard lists the columns that it would change. Clear the marks of the totals, "
                   "such as “Running Total”, and submit.")}},
    {.system = "blackboard",
     .steps = {QT_TRANSLATE_NOOP("Texts", "In Blackboard, open the course and turn editing on."),
               QT_TRANSLATE_NOOP("Texts", "Open “Full Grade Center” in the control panel."),
               QT_TRANSLATE_NOOP("Texts", "Choose “Work Offline”, then “Upload”."),
               QT_TRANSLATE_NOOP("Texts", "Choose this file, with a comma as the delimiter, and submit it."),
               QT_TRANSLATE_NOOP(
                   "Texts",
                   "Blackboard lists the columns that it would change. Clear the marks of the totals, "
                   "such as “Running Total”, and submit.")}},
    {.system = "brightspace",
     .isFill = true,
     .steps = {QT_TRANSLATE_NOOP("Texts", "In Brightspace, open the course and “Grades”."),
               QT_TRANSLATE_NOOP("Texts", "Open “Enter Grades” and choose “Import”."),
               QT_TRANSLATE_NOOP("Texts", "Choose this file."),
               QT_TRANSLATE_NOOP("Texts",
                                 "Read the preview, with its list of errors, and finish the import.")}},
    {.system = "brightspace",
     .steps = {QT_TRANSLATE_NOOP("Texts", "In Brightspace, open the course and “Grades”."),
               QT_TRANSLATE_NOOP("Texts", "Open “Enter Grades” and choose “Import”."),
               QT_TRANSLATE_NOOP("Texts",
                                 "Choose this file. Allow new grade items if the assignments do not exist in "
                                 "Brightspace yet."),
               QT_TRANSLATE_NOOP("Texts",
                                 "Read the preview, with its list of errors, and finish the import.")}},
    {.system = "schoology",
     .steps = {QT_TRANSLATE_NOOP("Texts", "In Schoology, open the course and its “Gradebook”."),
               QT_TRANSLATE_NOOP("Texts", "Open the menu of the gradebook and choose “Import”."),
               QT_TRANSLATE_NOOP("Texts", "Choose this file. Take “User Unique ID” as the identifier."),
               QT_TRANSLATE_NOOP("Texts", "Assign each column to a grade item of the course, and import.")}},
    {.system = "webct",
     .steps = {QT_TRANSLATE_NOOP("Texts", "In WebCT Vista, open the course and its “Teach” tab."),
               QT_TRANSLATE_NOOP("Texts", "Open “Grade Book”."),
               QT_TRANSLATE_NOOP(
                   "Texts",
                   "Choose “Import from spreadsheet” and then this file, with a comma as the separator."),
               QT_TRANSLATE_NOOP("Texts",
                                 "Check which column of the file goes to which column of the grade book, and "
                                 "import.")}},
    {.system = "angel",
     .steps = {QT_TRANSLATE_NOOP("Texts", "In ANGEL, open the course and its “Manage” tab."),
               QT_TRANSLATE_NOOP("Texts", "Open “Gradebook” and choose “Import”."),
               QT_TRANSLATE_NOOP("Texts",
                                 "Choose this file, comma-separated, with the titles in the first line."),
               QT_TRANSLATE_NOOP(
                   "Texts",
                   "Match the columns: “User ID” identifies the student; each remaining column goes to an "
                   "assignment, as a percentage.")}},
    {.system = "detailed",
     .isCurrent = true,
     .steps = {QT_TRANSLATE_NOOP(
                   "Texts",
                   "Open the file in a spreadsheet program, or import it as comma-separated text if the "
                   "program asks."),
               QT_TRANSLATE_NOOP("Texts",
                                 "Read student IDs and dates as text, so that leading zeros stay.")}},
    {.system = "detailed",
     .steps = {QT_TRANSLATE_NOOP(
                   "Texts",
                   "Open the file in a spreadsheet program, or import it as comma-separated text if the "
                   "program asks."),
               QT_TRANSLATE_NOOP(
                   "Texts", "Choose Mac OS Roman (“Macintosh”) as the encoding, so that accents are right."),
               QT_TRANSLATE_NOOP("Texts",
                                 "Read student IDs and dates as text, so that leading zeros stay.")}},
};

constexpr const char* kAsItIs = QT_TRANSLATE_NOOP(
    "Texts", "Upload the file as it is: a spreadsheet program that saves it may change it.");

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
  for (const char* const step : guide->steps) {
    if (step != nullptr) steps.append(Texts::tr(step).replace(QLatin1String("{separator}"), separator));
  }
  if (!file.format->IsReport()) steps.append(Texts::tr(kAsItIs));
  return steps;
}

}  // namespace host
